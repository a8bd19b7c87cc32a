// DLG_KSCE2019: the KDS(17-10-00:2018) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KSCE2019_H_
#define ZEL_APP_DIALOGS_DLG_KSCE2019_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KSCE2019 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KSCE2019(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("kds2018"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KSCE2019_H_
