// COSMOS strong-motion records, format v01.20: per block, text lines
// (their count on line 1), an integer and a real header whose first lines
// give the count and Fortran format of their values, comment lines, then
// the data line giving the count, unit and format of the values. A file may
// hold several blocks (channels, or a channel's velocity and displacement
// after its acceleration); each acceleration block is a channel.
#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

// Integer header values, from 1: the units code of the data.
constexpr std::size_t kUnitsCodeValue = 3;
// Real header values, from 1: the time between samples in milliseconds.
constexpr std::size_t kIntervalValue = 62;
// The format's mark for an unknown value.
constexpr double kUnknown = -999.0;
// Header values a block may announce.
constexpr double kMaxHeaderValues = 10000.0;
constexpr double kMaxTextLines = 1000.0;

// COSMOS units codes of accelerations; false for codes of other
// quantities (1 s, 5 cm/s, 6 cm, 50 counts, 51 volts, ...).
bool UnitOfCode(double code, AccelUnit& unit) {
  switch (static_cast<int>(code)) {
    case 2:
      unit = AccelUnit::kG;
      return true;
    case 4:
    case 10:
      unit = AccelUnit::kGal;
      return true;
    case 7:
      unit = AccelUnit::kInch;
      return true;
    case 11:
      unit = AccelUnit::kMilliG;
      return true;
    case 12:
      unit = AccelUnit::kMicroG;
      return true;
    default:
      return false;
  }
}

class CosmosReader {
 public:
  CosmosReader(TextLines& lines, RecordBuilder& out)
      : lines_(lines), out_(out) {}

  ReadResult Read();

 private:
  // The next line; false after the refusal of a missing one.
  bool Next(const char* expected);
  // A header section: its announcing line and its values.
  bool ReadHeaderValues(const char* what, std::vector<double>& values,
                        int& line);
  ReadResult ReadBlock();
  // The block's unit: the data line's words, its code, or the integer
  // header's code.
  bool Unit(std::string_view data_line, const std::vector<double>& integers,
            AccelUnit& unit);
  // The time step in seconds; false after a message.
  bool TimeStep(const std::vector<double>& reals, int reals_line,
                std::string_view data_line, double count, double& dt);

  TextLines& lines_;
  RecordBuilder& out_;
  ReadResult result_ = ReadResult::kRead;
  std::vector<std::string> text_;
};

bool CosmosReader::Next(const char* expected) {
  if (lines_.Next()) return true;
  result_ =
      out_.EndedEarly(lines_, "Header too short",
                      std::string(": the file ends before ") + expected + ".");
  return false;
}

bool CosmosReader::ReadHeaderValues(const char* what,
                                    std::vector<double>& values, int& line) {
  if (!Next(what)) return false;
  line = lines_.number();
  const std::string_view text = lines_.text();
  double count = 0.0;
  FortranFormat format;
  if (FindNoCase(text, "values follow") == std::string_view::npos ||
      !LeadingNumber(text, count) || !FindFortranFormat(text, format) ||
      count < 0.0 || count > kMaxHeaderValues) {
    result_ = out_.Refuse("Header not understood", line,
                          std::string(": expected the ") + what + " line.");
    return false;
  }
  values.clear();
  result_ = ReadFixedValues(lines_, out_, static_cast<std::size_t>(count),
                            format, [&](double value, int) {
                              values.push_back(value);
                              return true;
                            });
  return result_ == ReadResult::kRead;
}

bool CosmosReader::Unit(std::string_view data_line,
                        const std::vector<double>& integers, AccelUnit& unit) {
  const std::size_t at = FindNoCase(data_line, "units=");
  if (at != std::string_view::npos) {
    std::string_view words = data_line.substr(at + 6);
    words = words.substr(0, words.find_first_of("(,"));
    if (AccelUnitOfText(words, unit)) return true;
    const std::size_t open = data_line.find('(', at);
    double code;
    if (open != std::string_view::npos &&
        LeadingNumber(data_line.substr(open + 1), code) &&
        UnitOfCode(code, unit)) {
      return true;
    }
  }
  return integers.size() >= kUnitsCodeValue &&
         UnitOfCode(integers[kUnitsCodeValue - 1], unit);
}

bool CosmosReader::TimeStep(const std::vector<double>& reals, int reals_line,
                            std::string_view data_line, double count,
                            double& dt) {
  if (reals.size() >= kIntervalValue && reals[kIntervalValue - 1] != kUnknown) {
    dt = reals[kIntervalValue - 1] / 1000.0;
  } else {
    // Some files give the rate in a text or comment line only.
    dt = 0.0;
    for (const std::string& text : text_) {
      const std::size_t at = FindNoCase(text, "samples/sec");
      if (at == std::string::npos) continue;
      std::size_t start = at;
      while (start > 0 && text[start - 1] == ' ') --start;
      while (start > 0 &&
             std::string_view("0123456789.").find(text[start - 1]) !=
                 std::string_view::npos) {
        --start;
      }
      double rate;
      if (LeadingNumber(std::string_view(text).substr(start, at - start),
                        rate) &&
          rate > 0.0) {
        dt = 1.0 / rate;
      }
    }
    if (dt == 0.0) {
      out_.Refuse("Time step not found", reals_line,
                  CFormat(": real header value %zu (the sampling interval in "
                          "ms) is not given.",
                          kIntervalValue));
      return false;
    }
  }
  if (!out_.SetTimeStep(dt, reals_line)) return false;
  // "approx  40 secs": a step read from the wrong place shows here.
  const std::size_t at = FindNoCase(data_line, "approx");
  double seconds;
  if (at != std::string_view::npos &&
      LeadingNumber(data_line.substr(at + 6), seconds) && seconds > 0.0) {
    const double length = count * dt;
    if (std::fabs(length - seconds) > std::max(1.5, 0.1 * seconds)) {
      out_.Refuse("Time step disagrees with the record length", reals_line,
                  CFormat(": %g points at %g s last %g s, not about %g s.",
                          count, dt, length, seconds));
      return false;
    }
  }
  return true;
}

ReadResult CosmosReader::ReadBlock() {
  const int first_line = lines_.number();
  const std::string_view first = lines_.text();
  const std::size_t with = FindNoCase(first, " with ");
  double count = 0.0;
  if (FindNoCase(first, "(Format v") == std::string_view::npos ||
      with == std::string_view::npos ||
      !LeadingNumber(first.substr(with + 6), count) || count < 1.0 ||
      count > kMaxTextLines) {
    return out_.Refuse("Header not understood", first_line,
                       ": expected \"(Format v01.20 with 13 text lines)\".");
  }
  text_.assign(1, std::string(first));
  for (int i = 1; i < static_cast<int>(count); ++i) {
    if (!Next("the text lines")) return result_;
    text_.emplace_back(lines_.text());
  }
  std::vector<double> integers;
  std::vector<double> reals;
  int integers_line = 0;
  int reals_line = 0;
  if (!ReadHeaderValues("integer header", integers, integers_line) ||
      !ReadHeaderValues("real header", reals, reals_line)) {
    return result_;
  }
  // "  4 Comment line(s) follow, each starting with a "|":"
  if (!Next("the comment count")) return result_;
  double comments = 0.0;
  if (FindNoCase(lines_.text(), "comment") == std::string_view::npos ||
      !LeadingNumber(lines_.text(), comments) || comments < 0.0) {
    return out_.Refuse("Header not understood", lines_.number(),
                       ": expected the comment line count.");
  }
  for (double i = 0; i < comments; ++i) {
    if (!Next("the comment lines")) return result_;
    text_.emplace_back(lines_.text());
  }
  // "  8000 acceleration pts, approx  40 secs, units=cm/sec2 (04),
  // Format=(8F10.5)"
  if (!Next("the data line")) return result_;
  const int data_line = lines_.number();
  const std::string data_text(lines_.text());
  double points = 0.0;
  FortranFormat format;
  if (!LeadingPointCount(data_text, points) ||
      !FindFortranFormat(data_text, format)) {
    return out_.Refuse("Data line not understood", data_line,
                       ": expected as \"8000 acceleration pts, ..., "
                       "Format=(8F10.5)\".");
  }
  const bool acceleration = FindNoCase(data_text, "accel") != std::string::npos;
  bool chosen = false;
  double factor = 1.0;
  if (acceleration) {
    std::string name = "Channel " + std::to_string(out_.channels().size() + 1);
    for (const std::string& text : text_) {
      if (StartsWithNoCase(Trim(text), "Sta Chan")) {
        name = Collapse(text.substr(0, text.find('(')));
        break;
      }
    }
    chosen = out_.AddDescribedChannel(name, text_, 1, 4);
  }
  if (chosen) {
    AccelUnit unit;
    if (!Unit(data_text, integers, unit)) {
      return out_.Refuse("Unit not understood", data_line,
                         ": not a unit of acceleration.");
    }
    factor = GravitiesPer(unit);
    double dt = 0.0;
    if (!TimeStep(reals, reals_line, data_text, points, dt)) {
      return ReadResult::kRefused;
    }
  }
  return ReadBlockValues(lines_, out_, points, format, chosen, factor);
}

ReadResult CosmosReader::Read() {
  int last = 0;
  while (lines_.Next()) {
    const std::string_view text = Trim(lines_.text());
    // Blocks end with "End-of-data for Chan  1 acceleration".
    if (text.empty() || StartsWithNoCase(text, "End-of-data")) continue;
    const ReadResult block = ReadBlock();
    if (block != ReadResult::kRead) return block;
    last = lines_.number();
  }
  return out_.FinishChannels(lines_, last,
                             ": the file holds no acceleration block.");
}

}  // namespace

ReadResult ReadCosmos(TextLines& lines, RecordBuilder& out) {
  return CosmosReader(lines, out).Read();
}

}  // namespace zel
