// Commands served by dialogs of the record and code parts of the program.
// A dialog enables its menu entry by adding one line here, for example
//   registry.Register(ID_DESIGN_UBC97, [](CMainFrame& frame) {
//     DLG_UBC97 dialog(frame);
//     frame.app().RunDialog(dialog);
//   });
// and, on OK, makes its document with
//   CZELwDoc* doc = frame.app().NewDocument(kNewDesignSpectrum);
#include "app/shell/command_registry.h"

namespace zel::app {

void RegisterCommands(CommandRegistry& registry) {
  (void)registry;  // no generator dialog is available yet
}

}  // namespace zel::app
