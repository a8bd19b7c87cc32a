#include "core/records/record_reader.h"

#include <cmath>
#include <string>
#include <utility>

#include "core/document/c_format.h"
#include "core/document/file_name.h"
#include "core/records/format_readers.h"
#include "core/records/record_detect.h"

namespace zel {

const char* const kRecordCutMessage =
    "Warning : The record has more than 50000 points; only the first 50000 "
    "are used!";

namespace {

bool IsDbsName(const std::string& path) {
  return path.size() >= 4 &&
         FindNoCase(std::string_view(path).substr(path.size() - 4), ".dbs") ==
             0;
}

// Reads the first bytes of `file` for detection, without a UTF-8
// byte-order mark. False on a read error.
bool ReadHead(InputFile& file, std::string& head) {
  head.resize(kDetectionBytes);
  std::size_t size = 0;
  while (size < head.size()) {
    const std::size_t n = file.Read(head.data() + size, head.size() - size);
    if (n == 0) break;
    size += n;
  }
  head.resize(size);
  if (head.compare(0, 3, "\xEF\xBB\xBF") == 0) head.erase(0, 3);
  return file.error() == 0;
}

ReadResult ReadFormat(RecordFormat format, InputFile& file,
                      RecordBuilder& out) {
  if (format == RecordFormat::kDbs) return ReadDbs(file, out);
  TextLines lines(file);
  switch (format) {
    case RecordFormat::kPeer:
      return ReadPeer(lines, out);
    case RecordFormat::kKnet:
      return ReadKnet(lines, out);
    case RecordFormat::kEsm:
      return ReadEsm(lines, out);
    case RecordFormat::kCosmos:
      return ReadCosmos(lines, out);
    case RecordFormat::kCsmip:
      return ReadCsmip(lines, out);
    default:
      return ReadPlainText(lines, out);
  }
}

// Reads the head of `file` into `head` and tells its format from it. kRead
// with `format` set, or the failure or refusal after its message.
ReadResult DetectFormat(InputFile& file, RecordBuilder& out, std::string& head,
                        RecordFormat& format) {
  if (!ReadHead(file, head)) {
    out.messages().Show("an Error occurred while reading data !");
    return ReadResult::kFailed;
  }
  int line = 0;
  Detection detection = DetectRecordFormat(head, format, line);
  // A file named .dbs that carries none of the other formats' headers is
  // read as the catalog's records always were, failures and all.
  if (IsDbsName(file.name()) && (detection == Detection::kUnknown ||
                                 (detection == Detection::kKnown &&
                                  format == RecordFormat::kPlainText))) {
    detection = Detection::kKnown;
    format = RecordFormat::kDbs;
  }
  switch (detection) {
    case Detection::kNotText:
      return out.RefuseNotText(line);
    case Detection::kUnknown:
      out.messages().Show(UnknownFormatMessage(out.file_name()));
      return ReadResult::kRefused;
    case Detection::kKnown:
      break;
  }
  return ReadResult::kRead;
}

// Reads `file`, whose `head` DetectFormat took, as `format` into `out`.
ReadResult ReadDetected(InputFile& file, RecordFormat format, std::string head,
                        RecordBuilder& out) {
  out.record().format = format;
  out.record().name = FileNameOf(file.name());
  file.PutBack(std::move(head));
  const ReadResult result = ReadFormat(format, file, out);
  if (result == ReadResult::kRead && file.error() != 0) {
    out.messages().Show("an Error occurred while reading data !");
    return ReadResult::kFailed;
  }
  return result;
}

}  // namespace

ReadResult RecordBuilder::Refuse(std::string_view what, int line,
                                 std::string_view detail) {
  messages_.Show(CFormat("Error : %.*s! %s, line %d%.*s",
                         static_cast<int>(what.size()), what.data(),
                         file_name_.c_str(), line,
                         static_cast<int>(detail.size()), detail.data()));
  return ReadResult::kRefused;
}

ReadResult RecordBuilder::RefuseNotText(int line) {
  return Refuse("Not a text file", line,
                " holds a NUL byte (UTF-16 or binary?).");
}

ReadResult RecordBuilder::LineProblem(const TextLines& lines) {
  switch (lines.problem()) {
    case TextLines::Problem::kNul:
      return RefuseNotText(lines.number());
    case TextLines::Problem::kTooLong:
      return Refuse("Line too long", lines.number(),
                    CFormat(": a line may have at most %zu characters.",
                            kMaxRecordLineLength));
    case TextLines::Problem::kNone:
      break;
  }
  return ReadResult::kRead;
}

ReadResult RecordBuilder::EndedEarly(const TextLines& lines,
                                     std::string_view what,
                                     std::string_view detail) {
  const ReadResult problem = LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  return Refuse(what, lines.number(), detail);
}

bool RecordBuilder::SetTimeStep(double seconds, int line) {
  if (!(seconds > 0.0) || !std::isfinite(seconds)) {
    Refuse("Time step must be above 0", line,
           CFormat(": %g s is given.", seconds));
    return false;
  }
  step_ = seconds * reading_.scales.time;
  if (!(step_ > 0.0) || !std::isfinite(step_)) {
    Refuse("Time step must be above 0", line,
           CFormat(": %g s times the time scale %g gives %g s.", seconds,
                   reading_.scales.time, step_));
    return false;
  }
  return true;
}

bool RecordBuilder::CheckTime(double time, int line) {
  if (std::isfinite(time)) return true;
  Refuse("Time is not a finite number", line, ".");
  return false;
}

bool RecordBuilder::CheckTimeFollows(double time, double before, int line) {
  if (time > before) return true;
  Refuse("Times must increase", line,
         CFormat(": %g s follows %g s.", time, before));
  return false;
}

bool RecordBuilder::ScaleValue(double g, int line, double& scaled) {
  scaled = g * reading_.scales.amplitude;
  if (std::isfinite(scaled * kLargestGravity)) return true;
  Refuse("Value is not a finite number", line, " (once scaled).");
  return false;
}

ReadResult RecordBuilder::ChannelProblem() {
  const int channels =
      channels_.empty() ? 1 : static_cast<int>(channels_.size());
  const int chosen = reading_.choices.channel;
  if (chosen >= 1 && chosen <= channels) return ReadResult::kRead;
  messages_.Show(CFormat("Error : No channel %d! %s holds %d channel%s.",
                         chosen, file_name_.c_str(), channels,
                         channels == 1 ? "" : "s"));
  return ReadResult::kRefused;
}

bool RecordBuilder::AddValue(double g, int line) {
  double value;
  if (!ScaleValue(g, line, value)) return false;
  ++count_;
  if (count_ <= static_cast<std::size_t>(kRecordCapacity)) {
    record_.samples.back().value = value;
  }
  return true;
}

bool RecordBuilder::Add(double g, int line) {
  if (count_ < static_cast<std::size_t>(kRecordCapacity)) {
    const double time = static_cast<double>(count_) * step_;
    if (!CheckTime(time, line)) return false;
    record_.samples.push_back({time, 0.0});
  }
  return AddValue(g, line);
}

bool RecordBuilder::AddTimed(double seconds, double g, int line) {
  timed_ = true;
  const double time = seconds * reading_.scales.time;
  if (!CheckTime(time, line)) return false;
  if (count_ > 0) {
    if (!CheckTimeFollows(time, last_time_, line)) return false;
    const double step = time - last_time_;
    if (count_ == 1) first_step_ = step;
    // Times written with few digits wander a little; a missing or doubled
    // sample moves them by a whole step.
    if (std::fabs(step - first_step_) > 0.5 * first_step_) {
      Refuse(
          "Times are not evenly spaced", line,
          CFormat(": a step of %g s after steps of %g s.", step, first_step_));
      return false;
    }
  }
  last_time_ = time;
  if (count_ < static_cast<std::size_t>(kRecordCapacity)) {
    record_.samples.push_back({time, 0.0});
  }
  return AddValue(g, line);
}

bool RecordBuilder::AddValuesOf(std::string_view line, int number,
                                double factor, std::size_t& taken) {
  SplitFields(line, " \t", fields_);
  taken = 0;
  for (std::string_view field : fields_) {
    double value;
    if (!ParseNumber(field, value)) {
      Refuse("Value is not a number", number,
             ": \"" + std::string(field) + "\".");
      return false;
    }
    if (!Add(value * factor, number)) return false;
    ++taken;
  }
  return true;
}

ReadResult RecordBuilder::Finish(int line) {
  const ReadResult channel = ChannelProblem();
  if (channel != ReadResult::kRead) return channel;
  if (count_ == 0) {
    return Refuse("No data found", line, ": the record holds no values.");
  }
  std::vector<RecordSample>& samples = record_.samples;
  if (timed_) {
    if (samples.size() < 2 && reading_.use == TimeStepUse::kNeeded) {
      return Refuse("Too few samples", line,
                    ": 1; the time step is known from the second sample on.");
    }
    record_.time_step = samples.size() < 2
                            ? 0.0
                            : (samples.back().time - samples.front().time) /
                                  static_cast<double>(samples.size() - 1);
  } else {
    record_.time_step = step_;
  }
  if (count_ > static_cast<std::size_t>(kRecordCapacity)) {
    messages_.Show(kRecordCutMessage);
  }
  return ReadResult::kRead;
}

bool RecordBuilder::AddDescribedChannel(std::string name,
                                        const std::vector<std::string>& text,
                                        std::size_t event_line,
                                        std::size_t station_line) {
  AddChannel(std::move(name));
  if (!InChosenChannel()) return false;
  record_.event = text.size() > event_line ? Collapse(text[event_line]) : "";
  record_.station =
      text.size() > station_line ? Collapse(text[station_line]) : "";
  record_.component = channels_.back();
  return true;
}

ReadResult RecordBuilder::FinishChannels(const TextLines& lines, int last,
                                         std::string_view detail) {
  const ReadResult problem = LineProblem(lines);
  if (problem != ReadResult::kRead) return problem;
  if (channels_.empty()) {
    return Refuse("No acceleration data", lines.number(), detail);
  }
  return Finish(last);
}

ReadResult ReadFixedValues(TextLines& lines, RecordBuilder& out,
                           std::size_t count, const FortranFormat& format,
                           const std::function<bool(double, int)>& take) {
  std::size_t read = 0;
  while (read < count) {
    if (!lines.Next()) {
      return out.EndedEarly(lines, "Data end early",
                            CFormat(": %zu of %zu values.", read, count));
    }
    const std::string_view line = lines.text();
    const std::size_t before = read;
    for (int k = 0; k < format.per_line && read < count; ++k) {
      const std::string_view field = FixedField(line, k, format.width);
      if (Trim(field).empty()) break;
      double value;
      if (!ParseNumber(field, value)) {
        return out.Refuse("Value is not a number", lines.number(),
                          ": \"" + std::string(Trim(field)) + "\".");
      }
      if (!take(value, lines.number())) return ReadResult::kRefused;
      ++read;
    }
    if (read == before) {
      return out.Refuse("Data end early", lines.number(),
                        CFormat(": %zu of %zu values.", read, count));
    }
  }
  return ReadResult::kRead;
}

bool LeadingPointCount(std::string_view line, double& points) {
  // Beyond any record; a count above it is refused before it is used.
  constexpr double kMaxPoints = 1e15;
  return LeadingNumber(line, points) && points >= 0.0 && points <= kMaxPoints &&
         points == std::floor(points);
}

ReadResult ReadBlockValues(TextLines& lines, RecordBuilder& out, double points,
                           const FortranFormat& format, bool chosen,
                           double factor) {
  return ReadFixedValues(lines, out, static_cast<std::size_t>(points), format,
                         [&](double value, int line) {
                           return !chosen || out.Add(value * factor, line);
                         });
}

ReadResult ReadRecord(InputFile file, const RecordReading& reading,
                      Record& record, MessageSink& messages) {
  RecordBuilder out(file.name(), reading, messages);
  if (!file.is_open()) {
    messages.ShowFileError(file.name(), file.error());
    return ReadResult::kFailed;
  }
  std::string head;
  RecordFormat format = RecordFormat::kDbs;
  ReadResult result = DetectFormat(file, out, head, format);
  if (result == ReadResult::kRead) {
    result = ReadDetected(file, format, std::move(head), out);
  }
  if (result == ReadResult::kRead) record = std::move(out.record());
  return result;
}

std::optional<RecordLayout> InspectRecordFile(InputFile file) {
  if (!file.is_open()) return std::nullopt;
  MessageLog ignored;
  const RecordReading reading;
  RecordBuilder out(file.name(), reading, ignored);
  std::string head;
  RecordLayout layout;
  if (DetectFormat(file, out, head, layout.format) != ReadResult::kRead) {
    return std::nullopt;
  }
  if (layout.format == RecordFormat::kPlainText) {
    // The columns are what the user is to choose from; the head shows them.
    PlainTextLayout(head, layout);
    if (layout.columns.empty()) return std::nullopt;
    return layout;
  }
  if (ReadDetected(file, layout.format, std::move(head), out) !=
      ReadResult::kRead) {
    return std::nullopt;
  }
  layout.channels = out.channels();
  return layout;
}

int ReadRecordFile(CZELwDoc& doc, InputFile file, MessageSink& messages,
                   TimeStepUse use, const ImportChoices& choices) {
  RecordReading reading;
  reading.scales = {doc.time_scale, doc.amplitude_scale};
  reading.choices = choices;
  reading.use = use;
  Record record;
  if (ReadRecord(std::move(file), reading, record, messages) !=
      ReadResult::kRead) {
    return 0;
  }
  StoreRecord(doc, record);
  return 1;
}

void StoreRecord(CZELwDoc& doc, const Record& record) {
  // Values in g become the document's acceleration unit.
  const double factor = doc.results_in_g == 1 ? 1.0 : doc.gravity;
  doc.record_samples = record.samples;
  for (RecordSample& sample : doc.record_samples) sample.value *= factor;
  if (record.time_step > 0.0) doc.record_time_step = record.time_step;
  const std::string description = RecordDescription(record);
  if (!description.empty()) doc.record_name += " (" + description + ")";
}

}  // namespace zel
