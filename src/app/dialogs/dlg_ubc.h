// DLG_UBC: the UBC 88-94 design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_UBC_H_
#define ZEL_APP_DIALOGS_DLG_UBC_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_UBC : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_UBC(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ubc88-94"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_UBC_H_
