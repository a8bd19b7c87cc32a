// Records made by the tests themselves, and the documents built from them.
#ifndef ZEL_TESTS_CORE_RECORDS_RECORD_FIXTURES_H_
#define ZEL_TESTS_CORE_RECORDS_RECORD_FIXTURES_H_

#include <cmath>
#include <cstdio>
#include <string>
#include <utility>
#include <vector>

#include "core/document/test_files.h"
#include "core/records/record_curve.h"
#include "core/records/record_reader.h"
#include "core/records/response_spectrum.h"

namespace zel::testing {

// "time, value" lines, every digit kept.
inline std::string RecordText(const std::vector<double>& times,
                              const std::vector<double>& values) {
  std::string text;
  char line[96];
  for (std::size_t i = 0; i < times.size() && i < values.size(); ++i) {
    std::snprintf(line, sizeof line, "%.17g, %.17g\n", times[i], values[i]);
    text += line;
  }
  return text;
}

// Evenly sampled "time, value" lines from `start`.
inline std::string EvenRecord(const std::vector<double>& values, double dt,
                              double start = 0.0) {
  std::vector<double> times(values.size());
  for (std::size_t i = 0; i < values.size(); ++i) times[i] = start + i * dt;
  return RecordText(times, values);
}

// amplitude sin(2 pi hz t) e^(-decay t) at t = i dt.
inline std::vector<double> Sine(int n, double hz, double dt,
                                double amplitude = 0.25, double decay = 0.0) {
  std::vector<double> values(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) {
    values[i] = amplitude * std::sin(2 * M_PI * hz * i * dt) *
                std::exp(-decay * i * dt);
  }
  return values;
}

using Read = ReadOutcome;

inline Read ReadRecord(CZELwDoc& doc, const std::string& bytes) {
  return ReadBytesWith(bytes, [&](InputFile f, MessageSink& m) {
    return ReadRecordFile(doc, std::move(f), m);
  });
}

// Shows the record `bytes` in `doc` as the record dialog does.
inline Read ShowRecord(CZELwDoc& doc, const std::string& bytes,
                       double amplitude_scale = 1.0, double time_scale = 1.0,
                       const std::string& name = "Sine") {
  PrepareRecordDocument(doc, amplitude_scale, time_scale, name);
  return ReadBytesWith(bytes, [&](InputFile f, MessageSink& m) {
    return ShowRecordCurve(doc, std::move(f), m);
  });
}

inline SpectrumSettings Settings(int kind, const std::vector<double>& damping,
                                 double from, double to, int count,
                                 const std::string& name = "test") {
  SpectrumSettings s;
  s.kind = kind;
  for (std::size_t k = 0; k < damping.size(); ++k) s.damping[k] = damping[k];
  s.damping_count = static_cast<int>(damping.size());
  s.period_from = from;
  s.period_to = to;
  s.period_count = count;
  s.record_name = name;
  return s;
}

// The response-spectrum document of the record `bytes`, as the dialog makes
// it; its messages go to `messages` when given.
inline CZELwDoc SpectrumOf(const std::string& bytes,
                           const SpectrumSettings& settings,
                           std::vector<std::string>* messages = nullptr,
                           const SpectrumRun& run = {}) {
  CZELwDoc doc;
  PrepareSpectrumDocument(doc, settings);
  MessageLog log;
  if (ReadRecordFile(doc, OpenBytes(bytes), log, TimeStepUse::kNeeded) == 1) {
    ComputeResponseSpectrum(doc, settings, doc.record_samples,
                            doc.record_time_step, log, run);
  } else {
    log.Show(kRecordReadFailedMessage);
  }
  if (messages != nullptr) *messages = log.texts();
  return doc;
}

}  // namespace zel::testing

#endif  // ZEL_TESTS_CORE_RECORDS_RECORD_FIXTURES_H_
