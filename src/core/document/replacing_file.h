// Saving a file so that nothing is ever lost or mixed: the new content goes
// to a temporary file of its own beside the target, reaches the disk, and
// only then takes the target's place in one step. A failed save leaves the
// old file as it was; two programs saving to one name leave one complete
// file.
#ifndef ZEL_CORE_DOCUMENT_REPLACING_FILE_H_
#define ZEL_CORE_DOCUMENT_REPLACING_FILE_H_

#include <string>
#include <string_view>

#include "core/document/messages.h"

namespace zel {

class ReplacingFile {
 public:
  // Prepares to replace `path`. A symbolic link is followed: its final
  // target is replaced and the link stays. A target that is read-only (no
  // write permission, or no write bit at all) or a folder is refused. A
  // target that is not a regular file (a device, a pipe) is written
  // directly: there is nothing in it to keep.
  explicit ReplacingFile(const std::string& path);
  // Removes the unfinished file when Commit was not reached.
  ~ReplacingFile();
  ReplacingFile(const ReplacingFile&) = delete;
  ReplacingFile& operator=(const ReplacingFile&) = delete;

  // False when the file could not be created.
  bool is_open() const { return fd_ >= 0; }
  // The system's error number of the first step that failed; 0 while none.
  int error() const { return error_; }
  // Appends `text`; false once any step has failed.
  bool Write(std::string_view text);
  // Flushes the file to the disk and puts it in place of the target; false,
  // leaving the target as it was, when any step failed.
  bool Commit();

 private:
  void Fail(int error_number);

  std::string target_;  // the file replaced: the path, links followed
  std::string temp_;    // empty when the target is written directly
  int fd_ = -1;
  int error_ = 0;
};

// Replaces `path` with `text` through a ReplacingFile; on failure shows the
// path and the system's reason and leaves the old file as it was.
bool WriteTextFile(const std::string& path, std::string_view text,
                   MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_REPLACING_FILE_H_
