#include "app/dialogs/dlg_ubc.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.radios = {"soil"};
  return layout;
}

}  // namespace

DLG_UBC::DLG_UBC(DialogHost& host, QWidget* parent)
    : DesignCodeDialog(host, *FindDesignCode("ubc88-94"), Layout(), parent) {}

}  // namespace zel::app
