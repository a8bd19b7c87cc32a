// The period grid on which every design spectrum is sampled: From and To in
// seconds and Step, the number of equal intervals between them. Extra points
// are inserted exactly at a code's corner periods so that the plateau ends
// are drawn sharp.
#ifndef ZEL_CORE_CODES_PERIOD_GRID_H_
#define ZEL_CORE_CODES_PERIOD_GRID_H_

#include <functional>
#include <span>
#include <vector>

#include "core/document/messages.h"

namespace zel {

struct PeriodGrid {
  double from = 0.0;
  double to = 6.0;
  int steps = 100;  // number of intervals, not a step size
};

// The grid's three checks, in the order they are made.
inline constexpr char kFromMessage[] =
    "The edit value in 'From' must be greater than or equal to 0";
inline constexpr char kToMessage[] =
    "The edit value in 'To' must be greater than the edit value in 'From'";
inline constexpr char kStepMessage[] =
    "The edit value in 'Step' must be greater than or equal to 1";
// More intervals than this would only exhaust memory; no chart needs them.
inline constexpr int kMaxPeriodSteps = 100000;
inline constexpr char kStepTooLargeMessage[] =
    "The edit value in 'Step' must be less than or equal to 100000";

// Shows the message of the first failing check and returns false. NaN or
// infinite From and To fail the check of their field.
bool ValidatePeriodGrid(const PeriodGrid& grid, MessageSink& messages);

// h = (To - From) / N.
double GridSpacing(const PeriodGrid& grid);
// e = h / N: a corner this close to a grid period is marked by that period.
double CornerTolerance(const PeriodGrid& grid);

// The two spellings of "the step ending at T has just stepped over the
// corner" found in the codes. They agree except in the last bits, which can
// decide whether a corner next to a grid period gets its own point.
enum class CornerRule {
  // Tc - e > T - h: the classic US generators (ATC 3-06, UBC).
  kPastPreviousPeriod,
  // T < Tc + h - e: IBC2000 and the codes computed in their dialogs.
  kInsideStep,
};

// True when a corner point at `corner` belongs just before the grid period
// t, whose step has spacing h and corner tolerance e.
bool StepsOverCorner(double t, double corner, double h, double e,
                     CornerRule rule);

// Periods at or below 1e-6 s are moved to 1e-6 (single precision) so that
// the T^(-2/3) and T^(-1/2) branches of the US and Korean building codes
// stay finite.
inline constexpr double kSmallestPeriod = 9.999999974752427e-7;
constexpr double MoveAwayFromZero(double t) {
  return t <= 1e-6 ? kSmallestPeriod : t;
}

struct SpectrumPoint {
  double period = 0.0;
  double sa = 0.0;
};

// Samples a spectrum over the grid: for i = 0..N, T = From + h * i; before
// each grid point, every corner the step has just passed is written with its
// own value (corners are tested in the order given). `at` returns the point
// written for a grid period; a code may move the period, e.g. away from 0.
std::vector<SpectrumPoint> SampleSpectrum(
    const PeriodGrid& grid, std::span<const SpectrumPoint> corners,
    CornerRule rule, const std::function<SpectrumPoint(double)>& at);

}  // namespace zel

#endif  // ZEL_CORE_CODES_PERIOD_GRID_H_
