#include "core/records/record_detect.h"

#include <algorithm>
#include <vector>

#include "core/records/format_readers.h"
#include "core/records/record_text.h"

namespace zel {
namespace {

// Header lines a plain-text file may have before its numbers.
constexpr std::size_t kMaxPlainHeaderLines = 64;

std::vector<std::string_view> HeadLines(std::string_view head) {
  std::vector<std::string_view> lines;
  while (!head.empty()) {
    const std::size_t feed = head.find('\n');
    std::string_view line = head.substr(0, feed);
    while (!line.empty() && (line.back() == '\r' || line.back() == '\x1A')) {
      line.remove_suffix(1);
    }
    lines.push_back(line);
    if (feed == std::string_view::npos) break;
    head.remove_prefix(feed + 1);
  }
  return lines;
}

bool IsKeyLine(std::string_view line, std::string_view key) {
  if (!StartsWithNoCase(line, key)) return false;
  return Trim(line.substr(key.size())).substr(0, 1) == ":";
}

// "time, value" with numbers on both sides, the .dbs layout ("*" reads as 0
// there, so it may stand for the time).
bool IsDbsPair(std::string_view line) {
  const std::size_t comma = line.find(',');
  if (comma == std::string_view::npos ||
      line.find(',', comma + 1) != std::string_view::npos) {
    return false;
  }
  const std::string_view time = Trim(line.substr(0, comma));
  double value;
  return (time == "*" || ParseNumber(time, value)) &&
         ParseNumber(line.substr(comma + 1), value);
}

bool IsBlankOrComment(std::string_view line) {
  const std::string_view text = Trim(line);
  return text.empty() || text.substr(0, 2) == "**";
}

// The index of the first row of numbers within the header allowance, or
// npos.
std::size_t FirstNumberRow(const std::vector<std::string_view>& lines) {
  const std::size_t limit = std::min(lines.size(), kMaxPlainHeaderLines + 1);
  for (std::size_t i = 0; i < limit; ++i) {
    if (IsNumberRow(lines[i])) return i;
  }
  return std::string_view::npos;
}

}  // namespace

bool IsNumberRow(std::string_view line, std::size_t* count) {
  std::vector<std::string_view> fields;
  SplitFields(line, kPlainSeparators, fields);
  double value;
  for (std::string_view field : fields) {
    if (!ParseNumber(field, value)) return false;
  }
  if (count != nullptr) *count = fields.size();
  return !fields.empty();
}

Detection DetectRecordFormat(std::string_view head, RecordFormat& format,
                             int& line) {
  const std::size_t nul = head.find('\0');
  if (nul != std::string_view::npos) {
    line = 1 +
           static_cast<int>(std::count(head.begin(), head.begin() + nul, '\n'));
    return Detection::kNotText;
  }
  const std::vector<std::string_view> lines = HeadLines(head);
  const std::string_view first = lines.empty() ? "" : lines[0];
  if (FindNoCase(first, "(Format v") != std::string_view::npos &&
      FindNoCase(first, "text line") != std::string_view::npos) {
    format = RecordFormat::kCosmos;
  } else if (StartsWithNoCase(first, "Origin Time")) {
    format = RecordFormat::kKnet;
  } else if (lines.size() >= 4 &&
             FindNoCase(lines[3], "NPTS") != std::string_view::npos &&
             FindNoCase(lines[3], "DT") != std::string_view::npos) {
    format = RecordFormat::kPeer;
  } else if (std::any_of(lines.begin(), lines.end(), [](std::string_view l) {
               return IsKeyLine(l, "SAMPLING_INTERVAL_S");
             })) {
    format = RecordFormat::kEsm;
  } else if (FindNoCase(first, "accelerogram") != std::string_view::npos) {
    format = RecordFormat::kCsmip;
  } else {
    const auto data =
        std::find_if_not(lines.begin(), lines.end(), IsBlankOrComment);
    if (data == lines.end() || IsDbsPair(*data)) {
      format = RecordFormat::kDbs;
    } else if (FirstNumberRow(lines) != std::string_view::npos) {
      format = RecordFormat::kPlainText;
    } else {
      return Detection::kUnknown;
    }
  }
  return Detection::kKnown;
}

std::string UnknownFormatMessage(const std::string& file_name) {
  std::string text = "Error : Unknown record format! " + file_name +
                     " is none of the formats ZEL reads: ";
  const RecordFormat formats[] = {RecordFormat::kDbs,      RecordFormat::kPeer,
                                  RecordFormat::kKnet,     RecordFormat::kEsm,
                                  RecordFormat::kCosmos,   RecordFormat::kCsmip,
                                  RecordFormat::kPlainText};
  for (RecordFormat f : formats) {
    if (f != formats[0]) text += f == RecordFormat::kPlainText ? " and " : ", ";
    text += RecordFormatName(f);
  }
  return text + ".";
}

void PlainTextLayout(std::string_view head, RecordLayout& layout) {
  const std::vector<std::string_view> lines = HeadLines(head);
  const std::size_t row = FirstNumberRow(lines);
  std::size_t count = 0;
  if (row != std::string_view::npos) IsNumberRow(lines[row], &count);
  layout.columns.clear();
  // The header row: the last line with text before the numbers, split the
  // way that gives as many names as there are columns.
  std::size_t header = row == std::string_view::npos ? 0 : row;
  while (header > 0 && Trim(lines[header - 1]).empty()) --header;
  if (header > 0) {
    const std::string_view text = lines[header - 1];
    std::vector<std::string_view> names;
    for (std::string_view separators : {"\t,;", "  ", " \t,;"}) {
      if (separators == "  ") {
        // Names that hold single blanks, set apart by two or more.
        names.clear();
        std::size_t i = 0;
        const std::string_view trimmed = Trim(text);
        while (i < trimmed.size()) {
          std::size_t end = trimmed.find("  ", i);
          if (end == std::string_view::npos) end = trimmed.size();
          names.push_back(Trim(trimmed.substr(i, end - i)));
          i = trimmed.find_first_not_of(' ', end);
          if (i == std::string_view::npos) break;
        }
      } else {
        SplitFields(text, separators, names);
      }
      if (names.size() == count) break;
    }
    if (names.size() == count) {
      for (std::string_view name : names) {
        layout.columns.emplace_back(Trim(name));
      }
    }
  }
  if (layout.columns.empty()) {
    for (std::size_t i = 1; i <= count; ++i) {
      layout.columns.push_back("Column " + std::to_string(i));
    }
  }
  layout.defaults = WithDefaultColumns(ImportChoices(), count);
}

}  // namespace zel
