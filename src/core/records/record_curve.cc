#include "core/records/record_curve.h"

#include <cmath>
#include <utility>

#include "core/document/c_format.h"
#include "core/records/chart_setup.h"
#include "core/records/record_reader.h"

namespace zel {

void PrepareRecordDocument(CZELwDoc& doc, double amplitude_scale,
                           double time_scale, const std::string& record_name) {
  doc.results_in_g = 1;
  doc.amplitude_scale = amplitude_scale;
  doc.time_scale = time_scale;
  doc.record_name = record_name;
}

RecordPeak PeakOf(std::span<const RecordSample> samples) {
  RecordPeak peak;
  for (const RecordSample& sample : samples) {
    const double magnitude = std::fabs(sample.value);
    if (magnitude >= peak.magnitude) {
      peak.magnitude = magnitude;
      peak.time = sample.time;
    }
  }
  return peak;
}

RecordPeak StoreTimeHistory(CZELwDoc& doc) {
  const int count = static_cast<int>(doc.record_samples.size());
  for (int k = 0; k < count; ++k) {
    const RecordSample& sample = doc.record_samples[k];
    doc.SetPoint(k, 0, sample.time, sample.value, 0);
  }
  return PeakOf(doc.record_samples);
}

int ShowRecordCurve(CZELwDoc& doc, InputFile file, MessageSink& messages,
                    const ImportChoices& choices) {
  if (ReadRecordFile(doc, std::move(file), messages, TimeStepUse::kNotNeeded,
                     choices) != 1) {
    messages.Show(kRecordReadFailedMessage);
    return 0;
  }
  ShowRecordSamples(doc);
  return 1;
}

void ShowRecordCurve(CZELwDoc& doc, const Record& record) {
  StoreRecord(doc, record);
  ShowRecordSamples(doc);
}

void ShowRecordSamples(CZELwDoc& doc) {
  doc.record_flag = 1;
  const RecordPeak peak = StoreTimeHistory(doc);
  doc.SetAxisTitle(1, "Ground Accel. (g)");
  doc.SetAxisTitle(0, "Time (sec)");
  doc.title = "Earthquake Record";
  doc.subtitle = doc.record_name;
  SetUpChart(doc);
  doc.SetTitle(doc.title);
  SetContextLabel(
      doc, CFormat("Max = %8.4f(g) at %6.3f sec", peak.magnitude, peak.time));
  doc.UpdateAllViews();
}

}  // namespace zel
