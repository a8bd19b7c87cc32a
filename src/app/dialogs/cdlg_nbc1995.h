// CDLG_NBC1995: the NBC(1995) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_CDLG_NBC1995_H_
#define ZEL_APP_DIALOGS_CDLG_NBC1995_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class CDLG_NBC1995 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit CDLG_NBC1995(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("nbc1995"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_CDLG_NBC1995_H_
