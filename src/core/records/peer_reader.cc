// PEER NGA .AT2 records: four header lines (title; event, date, station,
// component; the quantity and unit; the count and step), then the values in
// E fields, five a line.
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

// The number after `key` and an "=" in `line` ("NPTS=   7999, DT=   .0050
// SEC"); false when the key or its number is missing.
bool KeyedNumber(std::string_view line, std::string_view key, double& value) {
  for (std::size_t at = FindNoCase(line, key); at != std::string_view::npos;
       at = FindNoCase(line, key, at + 1)) {
    const std::string_view rest = Trim(line.substr(at + key.size()));
    if (!rest.empty() && rest.front() == '=') {
      return LeadingNumber(rest.substr(1), value);
    }
  }
  return false;
}

// Line 4, "NPTS=   7999, DT=   .0050 SEC," or the older
// "4096    0.0100    NPTS, DT".
bool CountAndStep(std::string_view line, double& count, double& step) {
  if (KeyedNumber(line, "NPTS", count)) {
    if (!KeyedNumber(line, "DT", step)) step = -1.0;  // absent
    return true;
  }
  std::size_t end = 0;
  if (!LeadingNumber(line, count, &end)) return false;
  if (!LeadingNumber(line.substr(end), step)) step = -1.0;
  return true;
}

// Line 2, "Imperial Valley-02, 5/19/1940, El Centro Array #9, 180": the
// last part names the component, the one before it the station.
void Describe(std::string_view line, Record& record) {
  std::vector<std::string_view> parts;
  SplitFields(line, ",", parts);
  for (std::string_view& part : parts) part = Trim(part);
  if (parts.size() >= 3) {
    record.component = parts.back();
    record.station = parts[parts.size() - 2];
    parts.resize(parts.size() - 2);
  }
  for (std::string_view part : parts) {
    if (!record.event.empty()) record.event += ", ";
    record.event += part;
  }
}

}  // namespace

ReadResult ReadPeer(TextLines& lines, RecordBuilder& out) {
  std::string header[4];
  for (std::string& text : header) {
    if (!lines.Next()) {
      return out.EndedEarly(lines, "Header too short",
                            ": a PEER record has four header lines.");
    }
    text = lines.text();
  }
  Describe(header[1], out.record());
  // Line 3: "ACCELERATION TIME SERIES IN UNITS OF G".
  if (FindNoCase(header[2], "ACCEL") == std::string::npos) {
    return out.Refuse("Not an acceleration record", 3,
                      ": " + Collapse(header[2]));
  }
  AccelUnit unit = AccelUnit::kG;
  if (FindNoCase(header[2], "CM/S") != std::string::npos) {
    unit = AccelUnit::kGal;
  }
  double count = 0.0;
  double dt = 0.0;
  if (!CountAndStep(header[3], count, dt)) {
    return out.Refuse("Point count not found", 4, ": " + Collapse(header[3]));
  }
  if (dt == -1.0) {
    return out.Refuse("Time step not found", 4, ": " + Collapse(header[3]));
  }
  if (!out.SetTimeStep(dt, 4)) return ReadResult::kRefused;

  const double factor = GravitiesPer(unit);
  int last = 4;
  while (lines.Next()) {
    std::size_t taken = 0;
    if (!out.AddValuesOf(lines.text(), lines.number(), factor, taken)) {
      return ReadResult::kRefused;
    }
    if (taken > 0) last = lines.number();
  }
  const ReadResult problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  if (static_cast<double>(out.count()) != count) {
    return out.Refuse(
        "Counts disagree", 4,
        CFormat(": NPTS is %.0f, the data (to line %d) hold %zu values.", count,
                last, out.count()));
  }
  return out.Finish(last);
}

}  // namespace zel
