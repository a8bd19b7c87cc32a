// CDLG_IBC2000: the IBC2000(ASCE7-98) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_IBC2000_H_
#define ZEL_APP_DIALOGS_CDLG_IBC2000_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_IBC2000 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_IBC2000(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ibc2000"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_IBC2000_H_
