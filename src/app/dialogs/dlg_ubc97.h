// DLG_UBC97: the UBC(1997) design spectrum dialog. The calculation option is
// a pair of radio buttons, the near-source data ("For Zone 4") sit inside the
// data for the automatic calculation, and Ca and Cv are read-only while the
// dialog computes them.
#ifndef ZEL_APP_DIALOGS_DLG_UBC97_H_
#define ZEL_APP_DIALOGS_DLG_UBC97_H_

#include "app/dialogs/design_code_dialog.h"

namespace zel::app {

class DLG_UBC97 : public DesignCodeDialog {
  Q_OBJECT

 public:
  explicit DLG_UBC97(DialogHost& host, QWidget* parent = nullptr);
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DLG_UBC97_H_
