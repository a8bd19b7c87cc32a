// The command line shows the system's messages on standard error.
#ifndef ZEL_CLI_STDERR_MESSAGES_H_
#define ZEL_CLI_STDERR_MESSAGES_H_

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>
#include <string_view>
#include <system_error>

#include "core/document/messages.h"

namespace zel::cli {

// The path and the system's reason, shown after "ERROR! File Not Found!":
// a script's user needs them and a message box never showed them.
inline std::string FileErrorDetail(std::string_view path, int error_number) {
  return std::string(path) + ": " +
         std::error_code(error_number, std::generic_category()).message();
}

// Prints `text` on standard error and ends the command with status 1.
[[noreturn]] inline void FailWithMessage(const std::string& text) {
  std::cerr << text << '\n';
  throw CLI::RuntimeError(1);
}

class StderrMessages : public MessageSink {
 public:
  void Show(std::string_view text) override { std::cerr << text << '\n'; }
  void ShowFileError(std::string_view path, int error_number) override {
    Show(kFileNotFoundMessage);
    Show(FileErrorDetail(path, error_number));
  }
};

}  // namespace zel::cli

#endif  // ZEL_CLI_STDERR_MESSAGES_H_
