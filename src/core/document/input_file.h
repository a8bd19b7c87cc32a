// A file read by the data-file and record readers. It is closed when it goes
// out of scope, and keeps the name it was opened by for messages that name
// the file.
#ifndef ZEL_CORE_DOCUMENT_INPUT_FILE_H_
#define ZEL_CORE_DOCUMENT_INPUT_FILE_H_

#include <cstddef>
#include <string>

namespace zel {

class InputFile {
 public:
  InputFile() = default;
  ~InputFile();
  InputFile(InputFile&& other) noexcept;
  InputFile& operator=(InputFile&& other) noexcept;
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;

  // Opens `path` for reading. A folder does not open (EISDIR).
  static InputFile Open(std::string path);
  // Reads `bytes` from memory under the name `name`.
  static InputFile FromBytes(std::string bytes, std::string name = "");

  bool is_open() const { return fd_ >= 0 || in_memory_; }
  const std::string& name() const { return name_; }
  // The system's error number of a failed Open or read; 0 when none.
  int error() const { return error_; }

  // Reads up to `size` bytes into `buffer`; 0 at the end of the file or
  // after a read error.
  std::size_t Read(char* buffer, std::size_t size);
  // Makes `bytes` the next ones read, ahead of the rest of the file: a
  // reader that looked at the beginning of a file hands it on unread. At
  // most once a file.
  void PutBack(std::string bytes);

 private:
  void Close();

  int fd_ = -1;
  bool in_memory_ = false;
  std::string bytes_;
  std::size_t offset_ = 0;
  std::string put_back_;
  std::size_t put_back_offset_ = 0;
  std::string name_;
  int error_ = 0;
};

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_INPUT_FILE_H_
