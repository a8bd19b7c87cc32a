// The command line of the program zel itself: --help and --version, answered
// before any window or display is needed (the man page is made from them).
#ifndef ZEL_APP_SHELL_COMMAND_LINE_HELP_H_
#define ZEL_APP_SHELL_COMMAND_LINE_HELP_H_

#include <QString>

namespace zel::app {

// The --help text, naming the picture formats of --export.
QString CommandLineHelp();

// When the arguments ask for help or the version, writes it to standard
// output and returns true: the program then ends with status 0.
bool AnswerInformationRequest(int argc, char* argv[]);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_COMMAND_LINE_HELP_H_
