// DLG_ATC: the ATC 3-06 design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_ATC_H_
#define ZEL_APP_DIALOGS_DLG_ATC_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_ATC : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_ATC(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("atc3-06"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_ATC_H_
