#include "core/document/c_format.h"

#include <locale.h>

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>

namespace zel {
namespace {

locale_t CLocale() {
  static const locale_t locale = newlocale(LC_ALL_MASK, "C", locale_t{});
  return locale;
}

// Switches the calling thread to the "C" locale for its lifetime.
class ScopedCLocale {
 public:
  ScopedCLocale() : previous_(uselocale(CLocale())) {}
  ~ScopedCLocale() { uselocale(previous_); }
  ScopedCLocale(const ScopedCLocale&) = delete;
  ScopedCLocale& operator=(const ScopedCLocale&) = delete;

 private:
  locale_t previous_;
};

bool IsFlagChar(char c) {
  return c == '-' || c == '+' || c == ' ' || c == '#' || c == '0' || c == '\'';
}
bool IsLengthChar(char c) {
  return c == 'h' || c == 'l' || c == 'L' || c == 'q' || c == 'j' || c == 'z' ||
         c == 't';
}

}  // namespace

std::string CFormat(const char* format, ...) {
  ScopedCLocale c_locale;
  va_list args;
  va_start(args, format);
  va_list copy;
  va_copy(copy, args);
  char small[128];
  const int needed = std::vsnprintf(small, sizeof small, format, args);
  va_end(args);
  std::string out;
  if (needed < 0) {
    va_end(copy);
    return out;
  }
  if (static_cast<size_t>(needed) < sizeof small) {
    out.assign(small, static_cast<size_t>(needed));
  } else {
    out.resize(static_cast<size_t>(needed) + 1);
    std::vsnprintf(out.data(), out.size(), format, copy);
    out.resize(static_cast<size_t>(needed));
  }
  va_end(copy);
  return out;
}

double AtoF(const char* text) { return AtoF(text, std::strlen(text)); }

double AtoF(const char* text, std::size_t length) {
  // Plain decimal numbers, nearly every number ZEL reads, go through
  // from_chars: like strtod it rounds correctly and reads the longest valid
  // prefix, so the value is the same. Everything else (hexadecimal, inf,
  // nan, values out of range, no number at all) is left to strtod.
  const char* p = text;
  while (*p == ' ' || (*p >= '\t' && *p <= '\r')) ++p;
  const char* number = *p == '+' ? p + 1 : p;  // from_chars takes no '+'
  const char* digits = number == p && *p == '-' ? p + 1 : number;
  const bool decimal = (*digits >= '0' && *digits <= '9') || *digits == '.';
  const bool hex = digits[0] == '0' && (digits[1] == 'x' || digits[1] == 'X');
  if (decimal && !hex) {
    double value;
    const auto result = std::from_chars(number, text + length, value);
    if (result.ec == std::errc()) return value;
  }
  return strtod_l(text, nullptr, CLocale());
}

void AppendDataNumber(std::string& out, double value) {
  if (!std::isfinite(value)) {
    out += CFormat("%2.5E", value);  // INF, -INF, NAN
    return;
  }
  // "%.5e" exactly, as to_chars promises, then the upper-case E and an
  // exponent of at least three digits.
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value,
                                    std::chars_format::scientific, 5);
  char* e = std::find(buffer, result.ptr, 'e');
  out.append(buffer, e);
  out += 'E';
  out += e[1];  // the exponent's sign
  const std::size_t digits = static_cast<std::size_t>(result.ptr - (e + 2));
  if (digits < 3) out.append(3 - digits, '0');
  out.append(e + 2, result.ptr);
}

std::string FormatDataNumber(double value) {
  std::string text;
  AppendDataNumber(text, value);
  return text;
}

std::string ExpandPercentEscapes(const std::string& format) {
  std::string out;
  out.reserve(format.size());
  size_t i = 0;
  while (i < format.size()) {
    const char c = format[i++];
    if (c != '%') {
      out.push_back(c);
      continue;
    }
    if (i < format.size() && format[i] == '%') {
      out.push_back('%');
      ++i;
      continue;
    }
    // A conversion with no argument to convert: flags, width, precision,
    // length and the conversion character are all dropped.
    while (i < format.size() && IsFlagChar(format[i])) ++i;
    while (i < format.size() &&
           (std::isdigit(static_cast<unsigned char>(format[i])) ||
            format[i] == '*' || format[i] == '.' || format[i] == '$')) {
      ++i;
    }
    while (i < format.size() && IsLengthChar(format[i])) ++i;
    if (i < format.size()) ++i;  // the conversion character itself
  }
  return out;
}

int TruncateToInt(double value) {
  if (std::isnan(value)) return 0;
  if (value >= static_cast<double>(std::numeric_limits<int>::max())) {
    return std::numeric_limits<int>::max();
  }
  if (value <= static_cast<double>(std::numeric_limits<int>::min())) {
    return std::numeric_limits<int>::min();
  }
  return static_cast<int>(value);
}

}  // namespace zel
