// DLG_KBC2005: the KBC(2005) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KBC2005_H_
#define ZEL_APP_DIALOGS_DLG_KBC2005_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KBC2005 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KBC2005(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("kbc2005"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KBC2005_H_
