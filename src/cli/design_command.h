// zel-cli design: a design spectrum by code, from the same registry and
// generators as the code dialogs, saved as .zel or .csv.
#ifndef ZEL_CLI_DESIGN_COMMAND_H_
#define ZEL_CLI_DESIGN_COMMAND_H_

#include <CLI/CLI.hpp>

namespace zel::cli {

// Adds "design" with --list and one subcommand per registered code.
void AddDesignCommand(CLI::App& app);

}  // namespace zel::cli

#endif  // ZEL_CLI_DESIGN_COMMAND_H_
