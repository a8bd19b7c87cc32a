#include "core/records/record_reader.h"

#include <cmath>
#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/document/tokenizer.h"

namespace zel {

const char* const kRecordCutMessage =
    "Warning : The record has more than 50000 points; only the first 50000 "
    "are used!";

namespace {

// One pass over a record file.
class RecordReader {
 public:
  RecordReader(CZELwDoc& doc, InputFile& file, MessageSink& messages)
      : doc_(doc), file_(file), tokens_(file), messages_(messages) {}

  int Read(TimeStepUse use);

 private:
  // Reads a token; false (after the message) when the file is not text or
  // the token is too long.
  bool Next(int& status);
  // Shows "Error : <what>! <file>, line <line><detail>" and returns 0.
  int Refuse(const char* what, int line, const std::string& detail = "") {
    messages_.Show(CFormat("Error : %s! %s, line %d%s", what,
                           file_.name().c_str(), line, detail.c_str()));
    return 0;
  }

  CZELwDoc& doc_;
  InputFile& file_;
  Tokenizer tokens_;
  MessageSink& messages_;
  std::string token_;
  bool refused_ = false;
};

bool RecordReader::Next(int& status) {
  status = tokens_.ReadToken(token_);
  if (tokens_.nul_line() != 0) {
    Refuse("Not a text file", tokens_.nul_line(),
           " holds a NUL byte (UTF-16 or binary?).");
  } else if (tokens_.too_long()) {
    Refuse(
        "Line too long", tokens_.line(),
        CFormat(": a value may have at most %zu characters.", kMaxTokenLength));
  } else {
    return true;
  }
  refused_ = true;
  return false;
}

int RecordReader::Read(TimeStepUse use) {
  // Values in g become the document's acceleration unit.
  const double factor = doc_.results_in_g == 1 ? 1.0 : doc_.gravity;
  std::vector<RecordSample> samples;
  // The whole capacity at once: pages are only touched as samples arrive,
  // and nothing is copied as the record grows.
  samples.reserve(kRecordCapacity);
  double time_step = 0.0;
  bool cut = false;
  int status;
  while (Next(status) && status == 1) {
    if (samples.size() == static_cast<std::size_t>(kRecordCapacity)) {
      cut = true;
      break;
    }
    const int line = tokens_.line();
    const double time = AtoF(token_) * doc_.time_scale;
    if (!std::isfinite(time)) {
      return Refuse("Time is not a finite number", line, ".");
    }
    if (!samples.empty() && !(time > samples.back().time)) {
      return Refuse("Times must increase", line,
                    CFormat(": %g s follows %g s.", time, samples.back().time));
    }
    samples.push_back({time, 0.0});
    if (samples.size() == 4) {
      // Evenly sampled records are assumed: the step of samples 1 and 2.
      time_step = samples[2].time - samples[1].time;
      if (!std::isfinite(time_step)) {
        return Refuse("Time step is not finite", line, ".");
      }
    }
    if (!Next(status)) return 0;
    if (token_ != ",") {
      messages_.Show("Error : Wrong Format!");
      return 0;
    }
    if (!Next(status)) return 0;
    const double value = AtoF(token_) * doc_.amplitude_scale * factor;
    if (!std::isfinite(value)) {
      return Refuse("Value is not a finite number", tokens_.line(),
                    " (once scaled).");
    }
    samples.back().value = value;
    // A value that ends the file still counts: the last line may lack its
    // line end.
    if (status != 1) break;
  }
  if (refused_) return 0;
  if (file_.error() != 0) {
    messages_.Show("an Error occurred while reading data !");
    return 0;
  }
  if (samples.empty()) {
    messages_.Show("Error : No Data Found!");
    return 0;
  }
  if (use == TimeStepUse::kNeeded && samples.size() < 4) {
    return Refuse(
        "Too few samples", tokens_.line(),
        CFormat(": %zu; the time step is known from the fourth sample on.",
                samples.size()));
  }
  if (cut) messages_.Show(kRecordCutMessage);
  doc_.record_samples = std::move(samples);
  if (doc_.record_samples.size() >= 4) doc_.record_time_step = time_step;
  return 1;
}

}  // namespace

int ReadRecordFile(CZELwDoc& doc, InputFile file, MessageSink& messages,
                   TimeStepUse use) {
  if (!file.is_open()) {
    messages.ShowFileError(file.name(), file.error());
    return 0;
  }
  return RecordReader(doc, file, messages).Read(use);
}

}  // namespace zel
