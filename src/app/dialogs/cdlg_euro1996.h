// CDLG_EURO1996: the Eurocode-8(1996) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_EURO1996_H_
#define ZEL_APP_DIALOGS_CDLG_EURO1996_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_EURO1996 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_EURO1996(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ec8-1996-design"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_EURO1996_H_
