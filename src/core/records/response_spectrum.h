// Response spectra of an earthquake record: one curve per damping ratio of
// the peak response of damped oscillators over a linear period grid.
#ifndef ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_
#define ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_

#include <array>
#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/document/curve_document.h"
#include "core/document/messages.h"
#include "core/records/oscillator.h"
#include "core/records/spectrum_kernel.h"

namespace zel {

inline constexpr int kMaxPeriods = 5000;
// The lowest period of a logarithmic period axis: 0.01 in single precision.
inline constexpr double kLowestLogPeriod = static_cast<double>(0.01f);

// What the response-spectrum dialog collects.
struct SpectrumSettings {
  double amplitude_scale = 1.0;
  double time_scale = 1.0;
  std::string record_name;
  std::array<double, kMaxCurves> damping{};  // in the order of the edits
  int damping_count = 1;
  double period_from = 0.0;
  double period_to = 3.0;
  int period_count = 200;
  int kind = kPseudoAcceleration;
  bool log_axis = false;
  // Periods spaced geometrically from the first period to "to", both
  // included, instead of the half-open linear grid.
  bool log_grid = false;
  // The textbook decay rate in the step (DampingRate::kExact); the chart and
  // the titles then say "(exact)".
  bool exact_damping = false;
  // The record's values stay in g and acceleration ordinates are not
  // divided by g.
  bool results_in_g = false;
};

// The first period of the grid: "from", raised to kLowestLogPeriod on a
// logarithmic period axis and for the tripartite kind.
double FirstPeriod(const SpectrumSettings& settings);

// The N periods of the grid: the half-open linear grid from FirstPeriod (a
// period of 0 replaced by kZeroPeriod), or the log-spaced one.
std::vector<double> SpectrumPeriods(const SpectrumSettings& settings);

// Shows the message of the first setting outside what the computation takes
// (see ComputeResponseSpectrum) and returns false; true when all are fine.
bool CheckSpectrumSettings(const SpectrumSettings& settings,
                           MessageSink& messages);

// Fills a new document with the settings as the dialog does before the
// record is read: unit and type words by kind, scales, record name, the
// tripartite set-up of kind 5, the grid from FirstPeriod, the damping ratios
// and the response-spectrum mark.
void PrepareSpectrumDocument(CZELwDoc& doc, const SpectrumSettings& settings);

// Called on the calling thread as the spectra advance: the points of the
// curve being filled are stored up to period `position` of 0..range-1. The
// position rises to range - 1 for each damping ratio in turn; not every
// period is reported.
using SpectrumProgress = std::function<void(int position, int range)>;

// How a computation runs; the ordinates do not depend on it, except that
// KernelOptions::displacement_recurrence = false gives the reference step
// loop's bits for the displacement kinds too.
struct SpectrumRun {
  SpectrumProgress progress;
  KernelOptions kernel;
};

// Computes the spectra of `record` (time step `time_step`, values as the
// record reader stores them) for `settings` and stores, for damping curve k
// and period j, the point (period, spectral value) through SetPoint without
// the last mark; then titles the chart, sets the "Damping :" legend and
// toggles the axis display. The document is expected to be prepared by
// PrepareSpectrumDocument; nothing is read back from it but its unit.
// Returns 1, or 0 after a message when the settings are outside what the
// dialog passes (a period count outside 1..5000, a damping count outside
// 1..6, an unknown kind, a log-spaced grid with a first or last period of 0
// or less). Damping ratios of 1 or more give ordinates of 0,
// as does a time step of 0.
int ComputeResponseSpectrum(CZELwDoc& doc, const SpectrumSettings& settings,
                            std::span<const RecordSample> record,
                            double time_step, MessageSink& messages,
                            const SpectrumRun& run = {});

// BuildForcing of a record's accelerations; a record whose first sample is at
// time 0 starts from the ground at rest.
std::vector<double> RecordForcing(std::span<const RecordSample> record);

// The peak relative displacement under `record` of an oscillator of each
// circular frequency in `omegas` with damping ratio `zeta`.
std::vector<double> PeakDisplacements(std::span<const RecordSample> record,
                                      double time_step,
                                      std::span<const double> omegas,
                                      double zeta, DampingRate rate);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_
