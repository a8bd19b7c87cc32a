#include "app/dialogs/dlg_ubc.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.radios = {"soil"};
  return layout;
}

}  // namespace

DLG_UBC::DLG_UBC(CZELwApp& app, QWidget* parent)
    : DesignCodeDialog(app, *FindDesignCode("ubc88-94"), Layout(), parent) {}

}  // namespace zel::app
