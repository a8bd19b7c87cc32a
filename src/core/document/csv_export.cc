#include "core/document/csv_export.h"

#include <algorithm>
#include <charconv>
#include <vector>

#include "core/document/c_format.h"
#include "core/document/replacing_file.h"

namespace zel {

std::string CsvField(std::string_view text) {
  std::string out = "\"";
  for (char c : text) {
    if (c == '"') out += '"';
    out += c;
  }
  return out + '"';
}

void AppendCsvNumber(std::string& out, double value) {
  char buffer[32];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value);
  out.append(buffer, result.ptr);
}

std::string CurvesToCsv(const CZELwDoc& doc) {
  std::vector<int> curves;
  std::size_t rows = 0;
  for (int c = 0; c < kMaxCurves; ++c) {
    if (doc.StoredPoints(c) == 0) continue;
    curves.push_back(c);
    rows = std::max(rows, doc.StoredPoints(c));
  }

  std::string out;
  for (int c : curves) {
    std::string y_name = doc.title.empty()
                             ? doc.AxisTitle(1)
                             : doc.title + ": " + doc.AxisTitle(1);
    if (doc.damping_flag != 0) {
      y_name += CFormat(" (damping %g)", doc.damping[c]);
    }
    if (c != curves.front()) out += ',';
    out += CsvField(doc.AxisTitle(0)) + ',' + CsvField(y_name);
  }
  out += '\n';

  const DataStore& store = doc.store();
  for (std::size_t i = 0; i < rows; ++i) {
    for (int c : curves) {
      if (c != curves.front()) out += ',';
      if (i < doc.StoredPoints(c)) {
        AppendCsvNumber(out, store.Value(i, 2 * c));
        out += ',';
        AppendCsvNumber(out, store.Value(i, 2 * c + 1));
      } else {
        out += ',';
      }
    }
    out += '\n';
  }
  return out;
}

bool WriteCsvFile(const CZELwDoc& doc, const std::string& path,
                  MessageSink& messages) {
  return WriteTextFile(path, CurvesToCsv(doc), messages);
}

}  // namespace zel
