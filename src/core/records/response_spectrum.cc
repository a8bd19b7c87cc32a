#include "core/records/response_spectrum.h"

#include <algorithm>
#include <vector>

#include "core/records/chart_setup.h"
#include "core/records/oscillator.h"

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
double SpectralValue(int kind, double peak, double omega, double divisor) {
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

}  // namespace

bool CheckSpectrumSettings(const SpectrumSettings& s, MessageSink& messages) {
  if (s.period_count < 1 || s.period_count > kMaxPeriods) {
    messages.Show("Error : The number of periods must be 1 to 5000!");
    return false;
  }
  if (s.damping_count < 1 || s.damping_count > kMaxCurves) {
    messages.Show("Error : The number of damping ratios must be 1 to 6!");
    return false;
  }
  if (s.kind < kPseudoAcceleration || s.kind > kCombinedDVA) {
    messages.Show("Error : Unknown spectrum kind!");
    return false;
  }
  if (s.log_grid && !(FirstPeriod(s) > 0.0 && s.period_to > 0.0)) {
    messages.Show(
        "Error : Log-spaced periods need From and To greater than 0!");
    return false;
  }
  return true;
}

namespace {

// Stores the points of the oscillators whose peaks are final, in curve and
// period order, and tells the caller how far the curves have come.
class PointWriter {
 public:
  PointWriter(CZELwDoc& doc, const SpectrumSettings& settings,
              const std::vector<double>& periods,
              const std::vector<double>& omegas,
              const std::vector<double>& peaks,
              const SpectrumProgress& progress)
      : doc_(doc),
        kind_(settings.kind),
        divisor_(settings.results_in_g ? 1.0 : doc.gravity),
        count_(static_cast<std::size_t>(settings.period_count)),
        periods_(periods),
        omegas_(omegas),
        peaks_(peaks),
        progress_(progress) {}

  void StoreUpTo(std::size_t done) {
    const std::size_t before = stored_;
    for (; stored_ < done; ++stored_) {
      const std::size_t k = stored_ / count_;
      const std::size_t j = stored_ % count_;
      doc_.SetPoint(static_cast<int>(j), static_cast<int>(k), periods_[j],
                    SpectralValue(kind_, peaks_[stored_], omegas_[j], divisor_),
                    0);
      // A curve finished within this batch reports its last period first.
      if (j + 1 == count_ && stored_ + 1 < done) Report(j);
    }
    if (stored_ > before) Report((stored_ - 1) % count_);
  }

 private:
  void Report(std::size_t j) {
    if (progress_) progress_(static_cast<int>(j), static_cast<int>(count_));
  }

  CZELwDoc& doc_;
  int kind_;
  double divisor_;
  std::size_t count_;
  const std::vector<double>& periods_;
  const std::vector<double>& omegas_;
  const std::vector<double>& peaks_;
  const SpectrumProgress& progress_;
  std::size_t stored_ = 0;
};

}  // namespace

double FirstPeriod(const SpectrumSettings& settings) {
  if (settings.kind == kCombinedDVA || settings.log_axis) {
    return std::max(settings.period_from, kLowestLogPeriod);
  }
  return settings.period_from;
}

std::vector<double> SpectrumPeriods(const SpectrumSettings& settings) {
  const int count = settings.period_count;
  const double from = FirstPeriod(settings);
  std::vector<double> periods(static_cast<std::size_t>(std::max(count, 0)));
  for (int j = 0; j < count; ++j) {
    periods[j] = settings.log_grid
                     ? LogGridPeriod(from, settings.period_to, count, j)
                     : GridPeriod(from, settings.period_to, count, j);
  }
  return periods;
}

void PrepareSpectrumDocument(CZELwDoc& doc, const SpectrumSettings& settings) {
  const int kind = settings.kind;
  if (kind != kPseudoAcceleration && kind != kAbsoluteAcceleration) {
    doc.length_unit = 1;
    doc.unit = "MM";
  }
  doc.amplitude_scale = settings.amplitude_scale;
  doc.time_scale = settings.time_scale;
  doc.record_name = settings.record_name;
  doc.results_in_g = settings.results_in_g ? 1 : 0;
  doc.type = TypeWordOfKind(kind);
  if (kind == kCombinedDVA) {
    if (doc.log_x == 0) doc.ToggleLogX();
    if (doc.log_y == 0) doc.ToggleLogY();
    doc.tripartite = 1;
  }
  doc.period_from = FirstPeriod(settings);
  doc.period_to = settings.period_to;
  doc.period_steps = settings.period_count;
  doc.spectrum_kind = kind;
  doc.log_period_axis = settings.log_axis ? 1 : 0;
  doc.damping = settings.damping;
  doc.curve_count = settings.damping_count;
  doc.damping_flag = 1;
}

int ComputeResponseSpectrum(CZELwDoc& doc, const SpectrumSettings& settings,
                            std::span<const RecordSample> record,
                            double time_step, MessageSink& messages,
                            const SpectrumRun& run) {
  if (!CheckSpectrumSettings(settings, messages)) return 0;
  if (settings.log_axis && settings.kind != kCombinedDVA && doc.log_x == 0) {
    doc.ToggleLogX();
  }

  const std::vector<double> forcing = RecordForcing(record);

  const int count = settings.period_count;
  const std::vector<double> periods = SpectrumPeriods(settings);
  std::vector<double> omegas(count);
  for (int j = 0; j < count; ++j) omegas[j] = kSpectrumTwoPi / periods[j];
  const DampingRate rate = settings.exact_damping
                               ? DampingRate::kExact
                               : DampingRate::kDampedFrequency;
  const std::size_t oscillators =
      static_cast<std::size_t>(count) * settings.damping_count;
  std::vector<double> peaks(oscillators);

  // Every damping ratio with every period, in the order the points are
  // stored; the coefficients are computed by the integrating threads.
  PeakJob job;
  job.forcing = forcing;
  job.count = oscillators;
  job.oscillator = [&](std::size_t o) {
    return ComputeOscillatorCoefficients(
        omegas[o % count], settings.damping[o / count], time_step, rate);
  };
  job.response = ResponseOfKind(settings.kind);
  job.peaks = peaks.data();
  PointWriter writer(doc, settings, periods, omegas, peaks, run.progress);
  IntegratePeaks(job, run.kernel,
                 [&](std::size_t done) { writer.StoreUpTo(done); });

  doc.SetAxisTitle(1, doc.BuildYAxisTitle());
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.title = "Earthquake Response Spectrum";
  if (settings.exact_damping) doc.title += " (exact)";
  doc.subtitle = settings.record_name;
  SetUpChart(doc);
  doc.SetDampingLegend();
  doc.axis_display = doc.axis_display == 0 ? 1 : 0;
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
  return 1;
}

std::vector<double> RecordForcing(std::span<const RecordSample> record) {
  std::vector<double> accel(record.size());
  for (std::size_t i = 0; i < record.size(); ++i) accel[i] = record[i].value;
  return BuildForcing(accel, !record.empty() && record[0].time == 0.0);
}

std::vector<double> PeakDisplacements(std::span<const RecordSample> record,
                                      double time_step,
                                      std::span<const double> omegas,
                                      double zeta, DampingRate rate) {
  std::vector<OscillatorCoefficients> oscillators;
  oscillators.reserve(omegas.size());
  for (double omega : omegas) {
    oscillators.push_back(
        ComputeOscillatorCoefficients(omega, zeta, time_step, rate));
  }
  std::vector<double> peaks(omegas.size());
  IntegratePeaks(RecordForcing(record), oscillators,
                 PeakResponse::kDisplacement, peaks);
  return peaks;
}

}  // namespace zel
