#include "core/records/response_spectrum.h"

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include "core/records/chart_setup.h"
#include "core/records/oscillator.h"
#include "core/records/record_reader.h"
#include "core/records/spectrum_kernel.h"

namespace zel {
namespace {

const char* TypeWordOfKind(int kind) {
  switch (kind) {
    case kPseudoAcceleration:
    case kAbsoluteAcceleration:
      return "ACCEL";
    case kRelativeDisplacement:
      return "DISP";
    default:
      return "VELO";
  }
}

PeakResponse ResponseOfKind(int kind) {
  switch (kind) {
    case kRelativeVelocity:
      return PeakResponse::kVelocity;
    case kAbsoluteAcceleration:
      return PeakResponse::kAbsoluteAcceleration;
    default:
      return PeakResponse::kDisplacement;
  }
}

// The ordinate of `kind` from the peak the kind reports.
double SpectralValue(int kind, double peak, double omega, double gravity,
                     bool results_in_g) {
  const double divisor = results_in_g ? 1.0 : gravity;
  switch (kind) {
    case kPseudoAcceleration:
      return peak * (omega * omega) / divisor;
    case kPseudoVelocity:
    case kCombinedDVA:
      return peak * omega;
    case kAbsoluteAcceleration:
      return peak / divisor;
    default:  // relative velocity and displacement
      return peak;
  }
}

// Periods integrated between two progress reports: about four million
// oscillator steps, never fewer than 64 periods.
int PeriodsPerReport(int record_length) {
  constexpr int kStepsPerReport = 1 << 22;
  return std::max(64, kStepsPerReport / std::max(record_length, 1));
}

bool CheckSettings(const CZELwDoc& doc, MessageSink& messages) {
  if (doc.period_steps < 1 || doc.period_steps > kMaxPeriods) {
    messages.Show("Error : The number of periods must be 1 to 5000!");
    return false;
  }
  if (doc.curve_count < 1 || doc.curve_count > kMaxCurves) {
    messages.Show("Error : The number of damping ratios must be 1 to 6!");
    return false;
  }
  if (doc.spectrum_kind < kPseudoAcceleration ||
      doc.spectrum_kind > kCombinedDVA) {
    messages.Show("Error : Unknown spectrum kind!");
    return false;
  }
  return true;
}

}  // namespace

void PrepareSpectrumDocument(CZELwDoc& doc, const SpectrumSettings& settings) {
  const int kind = settings.kind;
  if (kind != kPseudoAcceleration && kind != kAbsoluteAcceleration) {
    doc.length_unit = 1;
    doc.unit = "MM";
  }
  doc.amplitude_scale = settings.amplitude_scale;
  doc.time_scale = settings.time_scale;
  doc.record_name = settings.record_name;
  doc.type = TypeWordOfKind(kind);

  double from = settings.period_from;
  if (kind == kCombinedDVA) {
    from = std::max(from, kLowestLogPeriod);
    if (doc.log_x == 0) doc.ToggleLogX();
    if (doc.log_y == 0) doc.ToggleLogY();
    doc.tripartite = 1;
  }
  if (settings.log_axis) from = std::max(from, kLowestLogPeriod);

  doc.period_from = from;
  doc.period_to = settings.period_to;
  doc.period_steps = settings.period_count;
  doc.spectrum_kind = kind;
  doc.log_period_axis = settings.log_axis ? 1 : 0;
  doc.damping = settings.damping;
  doc.curve_count = settings.damping_count;
  doc.damping_flag = 1;
}

int ComputeResponseSpectrum(CZELwDoc& doc, InputFile file,
                            MessageSink& messages,
                            const SpectrumProgress& progress) {
  if (!CheckSettings(doc, messages)) return 0;
  if (ReadRecordFile(doc, std::move(file), messages, TimeStepUse::kNeeded) !=
      1) {
    messages.Show("an Error occurred while reading data!");
    return 0;
  }
  if (doc.log_period_axis != 0 && doc.tripartite == 0 && doc.log_x == 0) {
    doc.ToggleLogX();
  }

  const int n = static_cast<int>(doc.record_samples.size());
  std::vector<double> accel(static_cast<std::size_t>(n));
  for (int i = 0; i < n; ++i) accel[i] = doc.record_samples[i].value;
  const bool starts_at_zero = n > 0 && doc.record_samples[0].time == 0.0;
  const std::vector<double> forcing = BuildForcing(accel, starts_at_zero);

  const int count = doc.period_steps;
  const int kind = doc.spectrum_kind;
  const double dt = doc.record_time_step;
  std::vector<double> periods(count);
  std::vector<double> omegas(count);
  for (int j = 0; j < count; ++j) {
    periods[j] = GridPeriod(doc.period_from, doc.period_to, count, j);
    omegas[j] = kSpectrumTwoPi / periods[j];
  }
  std::vector<OscillatorCoefficients> oscillators(count);
  std::vector<double> peaks(count);
  const int slice = PeriodsPerReport(n);
  for (int k = 0; k < doc.curve_count; ++k) {
    for (int j = 0; j < count; ++j) {
      oscillators[j] =
          ComputeOscillatorCoefficients(omegas[j], doc.damping[k], dt);
    }
    // The periods are integrated a slice at a time so that progress is
    // reported while a long record is still being worked on.
    for (int first = 0; first < count; first += slice) {
      const int size = std::min(slice, count - first);
      IntegratePeaks(forcing,
                     std::span<const OscillatorCoefficients>(oscillators)
                         .subspan(first, size),
                     ResponseOfKind(kind),
                     std::span<double>(peaks).subspan(first, size));
      for (int j = first; j < first + size; ++j) {
        doc.SetPoint(j, k, periods[j],
                     SpectralValue(kind, peaks[j], omegas[j], doc.gravity,
                                   doc.results_in_g == 1),
                     0);
        if (progress) progress(j, count);
      }
    }
  }

  doc.SetAxisTitle(1, doc.BuildYAxisTitle());
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.title = "Earthquake Response Spectrum";
  doc.subtitle = doc.record_name;
  SetUpChart(doc);
  doc.SetDampingLegend();
  doc.axis_display = doc.axis_display == 0 ? 1 : 0;
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
  return 1;
}

}  // namespace zel
