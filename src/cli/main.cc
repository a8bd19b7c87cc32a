// zel-cli: ZEL's generators and file tools without the GUI.
#include <CLI/CLI.hpp>

#include "cli/design_command.h"
#include "cli/file_commands.h"
#include "cli/record_commands.h"
#include "cli/scale_command.h"

int main(int argc, char** argv) {
  CLI::App app{"ZEL command line: seismic input data without the GUI",
               "zel-cli"};
  app.set_version_flag("--version", "zel-cli " ZEL_VERSION);
  app.require_subcommand(1);
  zel::cli::AddFileCommands(app);
  zel::cli::AddDesignCommand(app);
  zel::cli::AddRecordCommands(app);
  zel::cli::AddScaleCommand(app);
  CLI11_PARSE(app, argc, argv);
  return 0;
}
