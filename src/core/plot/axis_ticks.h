// Where an axis carries its ticks (and so its grid lines) and which tick
// labels it shows. Round values only: a reader takes numbers off a chart at
// the grid lines, so 10, 20, 30 Hz rather than multiples of a bin width.
#ifndef ZEL_CORE_PLOT_AXIS_TICKS_H_
#define ZEL_CORE_PLOT_AXIS_TICKS_H_

#include <vector>

namespace zel {

// Ticks of a linear axis from `lower` to `upper`: the multiples within the
// range of a round step (1, 2 or 5 times a power of ten), the smallest such
// step not below `min_step` that gives at most `max_count` ticks, yet two
// ticks at least while a finer step allows.
std::vector<double> LinearTicks(double lower, double upper, int max_count,
                                double min_step = 0.0);

// Ticks of a logarithmic axis from `lower` to `upper` (both positive). A
// span of about two decades or more gets the powers of ten only (every
// second, third ... one when more than `max_count` would not fit). A shorter
// span gets 1, 2 and 5 times the powers of ten, or every 1 to 9 times within
// about one decade, so that it never shows a single tick; a range inside one
// decade too narrow even for those (a zoom) gets round linear ticks.
std::vector<double> LogTicks(double lower, double upper, int max_count);

// Which tick labels to draw so that none overlaps another. `centres` are the
// labels' pixel positions along the axis, `extents` their sizes along it;
// neighbours keep at least `gap` pixels between them. Preferred labels
// (powers of ten on a log axis) are placed first, the others in axis order
// wherever they still fit.
std::vector<bool> LabelsThatFit(const std::vector<double>& centres,
                                const std::vector<double>& extents, double gap,
                                const std::vector<bool>& preferred);

// True for a power of ten (within rounding), the labels a log axis keeps
// first.
bool IsPowerOfTen(double value);

}  // namespace zel

#endif  // ZEL_CORE_PLOT_AXIS_TICKS_H_
