// CDLG_CH_GBJ111_87: the China(GBJ111-87) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_CH_GBJ111_87_H_
#define ZEL_APP_DIALOGS_CDLG_CH_GBJ111_87_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_CH_GBJ111_87 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_CH_GBJ111_87(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("gbj111-87"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_CH_GBJ111_87_H_
