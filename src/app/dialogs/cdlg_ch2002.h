// CDLG_CH2002: the China(GB50011-2001) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_CH2002_H_
#define ZEL_APP_DIALOGS_CDLG_CH2002_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_CH2002 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_CH2002(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("gb50011-2001"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_CH2002_H_
