#include "app/dialogs/dlg_ubc97.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.radios = {"option"};
  layout.nested_groups = {{"For Zone 4", "Data for Automatic Calculation"}};
  layout.read_only_when_locked = {"ca", "cv"};
  return layout;
}

}  // namespace

DLG_UBC97::DLG_UBC97(DialogHost& host, QWidget* parent)
    : DesignCodeDialog(host, *FindDesignCode("ubc97"), Layout(), parent) {}

}  // namespace zel::app
