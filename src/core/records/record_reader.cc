#include "core/records/record_reader.h"

#include <string>
#include <vector>

#include "core/document/c_format.h"
#include "core/document/tokenizer.h"

namespace zel {

const char* const kRecordCutMessage =
    "Warning : The record has more than 50000 points; only the first 50000 "
    "are used!";

namespace {

// Closes the stream whatever way the read ends.
class StreamCloser {
 public:
  explicit StreamCloser(std::FILE* file) : file_(file) {}
  ~StreamCloser() {
    if (file_ != nullptr) std::fclose(file_);
  }
  StreamCloser(const StreamCloser&) = delete;
  StreamCloser& operator=(const StreamCloser&) = delete;

 private:
  std::FILE* file_;
};

}  // namespace

int ReadRecordFile(CZELwDoc& doc, std::FILE* file, MessageSink& messages) {
  StreamCloser closer(file);
  if (file == nullptr) {
    messages.Show("Error : No Data Found!");
    return 0;
  }
  // Values in g become the document's acceleration unit.
  const double factor = doc.results_in_g == 1 ? 1.0 : doc.gravity;
  std::vector<RecordSample> samples;
  std::string token;
  bool cut = false;
  while (ReadToken(file, token) == 1) {
    if (samples.size() == static_cast<std::size_t>(kRecordCapacity)) {
      cut = true;
      break;
    }
    RecordSample sample;
    sample.time = AtoF(token) * doc.time_scale;
    samples.push_back(sample);
    if (samples.size() == 4) {
      // Evenly sampled records are assumed: the step of samples 1 and 2.
      doc.record_time_step = samples[2].time - samples[1].time;
    }
    ReadToken(file, token);
    if (token != ",") {
      messages.Show("Error : Wrong Format!");
      return 0;
    }
    const int status = ReadToken(file, token);
    samples.back().value = AtoF(token) * doc.amplitude_scale * factor;
    // A value that ends the file still counts: the last line may lack its
    // line end.
    if (status != 1) break;
  }
  if (std::ferror(file) != 0) {
    messages.Show("an Error occurred while reading data !");
    return 0;
  }
  if (samples.empty()) {
    messages.Show("Error : No Data Found!");
    return 0;
  }
  if (cut) messages.Show(kRecordCutMessage);
  doc.record_samples = std::move(samples);
  return 1;
}

}  // namespace zel
