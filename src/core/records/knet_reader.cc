// NIED K-NET and KiK-net ASCII records: seventeen header lines read by
// position (the labels differ between the networks and over the years),
// then integer counts, eight a line. Counts become gal through the scale
// factor, and the mean of the whole record is taken off.
#include <cmath>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

constexpr int kHeaderLines = 17;
// The value of a header line starts in column 19.
constexpr std::size_t kValueColumn = 18;
// Header lines, from 1.
constexpr int kOriginTimeLine = 1;
constexpr int kMagnitudeLine = 5;
constexpr int kStationLine = 6;
constexpr int kSamplingLine = 11;
constexpr int kDirectionLine = 13;
constexpr int kScaleLine = 14;

// "7845(gal)/8223790": gal per count.
bool ScaleFactor(std::string_view text, double& factor) {
  double numerator;
  double denominator;
  std::size_t end = 0;
  if (!LeadingNumber(text, numerator, &end)) return false;
  std::string_view rest = Trim(text.substr(end));
  if (!StartsWithNoCase(rest, "(gal)")) return false;
  rest = Trim(rest.substr(5));
  if (rest.empty() || rest.front() != '/') return false;
  if (!ParseNumber(rest.substr(1), denominator)) return false;
  factor = numerator / denominator;
  return std::isfinite(factor) && factor > 0.0;
}

// KiK-net: channels 1 to 3 are the borehole sensor, 4 to 6 the surface one
// (files .NS1/.EW1/.UD1 and .NS2/.EW2/.UD2); the direction line gives
// either the channel or the direction itself.
void Describe(const std::string (&header)[kHeaderLines], Record& record) {
  record.event = header[kOriginTimeLine - 1];
  if (!header[kMagnitudeLine - 1].empty()) {
    record.event += " M" + header[kMagnitudeLine - 1];
  }
  record.station = header[kStationLine - 1];
  const std::string& direction = header[kDirectionLine - 1];
  double channel = 0.0;
  int sensor = 0;  // 1 borehole, 2 surface
  if (ParseNumber(direction, channel) && channel >= 1 && channel <= 6) {
    static const char* const kDirections[] = {"N-S", "E-W", "U-D"};
    const int c = static_cast<int>(channel) - 1;
    record.component = kDirections[c % 3];
    sensor = c < 3 ? 1 : 2;
  } else {
    record.component = direction;
    // The file's extension, as NIED names them.
    const std::string& name = record.name;
    const std::size_t dot = name.rfind('.');
    const std::string ext =
        dot == std::string::npos ? "" : name.substr(dot + 1);
    if (ext.size() == 3 && (ext[2] == '1' || ext[2] == '2')) {
      for (const char* d : {"NS", "EW", "UD"}) {
        if (StartsWithNoCase(ext, d)) sensor = ext[2] - '0';
      }
    }
  }
  if (sensor != 0) record.sensor = sensor == 1 ? "borehole" : "surface";
}

}  // namespace

ReadResult ReadKnet(TextLines& lines, RecordBuilder& out) {
  std::string header[kHeaderLines];
  for (std::string& text : header) {
    if (!lines.Next()) {
      return out.EndedEarly(lines, "Header too short",
                            ": a K-NET record has 17 header lines.");
    }
    const std::string_view line = lines.text();
    text = line.size() > kValueColumn ? Collapse(line.substr(kValueColumn))
                                      : std::string();
  }
  Describe(header, out.record());
  // "100Hz"
  double frequency = 0.0;
  if (!LeadingNumber(header[kSamplingLine - 1], frequency)) {
    return out.Refuse("Sampling frequency not found", kSamplingLine,
                      ": \"" + header[kSamplingLine - 1] + "\".");
  }
  if (!(frequency > 0.0)) {
    return out.Refuse("Time step must be above 0", kSamplingLine,
                      CFormat(": the sampling frequency is %g Hz.", frequency));
  }
  if (!out.SetTimeStep(1.0 / frequency, kSamplingLine)) {
    return ReadResult::kRefused;
  }
  double gal_per_count = 0.0;
  if (!ScaleFactor(header[kScaleLine - 1], gal_per_count)) {
    return out.Refuse(
        "Scale factor not understood", kScaleLine,
        ": \"" + header[kScaleLine - 1] + "\"; expected as 7845(gal)/8223790.");
  }

  // The mean is that of the whole record, also past the capacity.
  std::vector<double> counts;
  counts.reserve(kRecordCapacity);
  long double sum = 0.0L;
  std::size_t total = 0;
  std::vector<std::string_view> fields;
  int last = kHeaderLines;
  while (lines.Next()) {
    SplitFields(lines.text(), " \t", fields);
    for (std::string_view field : fields) {
      double count;
      if (!ParseNumber(field, count) || !std::isfinite(count)) {
        return out.Refuse("Value is not a number", lines.number(),
                          ": \"" + std::string(field) + "\".");
      }
      sum += count;
      ++total;
      if (counts.size() < static_cast<std::size_t>(kRecordCapacity)) {
        counts.push_back(count);
      }
    }
    if (!fields.empty()) last = lines.number();
  }
  const ReadResult problem = out.LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  const double mean =
      total == 0 ? 0.0
                 : static_cast<double>(sum / static_cast<long double>(total));
  for (double count : counts) {
    if (!out.Add((count - mean) * gal_per_count / kStandardGravityGal, last)) {
      return ReadResult::kRefused;
    }
  }
  out.CountBeyondCapacity(total - counts.size());
  return out.Finish(last);
}

}  // namespace zel
