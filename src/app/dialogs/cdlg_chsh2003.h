// CDLG_CHSH2003: the China Shanghai(DGJ08-9-2003) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_CHSH2003_H_
#define ZEL_APP_DIALOGS_CDLG_CHSH2003_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_CHSH2003 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_CHSH2003(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("shanghai2003"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_CHSH2003_H_
