#include "core/records/record_text.h"

#include <algorithm>
#include <cstring>

#include "core/document/c_format.h"

namespace zel {
namespace {

bool IsBlank(char c) { return c == ' ' || c == '\t'; }
bool IsDigit(char c) { return c >= '0' && c <= '9'; }
char Lower(char c) { return c >= 'A' && c <= 'Z' ? c - 'A' + 'a' : c; }

// The length of the number at the start of `text` by the grammar of
// ParseNumber; 0 when none starts there.
std::size_t NumberLength(std::string_view text) {
  std::size_t i = 0;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0;
  while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && IsDigit(text[i])) ++i, ++digits;
  }
  if (digits == 0) return 0;
  if (i < text.size() && std::strchr("EeDd", text[i]) != nullptr) {
    std::size_t j = i + 1;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
    const std::size_t first = j;
    while (j < text.size() && IsDigit(text[j])) ++j;
    if (j > first) i = j;
  }
  return i;
}

double ConvertNumber(std::string_view text) {
  std::string copy(text);
  for (char& c : copy) {
    if (c == 'D' || c == 'd') c = 'E';
  }
  return AtoF(copy);
}

}  // namespace

bool TextLines::Refill() {
  next_ = 0;
  end_ = file_.Read(buffer_.data(), buffer_.size());
  return end_ > 0;
}

bool TextLines::Next() {
  if (problem_ != Problem::kNone) return false;
  line_.clear();
  bool any = false;
  for (;;) {
    if (next_ == end_ && !Refill()) break;
    any = true;
    const char* start = buffer_.data() + next_;
    const std::size_t available = end_ - next_;
    const void* feed = std::memchr(start, '\n', available);
    const std::size_t length =
        feed != nullptr ? static_cast<const char*>(feed) - start : available;
    line_.append(start, length);
    next_ += length + (feed != nullptr ? 1 : 0);
    if (line_.size() > kMaxRecordLineLength) {
      ++number_;
      problem_ = Problem::kTooLong;
      return false;
    }
    if (feed != nullptr) break;
  }
  if (!any) return false;
  ++number_;
  if (line_.find('\0') != std::string::npos) {
    problem_ = Problem::kNul;
    return false;
  }
  while (!line_.empty() && (line_.back() == '\r' || line_.back() == '\x1A')) {
    line_.pop_back();
  }
  return true;
}

std::string_view Trim(std::string_view text) {
  while (!text.empty() && IsBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string Collapse(std::string_view text) {
  std::string out;
  for (char c : Trim(text)) {
    if (IsBlank(c)) {
      if (out.back() != ' ') out.push_back(' ');
    } else {
      out.push_back(c);
    }
  }
  return out;
}

std::size_t FindNoCase(std::string_view text, std::string_view what,
                       std::size_t from) {
  if (what.size() > text.size()) return std::string_view::npos;
  for (std::size_t i = from; i + what.size() <= text.size(); ++i) {
    std::size_t k = 0;
    while (k < what.size() && Lower(text[i + k]) == Lower(what[k])) ++k;
    if (k == what.size()) return i;
  }
  return std::string_view::npos;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() &&
         FindNoCase(text.substr(0, prefix.size()), prefix) == 0;
}

bool ParseNumber(std::string_view text, double& value) {
  text = Trim(text);
  if (text.empty() || NumberLength(text) != text.size()) return false;
  value = ConvertNumber(text);
  return true;
}

bool LeadingNumber(std::string_view text, double& value, std::size_t* end) {
  std::size_t start = 0;
  while (start < text.size() && IsBlank(text[start])) ++start;
  const std::size_t length = NumberLength(text.substr(start));
  if (length == 0) return false;
  value = ConvertNumber(text.substr(start, length));
  if (end != nullptr) *end = start + length;
  return true;
}

void SplitFields(std::string_view text, std::string_view separators,
                 std::vector<std::string_view>& fields) {
  fields.clear();
  std::size_t i = 0;
  while (i < text.size()) {
    while (i < text.size() &&
           separators.find(text[i]) != std::string_view::npos)
      ++i;
    const std::size_t start = i;
    while (i < text.size() &&
           separators.find(text[i]) == std::string_view::npos)
      ++i;
    if (i > start) fields.push_back(text.substr(start, i - start));
  }
}

bool FindFortranFormat(std::string_view text, FortranFormat& format) {
  for (std::size_t open = text.find('('); open != std::string_view::npos;
       open = text.find('(', open + 1)) {
    std::size_t i = open + 1;
    int count = 0;
    while (i < text.size() && IsDigit(text[i]) && count < 1000) {
      count = count * 10 + (text[i++] - '0');
    }
    if (i == open + 1) count = 1;
    if (i >= text.size() || std::strchr("FfEeIiGgDd", text[i]) == nullptr) {
      continue;
    }
    ++i;
    int width = 0;
    const std::size_t first = i;
    while (i < text.size() && IsDigit(text[i]) && width < 1000) {
      width = width * 10 + (text[i++] - '0');
    }
    if (i == first || width == 0 || count == 0) continue;
    format = {count, width};
    return true;
  }
  return false;
}

std::string_view FixedField(std::string_view line, int index, int width) {
  const std::size_t start = static_cast<std::size_t>(index) * width;
  if (start >= line.size()) return {};
  return line.substr(start, static_cast<std::size_t>(width));
}

}  // namespace zel
