// Number formatting and parsing with exactly the C library's printf and atof
// semantics, always in the "C" locale: a German desktop must never turn a
// decimal point into a comma in a saved file or a displayed value.
#ifndef ZEL_CORE_DOCUMENT_C_FORMAT_H_
#define ZEL_CORE_DOCUMENT_C_FORMAT_H_

#include <cstddef>
#include <string>

namespace zel {

// printf into a std::string, in the "C" locale.
std::string CFormat(const char* format, ...)
    __attribute__((format(printf, 1, 2)));

// atof in the "C" locale: leading blanks skipped, the longest valid prefix
// read, 0 when nothing can be read.
double AtoF(const char* text);
// The same for a text of known length (ending in a NUL, as a std::string's).
double AtoF(const char* text, std::size_t length);
inline double AtoF(const std::string& text) {
  return AtoF(text.c_str(), text.size());
}

// The data file's number layout "%2.5E" with the exponent written with at
// least three digits, as in 1.00000E-002.
std::string FormatDataNumber(double value);
// Appends FormatDataNumber(value) to `out`.
void AppendDataNumber(std::string& out, double value);

// Interprets `format` as printf would with no arguments, safely: "%%" gives
// "%", every other conversion gives nothing. Titles pass through this when a
// data file is written.
std::string ExpandPercentEscapes(const std::string& format);

// Truncates towards zero like a C cast, but saturates instead of invoking
// undefined behaviour: NaN gives 0, values beyond the int range give its ends.
int TruncateToInt(double value);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_C_FORMAT_H_
