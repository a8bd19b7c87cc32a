// Helpers for tests that read and write files.
#ifndef ZEL_TESTS_CORE_DOCUMENT_TEST_FILES_H_
#define ZEL_TESTS_CORE_DOCUMENT_TEST_FILES_H_

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "core/document/input_file.h"
#include "core/document/messages.h"

namespace zel::testing {

// A file reading `bytes`, named "test.dbs" in messages.
inline InputFile OpenBytes(std::string bytes) {
  return InputFile::FromBytes(std::move(bytes), "test.dbs");
}

// What a reader returned and the messages it showed, in order.
struct ReadOutcome {
  int result;
  std::vector<std::string> messages;
};

// Runs `reader(file, messages)` over a file of `bytes`.
template <class Reader>
ReadOutcome ReadBytesWith(const std::string& bytes, Reader reader) {
  MessageLog log;
  const int result = reader(OpenBytes(bytes), log);
  return {result, log.texts()};
}

inline std::string ReadAll(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void WriteAll(const std::filesystem::path& path,
                     const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// A fresh folder under the system's temporary folder, removed afterwards.
class TempDir {
 public:
  TempDir() {
    std::string pattern =
        (std::filesystem::temp_directory_path() / "zel-test-XXXXXX").string();
    path_ = mkdtemp(pattern.data());
  }
  ~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;
  std::filesystem::path operator/(const std::string& name) const {
    return path_ / name;
  }
  const std::filesystem::path& path() const { return path_; }

 private:
  std::filesystem::path path_;
};

}  // namespace zel::testing

#endif  // ZEL_TESTS_CORE_DOCUMENT_TEST_FILES_H_
