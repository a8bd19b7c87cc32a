// ESM and ITACA ASCII records: "KEY: value" header lines, then the values,
// one a line. A value may hold colons itself (times of day), so a line is
// split at its first colon only.
#include <string>
#include <utility>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

struct HeaderValue {
  std::string value;
  int line = 0;
};

class Header {
 public:
  void Add(std::string_view key, std::string_view value, int line) {
    entries_.emplace_back(std::string(Trim(key)),
                          HeaderValue{std::string(Trim(value)), line});
  }
  // The value of `key`; nullptr when the header lacks it.
  const HeaderValue* Find(std::string_view key) const {
    for (const auto& [k, v] : entries_) {
      if (k.size() == key.size() && FindNoCase(k, key) == 0) return &v;
    }
    return nullptr;
  }
  std::string Text(std::string_view key) const {
    const HeaderValue* v = Find(key);
    return v == nullptr ? "" : v->value;
  }

 private:
  std::vector<std::pair<std::string, HeaderValue>> entries_;
};

// "2016-10-30" from "20161030", "20161030_064019.440" or
// "2016-10-30T06:40:19.440"; empty when the text holds no such date.
std::string DateOf(std::string_view text) {
  std::string digits;
  for (char c : text) {
    if (c >= '0' && c <= '9') {
      digits.push_back(c);
    } else if (c != '-' && c != '/') {
      break;
    }
  }
  if (digits.size() != 8) return "";
  return digits.substr(0, 4) + "-" + digits.substr(4, 2) + "-" +
         digits.substr(6, 2);
}

void Describe(const Header& header, Record& record) {
  record.event = header.Text("EVENT_NAME");
  std::string date = DateOf(header.Text("EVENT_DATE_YYYYMMDD"));
  if (date.empty()) {
    date = DateOf(header.Text("DATE_TIME_FIRST_SAMPLE_YYYYMMDD_HHMMSS"));
  }
  if (!date.empty()) {
    record.event += record.event.empty() ? date : " " + date;
  }
  const std::string network = header.Text("NETWORK");
  record.station = header.Text("STATION_CODE");
  if (!network.empty() && !record.station.empty()) {
    record.station = network + "." + record.station;
  }
  record.component = header.Text("STREAM");
}

}  // namespace

ReadResult ReadEsm(TextLines& lines, RecordBuilder& out) {
  Header header;
  bool in_data = false;
  while (!in_data && lines.Next()) {
    const std::string_view line = lines.text();
    const std::size_t colon = line.find(':');
    if (colon != std::string_view::npos) {
      header.Add(line.substr(0, colon), line.substr(colon + 1), lines.number());
    } else if (!Trim(line).empty()) {
      in_data = true;
    }
  }
  const int data_line = lines.number();
  ReadResult problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  Describe(header, out.record());

  const HeaderValue* type = header.Find("DATA_TYPE");
  if (type != nullptr &&
      FindNoCase(type->value, "ACCELERATION") == std::string::npos) {
    return out.Refuse("Not an acceleration record", type->line,
                      ": DATA_TYPE is " + type->value + ".");
  }
  const HeaderValue* step = header.Find("SAMPLING_INTERVAL_S");
  double dt = 0.0;
  if (step == nullptr || !ParseNumber(step->value, dt)) {
    return out.Refuse("Time step not found",
                      step == nullptr ? data_line : step->line,
                      ": SAMPLING_INTERVAL_S is needed.");
  }
  if (!out.SetTimeStep(dt, step->line)) return ReadResult::kRefused;
  const HeaderValue* units = header.Find("UNITS");
  AccelUnit unit;
  if (units == nullptr || !AccelUnitOfText(units->value, unit)) {
    return out.Refuse(
        "Unit not understood", units == nullptr ? data_line : units->line,
        ": UNITS is to be cm/s^2, m/s^2 or g" +
            (units == nullptr ? std::string(".")
                              : ", not \"" + units->value + "\"."));
  }
  const HeaderValue* ndata = header.Find("NDATA");
  double count = 0.0;
  if (ndata != nullptr && !ParseNumber(ndata->value, count)) {
    return out.Refuse("Point count not understood", ndata->line,
                      ": NDATA is \"" + ndata->value + "\".");
  }

  const double factor = GravitiesPer(unit);
  int last = data_line;
  bool more = in_data;
  while (more) {
    std::size_t taken = 0;
    if (!out.AddValuesOf(lines.text(), lines.number(), factor, taken)) {
      return ReadResult::kRefused;
    }
    if (taken > 0) last = lines.number();
    more = lines.Next();
  }
  problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  if (ndata != nullptr && static_cast<double>(out.count()) != count) {
    return out.Refuse(
        "Counts disagree", ndata->line,
        CFormat(": NDATA is %s, the data (to line %d) hold %zu values.",
                ndata->value.c_str(), last, out.count()));
  }
  return out.Finish(last);
}

}  // namespace zel
