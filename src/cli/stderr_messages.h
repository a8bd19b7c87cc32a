// The command line shows the system's messages on standard error.
#ifndef ZEL_CLI_STDERR_MESSAGES_H_
#define ZEL_CLI_STDERR_MESSAGES_H_

#include <iostream>
#include <string_view>
#include <system_error>

#include "core/document/messages.h"

namespace zel::cli {

class StderrMessages : public MessageSink {
 public:
  void Show(std::string_view text) override { std::cerr << text << '\n'; }
  // "ERROR! File Not Found!", then the path and the system's reason, which a
  // script's user needs and a message box never showed.
  void ShowFileError(std::string_view path, int error_number) override {
    Show(kFileNotFoundMessage);
    std::cerr
        << path << ": "
        << std::error_code(error_number, std::generic_category()).message()
        << '\n';
  }
};

}  // namespace zel::cli

#endif  // ZEL_CLI_STDERR_MESSAGES_H_
