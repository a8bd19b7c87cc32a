#include "core/document/data_file.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/c_format.h"
#include "core/document/replacing_file.h"
#include "core/document/tokenizer.h"
#include "core/document/units.h"

namespace zel {
namespace {

bool IsBlankOrTab(char c) { return c == ' ' || c == '\t'; }

// The parts of `text` between commas.
std::vector<std::string_view> CommaParts(std::string_view text) {
  std::vector<std::string_view> parts;
  for (;;) {
    const std::size_t comma = text.find(',');
    parts.push_back(text.substr(0, comma));
    if (comma == std::string_view::npos) return parts;
    text.remove_prefix(comma + 1);
  }
}

// Where the reader's token of a part begins: after its leading blanks.
std::size_t TokenStart(std::string_view part) {
  std::size_t start = 0;
  while (start < part.size() && IsBlankOrTab(part[start])) ++start;
  return start;
}

// One pass of the reader over an open file.
class DataFileReader {
 public:
  DataFileReader(CZELwDoc& doc, InputFile& file, MessageSink& messages)
      : doc_(doc), file_(file), tokens_(file), messages_(messages) {}

  int Read();

 private:
  // Reads one token; `at_end_` tells whether the input is exhausted.
  const std::string& Next() {
    at_end_ = tokens_.ReadToken(token_) < 0 && !tokens_.too_long();
    if (tokens_.too_long() && too_long_line_ == 0) {
      too_long_line_ = tokens_.line();
    }
    return token_;
  }
  // Reads the "*" and the keyword after it, trimmed and upper-cased.
  std::string NextKeyword() {
    Next();
    return NextWord();
  }
  // Reads a field: the comma, then the value.
  std::string NextField() {
    Next();
    return Next();
  }
  std::string NextWord() {
    std::string word = Next();
    TrimRight(word);
    MakeUpper(word);
    return word;
  }
  std::string NextFieldWord() {
    Next();
    return NextWord();
  }
  // Shows `text`, or, when a token was too long to read (which misaligns
  // everything after it), says so instead.
  int Fail(const char* text) {
    if (too_long_line_ != 0) return LineTooLong();
    messages_.Show(text);
    return 0;
  }
  int LineTooLong() {
    messages_.Show(CFormat(
        "Error : Line too long! %s, line %d: a text or number may have at "
        "most %zu characters.",
        file_.name().c_str(), too_long_line_, kMaxTokenLength));
    return 0;
  }
  void ReadTitles(std::string& keyword);
  // Reads the points of one *DATA block into curve c; false after a format
  // error has been reported.
  bool ReadPoints(int c);

  CZELwDoc& doc_;
  InputFile& file_;
  Tokenizer tokens_;
  MessageSink& messages_;
  std::string token_;
  bool at_end_ = false;
  int too_long_line_ = 0;  // where a token was cut at the length limit
};

void DataFileReader::ReadTitles(std::string& keyword) {
  int stored = 0;
  while (keyword == "TITLE" && !at_end_) {
    Next();  // the comma
    std::string text = Next();
    TrimRight(text);
    if (text == "*") {
      // An empty title: the next line's keyword follows at once.
      keyword = Next();
      continue;
    }
    std::string title = text;
    while (Next() == "," && !at_end_) {
      title += ", ";
      title += Next();
    }
    if (stored == 0) {
      doc_.title = title;
    } else if (stored == 1) {
      doc_.subtitle = title;
    }
    if (stored < 2) ++stored;
    keyword = NextWord();
  }
}

bool DataFileReader::ReadPoints(int c) {
  DataStore& store = doc_.store();
  std::string token = Next();
  while (token != "*" && !at_end_) {
    if (too_long_line_ != 0) return LineTooLong() != 0;
    if (!store.Append(2 * c, AtoF(token))) {
      messages_.Show(
          CFormat("Error : Too many points! A curve holds at most "
                  "%zu points.",
                  DataStore::kMaxItems));
      return false;
    }
    if (Next() != ",") {
      Fail("Error : Wrong Format!");
      return false;
    }
    const double y = AtoF(Next());
    if (y < 0) {
      doc_.negative_y_seen = 1;
      if (doc_.log_y) {
        messages_.Show("error: Negative Value Cannot Be Log-Scaled!!!");
        doc_.log_y = 0;
      }
    }
    store.Append(2 * c + 1, y);
    token = Next();
    if (AtoF(token) < 0) {
      doc_.negative_x_seen = 1;
      if (doc_.log_x) {
        messages_.Show("error : Negative Value Cannot Be Log-Scaled");
        doc_.log_x = 0;
      }
    }
  }
  return true;
}

int DataFileReader::Read() {
  doc_.loaded = 0;
  int group = -2;

  if (NextKeyword() != "ZELW") return Fail("error: Invalid Data Format!!!");

  std::string keyword = NextKeyword();
  ReadTitles(keyword);
  if (too_long_line_ != 0) return LineTooLong();
  doc_.RefreshChartTitle();
  doc_.SetTitle(doc_.title);

  if (keyword == "X-AXIS") {
    doc_.SetAxisTitle(0, NextField());
    keyword = NextKeyword();
  }
  if (keyword == "Y-AXIS") {
    doc_.SetAxisTitle(1, NextField());
    keyword = NextKeyword();
  }
  if (keyword == "UNIT&TYPE") {
    doc_.unit = NextFieldWord();
    if (doc_.unit != "GRAV") {
      doc_.length_unit = 1;
      doc_.spectrum_kind = kLengthUnitFile;
      const int index = UnitIndexOfWord(doc_.unit);
      if (index < 0) return Fail("Error : Wrong UNIT!");
      doc_.unit_index = index;
    }
    doc_.type = NextFieldWord();
    keyword = NextKeyword();
  }
  if (keyword != "FLAGS") return Fail("Error : Wrong Format! FLAGS not found");

  doc_.tripartite = TruncateToInt(AtoF(NextField()));
  if (doc_.tripartite != 0) doc_.log_x = doc_.log_y = 1;
  doc_.damping_flag = TruncateToInt(AtoF(NextField()));
  keyword = NextKeyword();

  while (keyword == "DATA" && !at_end_) {
    group += 2;
    const int c = group / 2;
    if (c >= kMaxCurves) {
      return Fail("Error : Too many curves! A document holds at most 6.");
    }
    tokens_.ClearComment();
    if (doc_.damping_flag != 0 && NextKeyword() == "DAMPING") {
      if (tokens_.comment().starts_with(kLegendComment)) {
        std::string legend =
            tokens_.comment().substr(std::string_view(kLegendComment).size());
        TrimRight(legend);
        doc_.curve_legend[c] = legend;
      }
      doc_.damping[c] = AtoF(NextField());
      doc_.curve_count = c + 1;
    }
    if (!ReadPoints(c)) return 0;
    keyword = NextWord();
  }
  if (too_long_line_ != 0) return LineTooLong();

  doc_.loaded = 1;
  doc_.ApplySeriesStyles();
  if (doc_.damping_flag != 0) doc_.SetDampingLegend();
  doc_.UpdateAllViews();
  return 1;
}

}  // namespace

std::string WrittenTitle(const std::string& title, bool axis) {
  std::string text = ExpandPercentEscapes(title);
  for (char& c : text) {
    if (c == '*' || c == '\r' || c == '\n') c = ' ';
    if (axis && c == ',') c = ';';
  }
  std::string out;
  for (std::string_view part : CommaParts(text)) {
    const std::size_t start = TokenStart(part);
    if (start == part.size()) continue;  // a comma with nothing after it
    if (!out.empty()) out += ',';
    if (part.size() - start <= kMaxTokenLength) {
      out += part;
      continue;
    }
    std::size_t cut = start + kMaxTokenLength - 3;
    while (cut > start &&
           (static_cast<unsigned char>(part[cut]) & 0xC0) == 0x80) {
      --cut;  // not inside a UTF-8 character
    }
    out.append(part.substr(0, cut));
    out += "...";
  }
  return out;
}

bool TitleReadsBack(std::string_view title) {
  if (title.find_first_of("*\r\n") != std::string_view::npos) return false;
  for (std::string_view part : CommaParts(title)) {
    if (part.size() - TokenStart(part) > kMaxTokenLength) return false;
  }
  return true;
}

bool WriteDataFile(const CZELwDoc& doc, const std::string& path,
                   MessageSink& messages) {
  std::size_t points = 0;
  for (int c = 0; c < doc.curve_count && c < kMaxCurves; ++c) {
    points += static_cast<std::size_t>(std::max(doc.point_count[c], 0));
  }
  std::string out;
  out.reserve(1024 + points * 30);
  out += "*ZELw\n";
  out += "*TITLE, " + WrittenTitle(doc.title) + "\n";
  out += "*TITLE, " + WrittenTitle(doc.subtitle) + "\n";
  out += "*X-AXIS, " + WrittenTitle(doc.AxisTitle(0), true) + "\n";
  out += "*Y-AXIS, " + WrittenTitle(doc.AxisTitle(1), true) + "\n";
  out += "*UNIT&TYPE, " + doc.unit + ", " + doc.type + "\n";
  out += CFormat("*FLAGS, %d, %d\n", doc.tripartite, doc.damping_flag);

  const DataStore& store = doc.store();
  for (int c = 0; c < doc.curve_count && c < kMaxCurves; ++c) {
    out += "*DATA\n";
    if (doc.damping_flag == 1) {
      if (!doc.curve_legend[c].empty()) {
        std::string legend = doc.curve_legend[c];
        for (char& ch : legend) {
          if (ch == '\r' || ch == '\n') ch = ' ';
        }
        out += "**" + std::string(kLegendComment) + legend + "\n";
      }
      out += CFormat("*DAMPING, %1.2f\n", doc.damping[c]);
    }
    for (int i = 0; i < doc.point_count[c]; ++i) {
      const double y = store.Value(i, 2 * c + 1);
      AppendDataNumber(out, store.Value(i, 2 * c));
      out += y < 0 ? "\t," : "\t, ";
      AppendDataNumber(out, y);
      out += '\n';
    }
  }
  out += "*ENDDATA";

  return WriteTextFile(path, out, messages);
}

int ReadDataFile(CZELwDoc& doc, InputFile file, MessageSink& messages) {
  if (!file.is_open()) {
    messages.ShowFileError(file.name(), file.error());
    return 0;
  }
  return DataFileReader(doc, file, messages).Read();
}

int ReadDataFile(CZELwDoc& doc, const std::string& path,
                 MessageSink& messages) {
  return ReadDataFile(doc, InputFile::Open(path), messages);
}

}  // namespace zel
