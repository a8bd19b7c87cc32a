#include "core/document/input_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <utility>

namespace zel {

InputFile::~InputFile() { Close(); }

InputFile::InputFile(InputFile&& other) noexcept
    : fd_(std::exchange(other.fd_, -1)),
      in_memory_(std::exchange(other.in_memory_, false)),
      bytes_(std::move(other.bytes_)),
      offset_(other.offset_),
      put_back_(std::move(other.put_back_)),
      put_back_offset_(other.put_back_offset_),
      name_(std::move(other.name_)),
      error_(other.error_) {}

InputFile& InputFile::operator=(InputFile&& other) noexcept {
  if (this != &other) {
    Close();
    fd_ = std::exchange(other.fd_, -1);
    in_memory_ = std::exchange(other.in_memory_, false);
    bytes_ = std::move(other.bytes_);
    offset_ = other.offset_;
    put_back_ = std::move(other.put_back_);
    put_back_offset_ = other.put_back_offset_;
    name_ = std::move(other.name_);
    error_ = other.error_;
  }
  return *this;
}

void InputFile::Close() {
  if (fd_ >= 0) ::close(fd_);
  fd_ = -1;
}

InputFile InputFile::Open(std::string path) {
  InputFile file;
  file.name_ = std::move(path);
  file.fd_ = ::open(file.name_.c_str(), O_RDONLY | O_CLOEXEC);
  if (file.fd_ < 0) {
    file.error_ = errno;
    return file;
  }
  struct stat status;
  if (::fstat(file.fd_, &status) != 0) {
    file.error_ = errno;
    file.Close();
  } else if (S_ISDIR(status.st_mode)) {
    file.error_ = EISDIR;
    file.Close();
  }
  return file;
}

InputFile InputFile::FromBytes(std::string bytes, std::string name) {
  InputFile file;
  file.in_memory_ = true;
  file.bytes_ = std::move(bytes);
  file.name_ = std::move(name);
  return file;
}

void InputFile::PutBack(std::string bytes) {
  put_back_ = std::move(bytes);
  put_back_offset_ = 0;
}

std::size_t InputFile::Read(char* buffer, std::size_t size) {
  if (put_back_offset_ < put_back_.size()) {
    const std::size_t n = std::min(size, put_back_.size() - put_back_offset_);
    std::memcpy(buffer, put_back_.data() + put_back_offset_, n);
    put_back_offset_ += n;
    return n;
  }
  if (in_memory_) {
    const std::size_t n = std::min(size, bytes_.size() - offset_);
    std::memcpy(buffer, bytes_.data() + offset_, n);
    offset_ += n;
    return n;
  }
  if (fd_ < 0) return 0;
  for (;;) {
    const ssize_t n = ::read(fd_, buffer, size);
    if (n >= 0) return static_cast<std::size_t>(n);
    if (errno != EINTR) {
      error_ = errno;
      return 0;
    }
  }
}

}  // namespace zel
