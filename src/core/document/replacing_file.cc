#include "core/document/replacing_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <random>

namespace zel {
namespace {

std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

// Follows symbolic links to the file they finally name, which need not exist
// yet. Returns 0, or the system's error number.
int FollowLinks(std::string& path) {
  for (int hops = 0; hops < 40; ++hops) {
    struct stat status;
    if (::lstat(path.c_str(), &status) != 0 || !S_ISLNK(status.st_mode)) {
      return 0;
    }
    std::string link(PATH_MAX, '\0');
    const ssize_t n = ::readlink(path.c_str(), link.data(), link.size());
    if (n < 0) return errno;
    link.resize(static_cast<std::size_t>(n));
    if (link.empty() || link.front() != '/') {
      const std::size_t slash = path.find_last_of('/');
      if (slash != std::string::npos) link = path.substr(0, slash + 1) + link;
    }
    path = link;
  }
  return ELOOP;
}

// A short name, so that targets of the longest name the system allows can
// still be saved; hidden, as it only lives for the length of a save.
std::string TempName() {
  static constexpr char kDigits[] = "0123456789abcdefghijklmnopqrstuvwxyz";
  std::random_device random;
  std::string name = ".zel-";
  for (int i = 0; i < 10; ++i) name += kDigits[random() % 36];
  return name;
}

}  // namespace

ReplacingFile::ReplacingFile(const std::string& path) : target_(path) {
  struct stat status;
  const bool exists = ::stat(path.c_str(), &status) == 0;
  if (exists && S_ISDIR(status.st_mode)) {
    Fail(EISDIR);
    return;
  }
  if (exists && !S_ISREG(status.st_mode)) {
    fd_ = ::open(path.c_str(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    if (fd_ < 0) Fail(errno);
    return;
  }
  if (exists && ::access(path.c_str(), W_OK) != 0) {
    Fail(errno);
    return;
  }
  // Even the superuser leaves alone a file that nobody may write to.
  if (exists && (status.st_mode & 0222) == 0) {
    Fail(EACCES);
    return;
  }
  if (const int error_number = FollowLinks(target_)) {
    Fail(error_number);
    return;
  }
  const std::string folder = FolderOf(target_);
  for (int attempt = 0; attempt < 100 && fd_ < 0; ++attempt) {
    temp_ = folder + "/" + TempName();
    fd_ = ::open(temp_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (fd_ < 0 && errno != EEXIST) break;
  }
  if (fd_ < 0) {
    Fail(errno);
    temp_.clear();
    return;
  }
  if (exists) {
    // The saved file keeps the old one's permissions and, where the system
    // lets us, its group.
    ::fchmod(fd_, status.st_mode & 07777);
    if (::fchown(fd_, static_cast<uid_t>(-1), status.st_gid) != 0) {
      // Not a member of that group: the file keeps ours.
    }
  }
}

ReplacingFile::~ReplacingFile() {
  if (fd_ >= 0) ::close(fd_);
  if (!temp_.empty()) ::unlink(temp_.c_str());
}

void ReplacingFile::Fail(int error_number) {
  if (error_ == 0) error_ = error_number != 0 ? error_number : EIO;
}

bool ReplacingFile::Write(std::string_view text) {
  if (fd_ < 0 || error_ != 0) return false;
  while (!text.empty()) {
    const ssize_t n = ::write(fd_, text.data(), text.size());
    if (n < 0) {
      if (errno == EINTR) continue;
      Fail(errno);
      return false;
    }
    text.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

bool ReplacingFile::Commit() {
  if (fd_ < 0 || error_ != 0) return false;
  if (!temp_.empty() && ::fsync(fd_) != 0) Fail(errno);
  if (::close(fd_) != 0) Fail(errno);
  fd_ = -1;
  if (temp_.empty()) return error_ == 0;
  if (error_ == 0 && ::rename(temp_.c_str(), target_.c_str()) != 0) {
    Fail(errno);
  }
  if (error_ != 0) {
    ::unlink(temp_.c_str());
    temp_.clear();
    return false;
  }
  temp_.clear();
  // The new name reaches the disk with the folder.
  const int folder =
      ::open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (folder >= 0) {
    ::fsync(folder);
    ::close(folder);
  }
  return true;
}

bool WriteTextFile(const std::string& path, std::string_view text,
                   MessageSink& messages) {
  ReplacingFile file(path);
  if (file.Write(text) && file.Commit()) return true;
  messages.ShowFileError(path, file.error());
  return false;
}

}  // namespace zel
