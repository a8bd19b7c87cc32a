// Commands served by dialogs and operations from other parts of the program:
// the Generate dialogs, Time<->Frequency and printing. A command's menu item
// (and tool bar button) is enabled once it is registered here, with one line
// such as
//   registry.Register(ID_DESIGN_UBC97, [](CMainFrame& frame) {
//     DLG_UBC97 dialog(&frame);
//     frame.app().RunDialog(dialog);
//   });
// On OK the dialog makes its document through the application:
//   CZELwDoc* doc = frame.app().NewDocument(kNewDocumentDesignSpectrum);
// fills it, sets its title and calls doc->UpdateAllViews().
#include "app/shell/command_registry.h"

// Design spectra by code.
#include "app/dialogs/cdlg_ibc2000.h"
#include "app/dialogs/dlg_atc.h"
#include "app/dialogs/dlg_kds2019.h"
#include "app/dialogs/dlg_ubc.h"
#include "app/dialogs/dlg_ubc97.h"
#include "app/shell/command_table.h"
#include "app/shell/main_frame.h"
#include "app/shell/zelw_app.h"

namespace zel::app {
namespace {

template <class Dialog>
void RunDesignDialog(CMainFrame& frame) {
  Dialog dialog(frame.app(), &frame);
  frame.app().RunDialog(dialog);
}

}  // namespace

void RegisterCommands(CommandRegistry& registry) {
  // Design spectra by code.
  registry.Register(ID_DESIGN_ATC, RunDesignDialog<DLG_ATC>);
  registry.Register(ID_DESIGN_UBC, RunDesignDialog<DLG_UBC>);
  registry.Register(ID_DESIGN_UBC97, RunDesignDialog<DLG_UBC97>);
  registry.Register(ID_DESIGN_IBC2000, RunDesignDialog<CDLG_IBC2000>);
  registry.Register(ID_DESIGN_KDS2019, RunDesignDialog<DLG_KDS2019>);
}

}  // namespace zel::app
