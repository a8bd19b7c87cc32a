#include "core/document/c_format.h"

#include <locale.h>

#include <cctype>
#include <cmath>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
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

double AtoF(const char* text) { return strtod_l(text, nullptr, CLocale()); }

std::string FormatDataNumber(double value) {
  std::string text = CFormat("%2.5E", value);
  const size_t e = text.find('E');
  if (e == std::string::npos || e + 1 >= text.size()) return text;  // NAN, INF
  const size_t digits_at = e + 2;  // after the exponent's sign
  const size_t digit_count = text.size() - digits_at;
  if (digit_count < 3) text.insert(digits_at, 3 - digit_count, '0');
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
