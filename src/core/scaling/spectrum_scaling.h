// Scaling an earthquake record to a design spectrum: the periods over which
// the record's spectrum is matched to the code's, the two rules for the
// amplitude factor, and the mean spectrum of a suite of records.
#ifndef ZEL_CORE_SCALING_SPECTRUM_SCALING_H_
#define ZEL_CORE_SCALING_SPECTRUM_SCALING_H_

#include <span>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

enum class ScaleRule {
  // The factor that minimises the sum of squared differences of the
  // logarithms of the scaled record spectrum and the code spectrum over the
  // matching periods (PEER's rule): the geometric mean of the ratios.
  kLeastSquares,
  // The smallest factor that keeps the scaled record spectrum at or above
  // `fraction` times the code spectrum at every matching period.
  kMinimum,
};

// The period range of a fundamental period T1, from low_factor * T1 to
// high_factor * T1 (0.2 T1 to 1.5 T1 in ASCE 7, to 2.0 T1 in Eurocode 8).
struct PeriodRange {
  double low = 0.2;
  double high = 3.0;
};
PeriodRange RangeOfT1(double t1, double low_factor, double high_factor);

struct ScalingSettings {
  PeriodRange range;
  double damping = 0.05;
  ScaleRule rule = ScaleRule::kLeastSquares;
  double fraction = 0.9;  // the minimum rule's share of the code spectrum
  int periods = 100;      // matching periods, evenly spaced in log(T)
};

// Refuses a range, damping, fraction or period count that gives no factor,
// with a message; true when the settings can be used.
bool CheckScalingSettings(const ScalingSettings& settings,
                          MessageSink& messages);

// `count` periods from range.low to range.high, both included, evenly
// spaced on a logarithmic period axis (one period when count is 1: low).
std::vector<double> MatchingPeriods(const PeriodRange& range, int count);

// The curve's ordinate at `period`, linear between its points (as the chart
// draws it); the points are in increasing period. False when the period
// lies outside the curve.
bool InterpolateCurve(std::span<const SpectrumPoint> curve, double period,
                      double& value);

// The pseudo-acceleration spectrum, omega^2 Sd, of a record in g with time
// step `time_step`, at each period for damping ratio `damping`: the same
// oscillator as the response spectra.
std::vector<double> PseudoAccelerations(std::span<const RecordSample> record,
                                        double time_step,
                                        std::span<const double> periods,
                                        double damping);

// The arithmetic mean, period by period, of spectra of equal length.
std::vector<double> MeanSpectrum(std::span<const std::vector<double>> spectra);

// Root mean square of ln(factor * record / code) over the periods: 0 for a
// perfect match, 0.1 about 10 % off on the average. The ordinates are
// expected above 0.
double LogMisfit(std::span<const double> record, std::span<const double> code,
                 double factor);

struct ScaleResult {
  double factor = 0.0;
  double misfit = 0.0;  // LogMisfit at the factor
  // The matching period where record / code is smallest, which governs the
  // minimum rule.
  int governing = 0;
};

// The factor by `settings.rule` of the record spectrum against the code
// spectrum at the same periods. False after a message when an ordinate is
// zero, negative or not finite, since no factor can then meet the code.
bool ComputeScaleFactor(std::span<const double> record,
                        std::span<const double> code,
                        const ScalingSettings& settings, ScaleResult& result,
                        MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_SCALING_SPECTRUM_SCALING_H_
