// Response spectra of an earthquake record: one curve per damping ratio of
// the peak response of damped oscillators over a linear period grid.
#ifndef ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_
#define ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_

#include <array>
#include <functional>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"

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
};

// Fills a new document with the settings as the dialog does before the
// computation: unit and type words by kind, scales, record name, the
// tripartite set-up of kind 5, the lowest period of a logarithmic axis, the
// grid, the damping ratios and the response-spectrum mark.
void PrepareSpectrumDocument(CZELwDoc& doc, const SpectrumSettings& settings);

// Called on the calling thread after each period: position j of 0..range-1;
// it runs through the range once per damping ratio.
using SpectrumProgress = std::function<void(int position, int range)>;

// Reads the record from `file` and stores, for damping
// curve k and period j, the point (period, spectral value) through SetPoint
// without the last mark; then titles the chart and sets the "Damping :"
// legend. Returns 1 when the spectra were computed, 0 after a message (read
// failure, or a period count outside 1..5000, a damping count outside 1..6
// or an unknown kind, which the dialog never passes). Damping ratios of 1 or
// more give non-finite ordinates; records too short for a time step are
// refused by the reader.
int ComputeResponseSpectrum(CZELwDoc& doc, InputFile file,
                            MessageSink& messages,
                            const SpectrumProgress& progress = {});

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RESPONSE_SPECTRUM_H_
