// DLG_UBC97: the UBC(1997) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_UBC97_H_
#define ZEL_APP_DIALOGS_DLG_UBC97_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_UBC97 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_UBC97(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ubc97"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_UBC97_H_
