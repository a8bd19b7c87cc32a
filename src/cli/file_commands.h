// zel-cli info and convert: look into and convert saved .zel files.
#ifndef ZEL_CLI_FILE_COMMANDS_H_
#define ZEL_CLI_FILE_COMMANDS_H_

#include <CLI/CLI.hpp>

namespace zel::cli {

void AddFileCommands(CLI::App& app);

}  // namespace zel::cli

#endif  // ZEL_CLI_FILE_COMMANDS_H_
