// CDLG_NTC2018: the NTC2018 spectra dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_NTC2018_H_
#define ZEL_APP_DIALOGS_CDLG_NTC2018_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_NTC2018 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_NTC2018(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ntc2018"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_NTC2018_H_
