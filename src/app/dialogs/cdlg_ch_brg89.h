// CDLG_CH_BRG89: the China(JTJ004-89) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_CH_BRG89_H_
#define ZEL_APP_DIALOGS_CDLG_CH_BRG89_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_CH_BRG89 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_CH_BRG89(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("jtj004-89"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_CH_BRG89_H_
