// DLG_KS2000: the Korea(Arch.2000) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KS2000_H_
#define ZEL_APP_DIALOGS_DLG_KS2000_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KS2000 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KS2000(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("korea2000"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KS2000_H_
