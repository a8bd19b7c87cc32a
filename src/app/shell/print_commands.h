// File / Print, Print Preview, Page Setup and Print Setup. One printer and
// its settings (printer, paper, orientation, margins) serve the whole
// session: what Page Setup or Print Setup chose, the next print uses.
#ifndef ZEL_APP_SHELL_PRINT_COMMANDS_H_
#define ZEL_APP_SHELL_PRINT_COMMANDS_H_

namespace zel::app {

class CommandRegistry;

void RegisterPrintCommands(CommandRegistry& registry);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_PRINT_COMMANDS_H_
