// CDLG_JPN2000: the Japan(Arch.2000) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_JPN2000_H_
#define ZEL_APP_DIALOGS_CDLG_JPN2000_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_JPN2000 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_JPN2000(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("japan2000"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_JPN2000_H_
