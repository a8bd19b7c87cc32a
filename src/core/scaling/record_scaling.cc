#include "core/scaling/record_scaling.h"

#include <algorithm>
#include <cstddef>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"
#include "core/records/chart_setup.h"
#include "core/records/oscillator.h"
#include "core/records/record_curve.h"
#include "core/scaling/design_target.h"

namespace zel {

bool MakeScalingTarget(const CodeEntry& code, const ParamValues& values,
                       const ScalingSettings& settings, ScalingTarget& target,
                       MessageSink& messages) {
  if (!CheckScalingSettings(settings, messages)) return false;
  CZELwDoc shown;
  if (!GenerateDesignDocument(code, values, shown, messages)) return false;
  CZELwDoc fine;
  if (!GenerateDesignDocument(code,
                              TargetGridValues(code, values, settings.range),
                              fine, messages)) {
    return false;
  }
  target.title = shown.title;
  target.shown = StoredCurve(shown);
  target.periods = MatchingPeriods(settings.range, settings.periods);
  target.code.clear();
  const std::vector<SpectrumPoint> curve = StoredCurve(fine);
  for (double period : target.periods) {
    double value = 0.0;
    if (!InterpolateCurve(curve, period, value)) {
      messages.Show(
          CFormat("The design spectrum does not reach T = %g sec", period));
      return false;
    }
    target.code.push_back(value);
  }
  return true;
}

bool HoldsRecord(const CZELwDoc& doc) {
  return doc.record_flag == 1 && doc.results_in_g == 1 &&
         !doc.record_samples.empty();
}

void MakeScaledRecord(CZELwDoc& scaled, const CZELwDoc& record, double factor) {
  PrepareRecordDocument(scaled, record.amplitude_scale * factor,
                        record.time_scale, record.record_name);
  scaled.record_samples = record.record_samples;
  for (RecordSample& sample : scaled.record_samples) sample.value *= factor;
  scaled.record_time_step = record.record_time_step;
  ShowRecordSamples(scaled);
}

bool ScaleRecord(const RecordInput& record, const ScalingTarget& target,
                 const ScalingSettings& settings, ScaleResult& result,
                 MessageSink& messages) {
  return ComputeScaleFactor(
      PseudoAccelerations(record.samples, record.time_step, target.periods,
                          settings.damping),
      target.code, settings, result, messages);
}

bool ScaleSuite(std::span<const RecordInput> records,
                const ScalingTarget& target, const ScalingSettings& settings,
                std::vector<std::vector<double>>& spectra, ScaleResult& result,
                MessageSink& messages) {
  spectra.clear();
  for (const RecordInput& record : records) {
    spectra.push_back(PseudoAccelerations(record.samples, record.time_step,
                                          target.periods, settings.damping));
  }
  const std::vector<double> mean = MeanSpectrum(spectra);
  return ComputeScaleFactor(mean, target.code, settings, result, messages);
}

std::string ScaleResultText(const ScalingTarget& target,
                            const ScalingSettings& settings,
                            const ScaleResult& result) {
  std::string text =
      CFormat("Factor = %.4f  Misfit = %.4f", result.factor, result.misfit);
  if (settings.rule == ScaleRule::kMinimum &&
      result.governing < static_cast<int>(target.periods.size())) {
    text += CFormat("  at T = %.3f sec", target.periods[result.governing]);
  }
  return text;
}

void BuildComparisonDocument(CZELwDoc& doc, const RecordInput& record,
                             const ScalingTarget& target,
                             const ScalingSettings& settings,
                             const ScaleResult& result) {
  std::vector<double> periods;
  for (const SpectrumPoint& point : target.shown) {
    // As the response spectra do, a period of 0 is a very stiff oscillator.
    periods.push_back(point.period > 0.0 ? point.period : kZeroPeriod);
  }
  const std::vector<double> spectrum = PseudoAccelerations(
      record.samples, record.time_step, periods, settings.damping);

  double top = 0.0;
  int c = 0;
  auto add_curve = [&](const std::vector<SpectrumPoint>& points,
                       const std::string& legend) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      doc.SetPoint(static_cast<int>(i), c, points[i].period, points[i].sa, 1);
      top = std::max(top, points[i].sa);
    }
    doc.curve_legend[c] = legend;
    doc.damping[c] = settings.damping;
    ++c;
  };
  std::vector<SpectrumPoint> scaled;
  for (std::size_t i = 0; i < periods.size(); ++i) {
    scaled.push_back({periods[i], result.factor * spectrum[i]});
  }
  add_curve(scaled, "");
  add_curve(target.shown, target.title);
  if (settings.rule == ScaleRule::kMinimum) {
    std::vector<SpectrumPoint> floor = target.shown;
    for (SpectrumPoint& point : floor) point.sa *= settings.fraction;
    add_curve(floor, CFormat("%g x ", settings.fraction) + target.title);
  }
  const double height = 1.05 * top;
  const PeriodRange& range = settings.range;
  add_curve({{range.low, 0.0},
             {range.low, height},
             {range.high, height},
             {range.high, 0.0}},
            CFormat("Period range %g - %g sec", range.low, range.high));

  doc.curve_count = c;
  doc.damping_flag = 1;
  doc.spectrum_kind = kPseudoAcceleration;
  doc.results_in_g = 1;
  doc.SetAxisTitle(1, doc.BuildYAxisTitle());
  doc.SetAxisTitle(0, kPeriodAxisTitle);
  doc.title = "Record Scaled to Design Spectrum";
  doc.record_name = record.name;
  doc.subtitle = CFormat("%s  x %.4f", record.name.c_str(), result.factor);
  SetUpChart(doc);
  doc.SetDampingLegend();
  SetContextLabel(doc, ScaleResultText(target, settings, result));
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
}

}  // namespace zel
