// The tokenizer shared by the .zel data file and the .dbs record files.
#ifndef ZEL_CORE_DOCUMENT_TOKENIZER_H_
#define ZEL_CORE_DOCUMENT_TOKENIZER_H_

#include <array>
#include <cstddef>
#include <string>

#include "core/document/input_file.h"

namespace zel {

inline constexpr std::size_t kMaxTokenLength = 120;

// Reads the tokens of one file, counting its lines.
class Tokenizer {
 public:
  explicit Tokenizer(InputFile& file) : file_(file) {}
  Tokenizer(const Tokenizer&) = delete;
  Tokenizer& operator=(const Tokenizer&) = delete;

  // Reads the next token: "*", ",", or the text up to the next "*", ",",
  // carriage return or line feed (leading blanks skipped, inner and trailing
  // ones kept). Lines starting with "**" are comments. Returns 1 with the
  // token in `token`, or -1 at the end of the input, or after
  // kMaxTokenLength characters without a terminator (`token` then holds what
  // was collected, too_long() is true, and the rest stays for the next
  // call).
  int ReadToken(std::string& token);

  // Whether the last -1 came from the length limit, not from the end.
  bool too_long() const { return too_long_; }
  // The line (from 1) on which the last token began.
  int line() const { return token_line_; }
  // The line of the first NUL byte read, 0 while none has been: text files
  // hold none, UTF-16 and binary files do.
  int nul_line() const { return nul_line_; }
  // The text after "**" of the last comment line passed over since
  // ClearComment, without its line end; at most kMaxCommentLength
  // characters are kept.
  const std::string& comment() const { return comment_; }
  void ClearComment() { comment_.clear(); }
  static constexpr std::size_t kMaxCommentLength = 256;

 private:
  static constexpr int kEnd = -1;

  int Get() {
    if (next_ == end_ && !Refill()) return kEnd;
    const unsigned char c = static_cast<unsigned char>(buffer_[next_++]);
    if (c == '\n') {
      ++line_;
    } else if (c == '\0' && nul_line_ == 0) {
      nul_line_ = line_;
    }
    return c;
  }
  // Pushes back the character just read (never a line feed).
  void Unget() { --next_; }
  bool Refill();

  InputFile& file_;
  std::array<char, 1 << 16> buffer_;
  std::size_t next_ = 0;
  std::size_t end_ = 0;
  int line_ = 1;
  int token_line_ = 1;
  int nul_line_ = 0;
  bool too_long_ = false;
  std::string comment_;
};

// Removes trailing blanks, carriage returns, tabs and line feeds.
void TrimRight(std::string& text);

// Upper-cases every character in place (ASCII, locale-free).
void MakeUpper(std::string& text);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_TOKENIZER_H_
