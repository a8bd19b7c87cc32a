// DLG_NEWMARK: the Newmark & Hall design spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_NEWMARK_H_
#define ZEL_APP_DIALOGS_DLG_NEWMARK_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_NEWMARK : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_NEWMARK(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("newmark-hall"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_NEWMARK_H_
