#include "app/dialogs/dlg_kds2019.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.units = {{"sds", "g"}, {"sd1", "g"}};
  return layout;
}

}  // namespace

DLG_KDS2019::DLG_KDS2019(DialogHost& host, QWidget* parent)
    : DesignCodeDialog(host, *FindDesignCode("kds2019"), Layout(), parent) {}

}  // namespace zel::app
