// ZEL's own record files: "time, value" pairs read with the tokenizer of the
// data file, in g, with "**" comment lines.
#include <cmath>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/document/tokenizer.h"
#include "core/records/format_readers.h"

namespace zel {
namespace {

class DbsReader {
 public:
  DbsReader(InputFile& file, RecordBuilder& out)
      : file_(file), tokens_(file), out_(out) {}

  ReadResult Read();

 private:
  // Reads a token; false (after the message) when the file is not text or
  // the token is too long.
  bool Next(int& status);

  InputFile& file_;
  Tokenizer tokens_;
  RecordBuilder& out_;
  std::string token_;
};

bool DbsReader::Next(int& status) {
  status = tokens_.ReadToken(token_);
  if (tokens_.nul_line() != 0) {
    out_.RefuseNotText(tokens_.nul_line());
  } else if (tokens_.too_long()) {
    out_.Refuse(
        "Line too long", tokens_.line(),
        CFormat(": a value may have at most %zu characters.", kMaxTokenLength));
  } else {
    return true;
  }
  return false;
}

ReadResult DbsReader::Read() {
  const RecordScales& scales = out_.reading().scales;
  std::vector<RecordSample> samples;
  // The whole capacity at once: pages are only touched as samples arrive,
  // and nothing is copied as the record grows.
  samples.reserve(kRecordCapacity);
  double time_step = 0.0;
  bool cut = false;
  int status;
  for (;;) {
    if (!Next(status)) return ReadResult::kRefused;
    if (status != 1) break;
    if (samples.size() == static_cast<std::size_t>(kRecordCapacity)) {
      cut = true;
      break;
    }
    const int line = tokens_.line();
    const double time = AtoF(token_) * scales.time;
    if (!out_.CheckTime(time, line) ||
        (!samples.empty() &&
         !out_.CheckTimeFollows(time, samples.back().time, line))) {
      return ReadResult::kRefused;
    }
    samples.push_back({time, 0.0});
    if (samples.size() == 4) {
      // Evenly sampled records are assumed: the step of samples 1 and 2.
      time_step = samples[2].time - samples[1].time;
      if (!std::isfinite(time_step)) {
        return out_.Refuse("Time step is not finite", line, ".");
      }
    }
    if (!Next(status)) return ReadResult::kRefused;
    if (token_ != ",") {
      out_.messages().Show("Error : Wrong Format!");
      return ReadResult::kFailed;
    }
    if (!Next(status)) return ReadResult::kRefused;
    // In g; the document's unit comes in when the record is stored.
    if (!out_.ScaleValue(AtoF(token_), tokens_.line(), samples.back().value)) {
      return ReadResult::kRefused;
    }
    // A value that ends the file still counts: the last line may lack its
    // line end.
    if (status != 1) break;
  }
  if (file_.error() != 0) {
    out_.messages().Show("an Error occurred while reading data !");
    return ReadResult::kFailed;
  }
  if (samples.empty()) {
    out_.messages().Show("Error : No Data Found!");
    return ReadResult::kFailed;
  }
  if (out_.reading().use == TimeStepUse::kNeeded && samples.size() < 4) {
    return out_.Refuse(
        "Too few samples", tokens_.line(),
        CFormat(": %zu; the time step is known from the fourth sample on.",
                samples.size()));
  }
  const ReadResult channel = out_.ChannelProblem();
  if (channel != ReadResult::kRead) return channel;
  if (cut) out_.messages().Show(kRecordCutMessage);
  Record& record = out_.record();
  record.samples = std::move(samples);
  record.time_step = record.samples.size() >= 4 ? time_step : 0.0;
  return ReadResult::kRead;
}

}  // namespace

ReadResult ReadDbs(InputFile& file, RecordBuilder& out) {
  return DbsReader(file, out).Read();
}

}  // namespace zel
