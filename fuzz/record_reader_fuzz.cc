// Feeds arbitrary bytes to the record reader, and what it accepts to the
// time-history curve, the frequency switch and a small response spectrum.
#include <cstdint>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/messages.h"
#include "core/records/frequency_switch.h"
#include "core/records/record_curve.h"
#include "core/records/record_reader.h"
#include "core/records/response_spectrum.h"

namespace {

zel::InputFile OpenBytes(const std::string& bytes) {
  return zel::InputFile::FromBytes(bytes, "fuzz.dbs");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data,
                                      std::size_t size) {
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  zel::MessageLog log;

  zel::CZELwDoc record;
  zel::PrepareRecordDocument(record, 1.0, 1.0, "fuzz");
  if (zel::ShowRecordCurve(record, OpenBytes(bytes), log) == 1) {
    zel::SwitchTimeFrequency(record, log);
    zel::SwitchTimeFrequency(record, log);
  }

  zel::CZELwDoc spectrum;
  zel::SpectrumSettings settings;
  settings.damping = {0.0, 0.05, 0.999};
  settings.damping_count = 3;
  settings.period_from = 0.0;
  settings.period_to = 2.0;
  settings.period_count = 4;
  zel::PrepareSpectrumDocument(spectrum, settings);
  if (zel::ReadRecordFile(spectrum, OpenBytes(bytes), log,
                          zel::TimeStepUse::kNeeded) == 1) {
    zel::ComputeResponseSpectrum(spectrum, settings, spectrum.record_samples,
                                 spectrum.record_time_step, log);
  }
  return 0;
}
