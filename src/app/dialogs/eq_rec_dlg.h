// EQ_REC_DLG: "Generate Earthquake Acceleration Record". Its OK makes a new
// document holding one catalog or imported record as a time-history curve.
#ifndef ZEL_APP_DIALOGS_EQ_REC_DLG_H_
#define ZEL_APP_DIALOGS_EQ_REC_DLG_H_

#include <QDialog>
#include <string>

#include "app/dialogs/record_dialog_common.h"

namespace zel::app {

class DialogHost;

class EQ_REC_DLG : public QDialog {
  Q_OBJECT

 public:
  explicit EQ_REC_DLG(DialogHost& host, QWidget* parent = nullptr);

  RecordChooser& chooser() { return *chooser_; }

  // OK: checks the amplitude scale, reads the record file into a new record
  // document and closes; a missing file keeps the dialog open.
  void accept() override;

 private:
  DialogHost& host_;
  RecordChooser* chooser_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_EQ_REC_DLG_H_
