// zel-cli scale: the amplitude factor that scales an earthquake record, or
// a suite of records, to a design code's spectrum.
#ifndef ZEL_CLI_SCALE_COMMAND_H_
#define ZEL_CLI_SCALE_COMMAND_H_

#include <CLI/CLI.hpp>

namespace zel::cli {

void AddScaleCommand(CLI::App& app);

}  // namespace zel::cli

#endif  // ZEL_CLI_SCALE_COMMAND_H_
