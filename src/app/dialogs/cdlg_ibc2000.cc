#include "app/dialogs/cdlg_ibc2000.h"

namespace zel::app {
namespace {

DesignDialogLayout Layout() {
  DesignDialogLayout layout;
  layout.radios = {"site", "category"};
  return layout;
}

}  // namespace

CDLG_IBC2000::CDLG_IBC2000(DialogHost& host, QWidget* parent)
    : DesignCodeDialog(host, *FindDesignCode("ibc2000"), Layout(), parent) {}

}  // namespace zel::app
