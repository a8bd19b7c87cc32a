// The one channel through which the core reports the system's message-box
// texts. The GUI shows each text modally; tests and the command line collect
// them in order.
#ifndef ZEL_CORE_DOCUMENT_MESSAGES_H_
#define ZEL_CORE_DOCUMENT_MESSAGES_H_

#include <string>
#include <string_view>
#include <vector>

namespace zel {

// Shown whenever a file cannot be opened, read or written.
inline constexpr char kFileNotFoundMessage[] = "ERROR! File Not Found!";

class MessageSink {
 public:
  virtual ~MessageSink() = default;
  // Shows one message and returns once the user has acknowledged it.
  virtual void Show(std::string_view text) = 0;
  // A file that could not be opened, read or written: `path` and the
  // system's error number. The program shows "ERROR! File Not Found!" as it
  // always has; the command line adds the path and the system's reason.
  virtual void ShowFileError(std::string_view path, int error_number) {
    static_cast<void>(path);
    static_cast<void>(error_number);
    Show(kFileNotFoundMessage);
  }
};

// Keeps every message in the order shown.
class MessageLog : public MessageSink {
 public:
  void Show(std::string_view text) override { texts_.emplace_back(text); }
  const std::vector<std::string>& texts() const { return texts_; }
  void Clear() { texts_.clear(); }

 private:
  std::vector<std::string> texts_;
};

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_MESSAGES_H_
