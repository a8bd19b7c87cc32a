// The tokenizer shared by the .zel data file and the .dbs record files.
#ifndef ZEL_CORE_DOCUMENT_TOKENIZER_H_
#define ZEL_CORE_DOCUMENT_TOKENIZER_H_

#include <cstdio>
#include <string>

namespace zel {

inline constexpr std::size_t kMaxTokenLength = 120;

// Reads the next token: "*", ",", or the text up to the next "*", ",",
// carriage return or line feed (leading blanks skipped, inner and trailing
// ones kept). Lines starting with "**" are comments. Returns 1 with the token
// in `token`, or -1 at end of input, or after kMaxTokenLength characters
// without a terminator (`token` then holds what was collected, and the rest
// stays in the stream for the next call).
int ReadToken(std::FILE* file, std::string& token);

// Removes trailing blanks, carriage returns, tabs and line feeds.
void TrimRight(std::string& text);

// Upper-cases every character in place (ASCII, locale-free).
void MakeUpper(std::string& text);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_TOKENIZER_H_
