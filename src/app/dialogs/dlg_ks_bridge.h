// DLG_KS_BRIDGE: the Korea(Bridge) design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_KS_BRIDGE_H_
#define ZEL_APP_DIALOGS_DLG_KS_BRIDGE_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_KS_BRIDGE : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_KS_BRIDGE(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("korea-bridge"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_KS_BRIDGE_H_
