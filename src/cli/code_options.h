// A design code's parameters given on the command line: the texts the
// code's dialog would hold once the user had typed them, field by field,
// with the dialog's reactions. Shared by "design" and "scale".
#ifndef ZEL_CLI_CODE_OPTIONS_H_
#define ZEL_CLI_CODE_OPTIONS_H_

#include <map>
#include <string>

#include "core/codes/code_registry.h"
#include "core/document/messages.h"

namespace zel::cli {

// Prints "zel-cli <command>: <text>" and ends the command with status 1.
[[noreturn]] void FailCommand(const std::string& command,
                              const std::string& text);

// The dialog label without its trailing colon, for help and messages.
std::string Caption(const ParamDescriptor& param);
// The command-line words of a choice, joined by ", ".
std::string ChoiceKeys(const ParamDescriptor& param);

// The controls' texts after entering `given` (option name -> text as
// typed; a check box given as "1") into the code's dialog from its
// defaults: a field that needs a selection first (Ca needs "User Defined")
// makes it unless the selection was given too, then the fields are entered
// top to bottom with their notifications. Fails the command on a text the
// field does not take, a disabled field or a refused change.
ParamValues EnterCodeValues(const CodeEntry& code,
                            const std::map<std::string, std::string>& given,
                            const std::string& command, MessageSink& messages);

}  // namespace zel::cli

#endif  // ZEL_CLI_CODE_OPTIONS_H_
