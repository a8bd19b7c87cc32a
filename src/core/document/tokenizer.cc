#include "core/document/tokenizer.h"

#include <algorithm>

namespace zel {
namespace {

bool IsBlank(int ch) {
  return ch == ' ' || ch == '\r' || ch == '\t' || ch == '\n';
}

bool IsPlain(char c) {
  return c != '*' && c != ',' && c != '\r' && c != '\n' && c != '\0';
}

}  // namespace

bool Tokenizer::Refill() {
  next_ = 0;
  end_ = file_.Read(buffer_.data(), buffer_.size());
  return end_ > 0;
}

int Tokenizer::ReadToken(std::string& token) {
  token.clear();
  too_long_ = false;
  int ch;
  do {
    ch = Get();
  } while (IsBlank(ch));
  if (ch == kEnd) return -1;

  while (ch == '*') {
    token_line_ = line_;
    const int next = Get();
    if (next != '*') {
      if (next != kEnd) Unget();
      token = "*";
      return 1;
    }
    // "**" starts a comment that runs to the end of the line. The character
    // after it is taken as it is, without skipping blanks.
    comment_.clear();
    for (ch = Get(); ch != '\n' && ch != kEnd; ch = Get()) {
      if (ch != '\r' && comment_.size() < kMaxCommentLength) {
        comment_.push_back(static_cast<char>(ch));
      }
    }
    if (ch == kEnd) return -1;
    ch = Get();
    if (ch == kEnd) return -1;
  }

  // A line feed taken after a comment has already moved the count on.
  token_line_ = ch == '\n' ? line_ - 1 : line_;
  if (ch == ',') {
    token = ",";
    return 1;
  }

  for (;;) {
    if (ch == kEnd) return -1;
    if (ch == '*' || ch == ',') {
      Unget();
      return 1;
    }
    if (ch == '\r' || ch == '\n') return 1;
    if (token.size() == kMaxTokenLength) {
      Unget();
      too_long_ = true;
      return -1;
    }
    token.push_back(static_cast<char>(ch));
    // The plain characters that follow go over in one piece; line feeds and
    // NUL bytes are left to Get, which counts them.
    const std::size_t limit =
        std::min(end_, next_ + (kMaxTokenLength - token.size()));
    std::size_t run = next_;
    while (run < limit && IsPlain(buffer_[run])) ++run;
    token.append(buffer_.data() + next_, run - next_);
    next_ = run;
    ch = Get();
  }
}

void TrimRight(std::string& text) {
  const std::size_t end = text.find_last_not_of(" \r\t\n");
  text.erase(end == std::string::npos ? 0 : end + 1);
}

void MakeUpper(std::string& text) {
  for (char& c : text) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  }
}

}  // namespace zel
