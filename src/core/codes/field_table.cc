#include "core/codes/field_table.h"

namespace zel {

std::string JoinListText(const std::vector<double>& values) {
  std::string text;
  for (const double value : values) {
    if (!text.empty()) text += ',';
    text += DisplayText(value);
  }
  return text;
}

std::vector<double> SplitListText(std::string_view text) {
  std::vector<double> values;
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    values.push_back(AtoF(std::string(text.substr(0, comma))));
    if (comma == std::string_view::npos) break;
    text.remove_prefix(comma + 1);
  }
  return values;
}

}  // namespace zel
