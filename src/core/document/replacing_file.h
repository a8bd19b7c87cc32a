// A file written beside its target and renamed over it only when complete:
// a full disk or a crash during a save never destroys the previous file.
#ifndef ZEL_CORE_DOCUMENT_REPLACING_FILE_H_
#define ZEL_CORE_DOCUMENT_REPLACING_FILE_H_

#include <cstdio>
#include <string>
#include <string_view>

namespace zel {

class ReplacingFile {
 public:
  explicit ReplacingFile(std::string path);
  // Removes the unfinished file when Commit was not reached.
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  // False when the file could not be opened.
  bool is_open() const { return file_ != nullptr; }
  // Appends `text`; false once any write has failed.
  bool Write(std::string_view text);
  // Closes the file and puts it in place of the target; false, leaving the
  // target as it was, when any step failed.
  bool Commit();

 private:
  std::string path_;
  std::string temp_path_;
  std::FILE* file_ = nullptr;
  bool ok_ = true;
};

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_REPLACING_FILE_H_
