#include "core/document/data_file.h"

#include <cstdio>
#include <memory>
#include <string>

#include "core/document/c_format.h"
#include "core/document/replacing_file.h"
#include "core/document/tokenizer.h"
#include "core/document/units.h"

namespace zel {
namespace {

struct FileCloser {
  void operator()(std::FILE* file) const { std::fclose(file); }
};
using FilePtr = std::unique_ptr<std::FILE, FileCloser>;

// One pass of the reader over an open file.
class DataFileReader {
 public:
  DataFileReader(CZELwDoc& doc, std::FILE* file, MessageSink& messages)
      : doc_(doc), file_(file), messages_(messages) {}

  int Read();

 private:
  // Reads one token; `at_end_` tells whether the input is exhausted.
  const std::string& Next() {
    at_end_ = ReadToken(file_.get(), token_) < 0 && std::feof(file_.get());
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
  int Fail(const char* text) {
    messages_.Show(text);
    return 0;
  }
  void ReadTitles(std::string& keyword);
  // Reads the points of one *DATA block into curve c; false after a format
  // error has been reported.
  bool ReadPoints(int c);

  CZELwDoc& doc_;
  FilePtr file_;
  MessageSink& messages_;
  std::string token_;
  bool at_end_ = false;
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
    if (!store.Append(2 * c, AtoF(token))) {
      messages_.Show(
          CFormat("Error : Too many points! A curve holds at most "
                  "%zu points.",
                  DataStore::kMaxItems));
      return false;
    }
    if (Next() != ",") {
      messages_.Show("Error : Wrong Format!");
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
    if (doc_.damping_flag != 0 && NextKeyword() == "DAMPING") {
      doc_.damping[c] = AtoF(NextField());
      doc_.curve_count = c + 1;
    }
    if (!ReadPoints(c)) return 0;
    keyword = NextWord();
  }

  doc_.loaded = 1;
  file_.reset();
  doc_.ApplySeriesStyles();
  if (doc_.damping_flag != 0) doc_.SetDampingLegend();
  doc_.UpdateAllViews();
  return 1;
}

}  // namespace

bool WriteDataFile(const CZELwDoc& doc, const std::string& path,
                   MessageSink& messages) {
  ReplacingFile file(path);
  if (!file.is_open()) {
    messages.Show(kFileNotFoundMessage);
    return false;
  }
  std::string out = "*ZELw\n";
  for (const auto& [keyword, text] :
       {std::pair{"*TITLE, ", &doc.title}, std::pair{"*TITLE, ", &doc.subtitle},
        std::pair{"*X-AXIS, ", &doc.AxisTitle(0)},
        std::pair{"*Y-AXIS, ", &doc.AxisTitle(1)}}) {
    out += ExpandPercentEscapes(keyword + *text + "\n");
  }
  out += "*UNIT&TYPE, " + doc.unit + ", " + doc.type + "\n";
  out += CFormat("*FLAGS, %d, %d\n", doc.tripartite, doc.damping_flag);
  bool ok = file.Write(out);

  const DataStore& store = doc.store();
  for (int c = 0; ok && c < doc.curve_count && c < kMaxCurves; ++c) {
    out = "*DATA\n";
    if (doc.damping_flag == 1) {
      out += CFormat("*DAMPING, %1.2f\n", doc.damping[c]);
    }
    for (int i = 0; ok && i < doc.point_count[c]; ++i) {
      const double y = store.Value(i, 2 * c + 1);
      out += FormatDataNumber(store.Value(i, 2 * c));
      out += y < 0 ? "\t," : "\t, ";
      out += FormatDataNumber(y);
      out += '\n';
      if (out.size() > (1 << 16)) {
        ok = file.Write(out);
        out.clear();
      }
    }
    ok = ok && file.Write(out);
  }
  ok = ok && file.Write("*ENDDATA");
  if (!(ok && file.Commit())) {
    messages.Show(kFileNotFoundMessage);
    return false;
  }
  return true;
}

int ReadDataFile(CZELwDoc& doc, std::FILE* file, MessageSink& messages) {
  if (file == nullptr) {
    messages.Show(kFileNotFoundMessage);
    return 0;
  }
  return DataFileReader(doc, file, messages).Read();
}

int ReadDataFile(CZELwDoc& doc, const std::string& path,
                 MessageSink& messages) {
  return ReadDataFile(doc, std::fopen(path.c_str(), "r"), messages);
}

}  // namespace zel
