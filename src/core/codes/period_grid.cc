#include "core/codes/period_grid.h"

#include <cmath>
#include <cstddef>

namespace zel {

bool ValidatePeriodGrid(const PeriodGrid& grid, MessageSink& messages) {
  // Written as negations so that NaN fails the check of its own field.
  if (!(grid.from >= 0.0)) {
    messages.Show(kFromMessage);
    return false;
  }
  if (!(grid.from < grid.to) || !std::isfinite(grid.to)) {
    messages.Show(kToMessage);
    return false;
  }
  if (grid.steps < 1) {
    messages.Show(kStepMessage);
    return false;
  }
  if (grid.steps > kMaxPeriodSteps) {
    messages.Show(kStepTooLargeMessage);
    return false;
  }
  return true;
}

double GridSpacing(const PeriodGrid& grid) {
  return (grid.to - grid.from) / grid.steps;
}

double CornerTolerance(const PeriodGrid& grid) {
  return GridSpacing(grid) / grid.steps;
}

bool StepsOverCorner(double t, double corner, double h, double e,
                     CornerRule rule) {
  if (!(t > corner + e)) return false;
  switch (rule) {
    case CornerRule::kPastPreviousPeriod:
      return corner - e > t - h;
    case CornerRule::kInsideStep:
      return t < corner + h - e;
  }
  return false;
}

std::vector<SpectrumPoint> SampleSpectrum(
    const PeriodGrid& grid, std::span<const SpectrumPoint> corners,
    CornerRule rule, const std::function<SpectrumPoint(double)>& at) {
  std::vector<SpectrumPoint> points;
  if (grid.steps < 1 || grid.steps > kMaxPeriodSteps) return points;
  const double h = GridSpacing(grid);
  const double e = CornerTolerance(grid);
  points.reserve(static_cast<std::size_t>(grid.steps) + 1 + corners.size());
  for (int i = 0; i <= grid.steps; ++i) {
    const double t = grid.from + h * i;
    for (const SpectrumPoint& corner : corners) {
      if (StepsOverCorner(t, corner.period, h, e, rule)) {
        points.push_back(corner);
      }
    }
    points.push_back(at(t));
  }
  return points;
}

}  // namespace zel
