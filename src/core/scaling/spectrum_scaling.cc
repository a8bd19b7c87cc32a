#include "core/scaling/spectrum_scaling.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "core/document/c_format.h"
#include "core/records/oscillator.h"
#include "core/records/response_spectrum.h"

namespace zel {

PeriodRange RangeOfT1(double t1, double low_factor, double high_factor) {
  return {low_factor * t1, high_factor * t1};
}

bool CheckScalingSettings(const ScalingSettings& settings,
                          MessageSink& messages) {
  const PeriodRange& range = settings.range;
  if (!(std::isfinite(range.low) && std::isfinite(range.high) &&
        range.low > 0.0 && range.high > range.low)) {
    messages.Show(
        "The period range must start above 0 sec and end above its start");
    return false;
  }
  if (!(settings.damping >= 0.0 && settings.damping < 1.0)) {
    messages.Show("The damping ratio must be at least 0 and less than 1");
    return false;
  }
  if (settings.rule == ScaleRule::kMinimum &&
      !(std::isfinite(settings.fraction) && settings.fraction > 0.0)) {
    messages.Show("The fraction of the design spectrum must be above 0");
    return false;
  }
  if (settings.periods < 1 || settings.periods > 5000) {
    messages.Show("The number of matching periods must be 1 to 5000");
    return false;
  }
  return true;
}

std::vector<double> MatchingPeriods(const PeriodRange& range, int count) {
  std::vector<double> periods;
  if (count < 1) return periods;
  periods.reserve(static_cast<std::size_t>(count));
  const double span = std::log(range.high / range.low);
  for (int j = 0; j < count; ++j) {
    periods.push_back(j == 0 ? range.low
                      : j == count - 1
                          ? range.high
                          : range.low * std::exp(span * j / (count - 1)));
  }
  return periods;
}

bool InterpolateCurve(std::span<const SpectrumPoint> curve, double period,
                      double& value) {
  if (curve.empty() || !(period >= curve.front().period) ||
      !(period <= curve.back().period)) {
    return false;
  }
  // The first point at or beyond the period; a corner point repeats no
  // period, so the segment below it is the one that holds it.
  const auto above = std::lower_bound(
      curve.begin(), curve.end(), period,
      [](const SpectrumPoint& p, double t) { return p.period < t; });
  if (above->period == period || above == curve.begin()) {
    value = above->sa;
    return true;
  }
  const SpectrumPoint& a = *(above - 1);
  const SpectrumPoint& b = *above;
  value = a.sa + (b.sa - a.sa) * (period - a.period) / (b.period - a.period);
  return true;
}

std::vector<double> PseudoAccelerations(std::span<const RecordSample> record,
                                        double time_step,
                                        std::span<const double> periods,
                                        double damping) {
  std::vector<double> omegas;
  omegas.reserve(periods.size());
  for (double period : periods) omegas.push_back(kSpectrumTwoPi / period);
  std::vector<double> peaks = PeakDisplacements(
      record, time_step, omegas, damping, DampingRate::kDampedFrequency);
  for (std::size_t j = 0; j < peaks.size(); ++j) {
    peaks[j] *= omegas[j] * omegas[j];
  }
  return peaks;
}

std::vector<double> MeanSpectrum(std::span<const std::vector<double>> spectra) {
  if (spectra.empty()) return {};
  std::vector<double> mean(spectra.front().size(), 0.0);
  for (const std::vector<double>& spectrum : spectra) {
    for (std::size_t j = 0; j < mean.size() && j < spectrum.size(); ++j) {
      mean[j] += spectrum[j];
    }
  }
  for (double& value : mean) value /= static_cast<double>(spectra.size());
  return mean;
}

double LogMisfit(std::span<const double> record, std::span<const double> code,
                 double factor) {
  const std::size_t n = std::min(record.size(), code.size());
  if (n == 0) return 0.0;
  double squares = 0.0;
  for (std::size_t j = 0; j < n; ++j) {
    const double residual = std::log(factor * record[j] / code[j]);
    squares += residual * residual;
  }
  return std::sqrt(squares / static_cast<double>(n));
}

bool ComputeScaleFactor(std::span<const double> record,
                        std::span<const double> code,
                        const ScalingSettings& settings, ScaleResult& result,
                        MessageSink& messages) {
  const std::size_t n = std::min(record.size(), code.size());
  // Only a message names a period.
  const auto period_at = [&](std::size_t j) {
    return MatchingPeriods(settings.range, static_cast<int>(n))[j];
  };
  if (n == 0) {
    messages.Show("There is no period to match the spectra at");
    return false;
  }
  std::vector<double> log_ratios(n);  // ln(code / record)
  for (std::size_t j = 0; j < n; ++j) {
    if (!(std::isfinite(code[j]) && code[j] > 0.0)) {
      messages.Show(
          CFormat("The design spectrum is not above 0 at T = %g sec: there is "
                  "nothing to scale to",
                  period_at(j)));
      return false;
    }
    if (!(std::isfinite(record[j]) && record[j] > 0.0)) {
      messages.Show(CFormat(
          "The record's spectrum is not above 0 at T = %g sec: no factor "
          "can scale it",
          period_at(j)));
      return false;
    }
    log_ratios[j] = std::log(code[j]) - std::log(record[j]);
  }

  // The smallest record/code ratio is the largest code/record one.
  const auto governing = std::max_element(log_ratios.begin(), log_ratios.end());
  result.governing = static_cast<int>(governing - log_ratios.begin());
  if (settings.rule == ScaleRule::kMinimum) {
    result.factor =
        settings.fraction * code[result.governing] / record[result.governing];
  } else {
    double log_factor = 0.0;
    for (double r : log_ratios) log_factor += r;
    log_factor /= static_cast<double>(n);
    result.factor = std::exp(log_factor);
  }
  result.misfit = LogMisfit(record, code, result.factor);
  return true;
}

}  // namespace zel
