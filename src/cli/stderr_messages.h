// The command line shows the system's messages on standard error.
#ifndef ZEL_CLI_STDERR_MESSAGES_H_
#define ZEL_CLI_STDERR_MESSAGES_H_

#include <iostream>
#include <string_view>

#include "core/document/messages.h"

namespace zel::cli {

class StderrMessages : public MessageSink {
 public:
  void Show(std::string_view text) override {
    std::cerr << text << '\n';
    ++count_;
  }
  int count() const { return count_; }

 private:
  int count_ = 0;
};

}  // namespace zel::cli

#endif  // ZEL_CLI_STDERR_MESSAGES_H_
