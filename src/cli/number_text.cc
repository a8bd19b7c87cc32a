#include "cli/number_text.h"

#include <charconv>
#include <system_error>

namespace zel::cli {

bool IsNumberText(const std::string& text) {
  const char* first = text.data();
  const char* last = first + text.size();
  if (first != last && *first == '+') ++first;
  double value;
  const auto [end, error] = std::from_chars(first, last, value);
  return error == std::errc() && end == last && first != last;
}

}  // namespace zel::cli
