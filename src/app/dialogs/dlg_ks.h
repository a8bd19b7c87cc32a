// DLG_KS: the Korea(Arch.1992) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KS_H_
#define ZEL_APP_DIALOGS_DLG_KS_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KS : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KS(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("korea1992"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KS_H_
