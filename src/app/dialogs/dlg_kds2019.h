// DLG_KDS2019: the KDS(41-17-00:2019) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KDS2019_H_
#define ZEL_APP_DIALOGS_DLG_KDS2019_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KDS2019 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KDS2019(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("kds2019"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KDS2019_H_
