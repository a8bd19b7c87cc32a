// The text handling the record readers share: lines of a file, numbers as
// the formats write them (Fortran fields, exponents with "D"), fixed-width
// fields and Fortran format tokens.
#ifndef ZEL_CORE_RECORDS_RECORD_TEXT_H_
#define ZEL_CORE_RECORDS_RECORD_TEXT_H_

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/input_file.h"

namespace zel {

// The longest line a record file may have.
inline constexpr std::size_t kMaxRecordLineLength = 1 << 16;

// The lines of a file, one at a time, without their line ends ("\n" or
// "\r\n") and without the Ctrl-Z bytes some old files end with.
class TextLines {
 public:
  enum class Problem { kNone, kNul, kTooLong };

  explicit TextLines(InputFile& file) : file_(file) {}
  TextLines(const TextLines&) = delete;
  TextLines& operator=(const TextLines&) = delete;

  // Moves to the next line. False at the end of the file, or when the line
  // holds a NUL byte or is longer than kMaxRecordLineLength (problem()).
  bool Next();
  std::string_view text() const { return line_; }
  // The number of the current line, from 1.
  int number() const { return number_; }
  Problem problem() const { return problem_; }

 private:
  bool Refill();

  InputFile& file_;
  std::array<char, 1 << 16> buffer_;
  std::size_t next_ = 0;
  std::size_t end_ = 0;
  std::string line_;
  int number_ = 0;
  Problem problem_ = Problem::kNone;
};

// `text` without leading and trailing blanks and tabs.
std::string_view Trim(std::string_view text);
// `text` trimmed, with every run of blanks and tabs made one blank.
std::string Collapse(std::string_view text);
// Where `what` first occurs in `text`, ignoring ASCII case; npos if nowhere.
std::size_t FindNoCase(std::string_view text, std::string_view what,
                       std::size_t from = 0);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);

// Reads all of `text` (blanks around it allowed) as one number: an optional
// sign, digits with an optional point, an optional exponent written with E
// or D. Values beyond the double range become infinite. False, leaving
// `value` as it was, for anything else.
bool ParseNumber(std::string_view text, double& value);

// The number at the start of `text` (blanks first allowed), and where it
// ends; false when there is none.
bool LeadingNumber(std::string_view text, double& value,
                   std::size_t* end = nullptr);

// Splits `text` at runs of the characters of `separators`.
void SplitFields(std::string_view text, std::string_view separators,
                 std::vector<std::string_view>& fields);

// A Fortran format of numbers such as "(8F10.5)", "(1E15.6)" or "(10I8)":
// fields per line and the width of each.
struct FortranFormat {
  int per_line = 0;
  int width = 0;
};

// The first Fortran format token in `text`; false when there is none.
bool FindFortranFormat(std::string_view text, FortranFormat& format);

// Field `index` (from 0) of width `width` of a fixed-width line; fields that
// touch each other ("-999.00000-999.00000") are told apart by position.
// Empty past the end of the line.
std::string_view FixedField(std::string_view line, int index, int width);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_TEXT_H_
