// Shanghai DGJ08-9-2003 seismic influence coefficient curve: the rising
// branch to 0.1 s, the plateau to the characteristic period Tg, the power
// decay to 5 Tg, the straight descent to 10 s and a constant beyond, with
// this code's own damping adjustments.
#ifndef ZEL_CORE_CODES_SHANGHAI2003_H_
#define ZEL_CORE_CODES_SHANGHAI2003_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kShanghai2003Title[] = "China Shanghai(DGJ08-9-2003)";
inline constexpr std::array<const char*, 3> kShanghai2003Intensities = {
    "6(0.05g)", "7(0.10g)", "8(0.20g)"};
inline constexpr std::array<const char*, 2> kShanghai2003SiteClasses = {"III",
                                                                        "IV"};
inline constexpr std::array<const char*, 2> kShanghai2003Effects = {"Frequent",
                                                                    "Scarce"};
// The straight descent ends here; the curve is constant beyond.
inline constexpr double kShanghai2003LastPeriod = 10.0;

struct Shanghai2003Params {
  int intensity = 0;  // 0..2: 6, 7, 8
  int site = 0;       // 0: III, 1: IV
  int effect = 0;     // 0: frequent, 1: scarce earthquake
  double tg = 0.65;   // s
  double damping = 0.05;
  // The curve runs to 10 s and beyond, not to 6 s.
  PeriodGrid grid{0.0, 10.0, 100};
};

// The Tg a click on a site class or earthquake effect writes: 0.65 (III) or
// 0.9 (IV) for a frequent earthquake, 1.1 for a scarce one.
double Shanghai2003Tg(int site, int effect);

struct Shanghai2003Coefficients {
  double gamma = 0.0;  // decay exponent
  double eta1 = 0.0;   // slope of the straight descent
  double eta2 = 0.0;   // damping adjustment
  double alpha_max = 0.0;
};
Shanghai2003Coefficients ComputeShanghai2003Coefficients(
    const Shanghai2003Params& params);

std::vector<SpectrumPoint> Shanghai2003Spectrum(
    const Shanghai2003Params& params);
std::string Shanghai2003Label(const Shanghai2003Params& params);

// Validates the grid (the code's only checks, besides refusing numbers that
// are not finite) and hands the curve over to `doc`.
bool GenerateShanghai2003(CZELwDoc& doc, const Shanghai2003Params& params,
                          MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_SHANGHAI2003_H_
