#include "app/dialogs/dlg_atc.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.radios = {"soil"};
  return layout;
}

}  // namespace

DLG_ATC::DLG_ATC(DialogHost& host, QWidget* parent)
    : DesignCodeDialog(host, *FindDesignCode("atc3-06"), Layout(), parent) {}

}  // namespace zel::app
