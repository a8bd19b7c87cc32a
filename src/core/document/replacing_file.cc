#include "core/document/replacing_file.h"

#include <utility>

namespace zel {

ReplacingFile::ReplacingFile(std::string path)
    : path_(std::move(path)),
      temp_path_(path_ + ".zel.tmp"),
      file_(std::fopen(temp_path_.c_str(), "w")) {}

ReplacingFile::~ReplacingFile() {
  if (file_ != nullptr) {
    std::fclose(file_);
    std::remove(temp_path_.c_str());
  }
}

bool ReplacingFile::Write(std::string_view text) {
  ok_ = ok_ && file_ != nullptr &&
        std::fwrite(text.data(), 1, text.size(), file_) == text.size();
  return ok_;
}

bool ReplacingFile::Commit() {
  if (file_ == nullptr) return false;
  ok_ = std::fflush(file_) == 0 && ok_;
  ok_ = std::fclose(file_) == 0 && ok_;
  file_ = nullptr;
  if (!ok_ || std::rename(temp_path_.c_str(), path_.c_str()) != 0) {
    std::remove(temp_path_.c_str());
    return false;
  }
  return true;
}

}  // namespace zel
