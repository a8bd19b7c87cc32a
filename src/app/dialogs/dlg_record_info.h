// DLG_RecordInfo: "Record Information", the ground-motion parameters of a
// record document's record, with a button that copies them as text.
#ifndef ZEL_APP_DIALOGS_DLG_RECORD_INFO_H_
#define ZEL_APP_DIALOGS_DLG_RECORD_INFO_H_

#include <QDialog>
#include <QPushButton>
#include <QTableWidget>
#include <string>

#include "core/document/curve_document.h"

namespace zel::app {

class DLG_RecordInfo : public QDialog {
  Q_OBJECT

 public:
  explicit DLG_RecordInfo(const CZELwDoc& doc, QWidget* parent = nullptr);

  QTableWidget* table() { return table_; }
  QPushButton* copy_button() { return copy_; }
  // The parameters as the Copy button puts them on the clipboard.
  const std::string& text() const { return text_; }

 private:
  QTableWidget* table_;
  QPushButton* copy_;
  std::string text_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_RECORD_INFO_H_
