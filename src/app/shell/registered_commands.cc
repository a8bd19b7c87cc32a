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

namespace zel::app {

void RegisterCommands(CommandRegistry& registry) {
  (void)registry;  // no such dialog or operation is available yet
}

}  // namespace zel::app
