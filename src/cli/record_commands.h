// zel-cli catalog, record, spectrum and fft: earthquake records, their
// response spectra and frequency spectra without the GUI.
#ifndef ZEL_CLI_RECORD_COMMANDS_H_
#define ZEL_CLI_RECORD_COMMANDS_H_

#include <CLI/CLI.hpp>

namespace zel::cli {

void AddRecordCommands(CLI::App& app);

}  // namespace zel::cli

#endif  // ZEL_CLI_RECORD_COMMANDS_H_
