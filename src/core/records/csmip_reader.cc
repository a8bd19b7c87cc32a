// CSMIP / DMG volume files: V1 ("Uncorrected accelerogram") and V2
// ("Corrected accelerogram"), several channels one after the other. Each
// channel's text header is followed by numeric headers and by data blocks,
// each announced by a line such as
//   7500 points of accel data equally spaced at  .010 sec, in cm/sec2. (8f10.6)
// (V2: acceleration, velocity, displacement) or
//   ... points at 200 pts/sec in units of g. Format: (8f9.6)
// (V1). Fields touch each other, so values are read by width; older files
// give no format and mean eight fields of ten. Only the acceleration block
// is a record.
#include <algorithm>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

constexpr FortranFormat kOldFormat{8, 10};
// Lines of a channel's text header kept for its description.
constexpr std::size_t kTextLines = 40;

enum class Block { kNone, kAcceleration, kOther };

Block BlockOf(std::string_view line) {
  if (FindNoCase(line, "points of accel") != std::string_view::npos) {
    return Block::kAcceleration;
  }
  if (FindNoCase(line, "points of veloc") != std::string_view::npos ||
      FindNoCase(line, "points of displ") != std::string_view::npos) {
    return Block::kOther;
  }
  if (FindNoCase(line, "points") != std::string_view::npos &&
      FindNoCase(line, "pts/sec") != std::string_view::npos) {
    return Block::kAcceleration;  // V1
  }
  return Block::kNone;
}

// The number after the last `marker` before `before`.
bool NumberAfter(std::string_view line, std::string_view marker,
                 std::size_t before, double& value) {
  std::size_t found = std::string_view::npos;
  for (std::size_t at = FindNoCase(line, marker);
       at != std::string_view::npos && at < before;
       at = FindNoCase(line, marker, at + 1)) {
    found = at;
  }
  return found != std::string_view::npos &&
         LeadingNumber(line.substr(found + marker.size()), value);
}

// "spaced at  .010 sec" or "at 200 pts/sec".
bool StepOf(std::string_view line, double& dt) {
  if (NumberAfter(line, "spaced at", line.size(), dt)) return true;
  double rate;
  const std::size_t rate_at = FindNoCase(line, "pts/sec");
  if (rate_at == std::string_view::npos ||
      !NumberAfter(line, " at ", rate_at, rate)) {
    return false;
  }
  dt = 1.0 / rate;
  return true;
}

// "in cm/sec2." or "in units of g.".
bool UnitOf(std::string_view line, AccelUnit& unit) {
  std::size_t at = FindNoCase(line, "units of ");
  std::size_t skip = 9;
  if (at == std::string_view::npos) {
    at = FindNoCase(line, " in ");
    skip = 4;
  }
  if (at == std::string_view::npos) return false;
  std::string_view words = line.substr(at + skip);
  std::size_t end = words.size();
  for (std::string_view stop : {". ", ",", "(", " format"}) {
    end = std::min(end, FindNoCase(words, stop));
  }
  words = Trim(words.substr(0, end));
  while (!words.empty() && words.back() == '.') words.remove_suffix(1);
  return AccelUnitOfText(words, unit);
}

class CsmipReader {
 public:
  CsmipReader(TextLines& lines, RecordBuilder& out)
      : lines_(lines), out_(out) {}

  ReadResult Read();

 private:
  ReadResult ReadBlock(Block block);
  std::string ChannelName() const;

  TextLines& lines_;
  RecordBuilder& out_;
  std::vector<std::string> text_;  // the current channel's text header
};

std::string CsmipReader::ChannelName() const {
  for (const std::string& text : text_) {
    const std::size_t at = FindNoCase(text, "Chan");
    if (at != std::string::npos) return Collapse(text.substr(at));
  }
  return "Channel " + std::to_string(out_.channels().size() + 1);
}

ReadResult CsmipReader::ReadBlock(Block block) {
  const int line = lines_.number();
  const std::string text(lines_.text());
  double points = 0.0;
  if (!LeadingPointCount(text, points)) {
    return out_.Refuse("Point count not found", line, ": " + Collapse(text));
  }
  FortranFormat format = kOldFormat;
  FindFortranFormat(text, format);
  bool chosen = false;
  double factor = 1.0;
  if (block == Block::kAcceleration) {
    chosen = out_.AddDescribedChannel(ChannelName(), text_, 1, 2);
  }
  if (chosen) {
    double dt;
    if (!StepOf(text, dt)) {
      return out_.Refuse("Time step not found", line, ": " + Collapse(text));
    }
    if (!out_.SetTimeStep(dt, line)) return ReadResult::kRefused;
    AccelUnit unit;
    if (!UnitOf(text, unit)) {
      return out_.Refuse("Unit not understood", line, ": " + Collapse(text));
    }
    factor = GravitiesPer(unit);
  }
  return ReadBlockValues(lines_, out_, points, format, chosen, factor);
}

ReadResult CsmipReader::Read() {
  int last = 0;
  while (lines_.Next()) {
    const std::string_view text = lines_.text();
    if (FindNoCase(text, "accelerogram") != std::string_view::npos) {
      text_.assign(1, std::string(text));  // a channel begins
      continue;
    }
    const Block block = BlockOf(text);
    if (block == Block::kNone) {
      if (text_.size() < kTextLines) text_.emplace_back(text);
      continue;
    }
    const ReadResult result = ReadBlock(block);
    if (result != ReadResult::kRead) return result;
    last = lines_.number();
  }
  return out_.FinishChannels(lines_, last,
                             ": the file announces no acceleration block.");
}

}  // namespace

ReadResult ReadCsmip(TextLines& lines, RecordBuilder& out) {
  return CsmipReader(lines, out).Read();
}

}  // namespace zel
