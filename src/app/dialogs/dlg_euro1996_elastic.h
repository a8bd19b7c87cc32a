// DLG_EURO1996_ELASTIC: the Eurocode-8(1996) elastic spectrum dialog.
#ifndef ZEL_APP_DIALOGS_DLG_EURO1996_ELASTIC_H_
#define ZEL_APP_DIALOGS_DLG_EURO1996_ELASTIC_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_EURO1996_ELASTIC : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_EURO1996_ELASTIC(DialogHost& host, QWidget* parent = nullptr)
      : DesignCodeDialog(host, *FindDesignCode("ec8-1996-elastic"), parent) {}
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_EURO1996_ELASTIC_H_
