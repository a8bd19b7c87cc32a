#include "core/document/tokenizer.h"

namespace zel {
namespace {

bool IsBlank(int ch) {
  return ch == ' ' || ch == '\r' || ch == '\t' || ch == '\n';
}

}  // namespace

int ReadToken(std::FILE* file, std::string& token) {
  token.clear();
  int ch;
  do {
    ch = getc_unlocked(file);
  } while (IsBlank(ch));
  if (ch == EOF) return -1;

  while (ch == '*') {
    const int next = getc_unlocked(file);
    if (next != '*') {
      if (next != EOF) std::ungetc(next, file);
      token = "*";
      return 1;
    }
    // "**" starts a comment that runs to the end of the line. The character
    // after it is taken as it is, without skipping blanks.
    do {
      ch = getc_unlocked(file);
    } while (ch != '\n' && ch != EOF);
    if (ch == EOF) return -1;
    ch = getc_unlocked(file);
    if (ch == EOF) return -1;
  }

  if (ch == ',') {
    token = ",";
    return 1;
  }

  for (;;) {
    if (ch == EOF) return -1;
    if (ch == '*' || ch == ',') {
      std::ungetc(ch, file);
      return 1;
    }
    if (ch == '\r' || ch == '\n') return 1;
    if (token.size() == kMaxTokenLength) {
      std::ungetc(ch, file);
      return -1;
    }
    token.push_back(static_cast<char>(ch));
    ch = getc_unlocked(file);
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
