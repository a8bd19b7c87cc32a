// The import step of the record dialogs: for a file holding several
// channels, or columns of plain text, the user picks the channel, the time
// and acceleration columns, the time step and the unit, and sees what will
// be read before the dialog's OK uses it.
#ifndef ZEL_APP_DIALOGS_RECORD_IMPORT_DLG_H_
#define ZEL_APP_DIALOGS_RECORD_IMPORT_DLG_H_

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <string>

#include "core/records/record.h"

namespace zel::app {

class DLG_RecordImport : public QDialog {
  Q_OBJECT

 public:
  DLG_RecordImport(std::string path, RecordLayout layout,
                   QWidget* parent = nullptr);

  // What the controls say now.
  ImportChoices choices() const;

  QComboBox* channel_list() { return channel_list_; }
  QComboBox* time_column() { return time_column_; }
  QComboBox* accel_column() { return accel_column_; }
  QLineEdit* time_step() { return time_step_; }
  QComboBox* unit_list() { return unit_list_; }
  QPlainTextEdit* preview() { return preview_; }

 private:
  // Reads the file with the current choices and shows the outcome.
  void UpdatePreview();

  std::string path_;
  RecordLayout layout_;
  QComboBox* channel_list_ = nullptr;
  QComboBox* time_column_ = nullptr;
  QComboBox* accel_column_ = nullptr;
  QLineEdit* time_step_ = nullptr;
  QComboBox* unit_list_ = nullptr;
  QPlainTextEdit* preview_ = nullptr;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_RECORD_IMPORT_DLG_H_
