#include "core/plot/axis_ticks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace zel {
namespace {

// Relative slack for values that should sit exactly on a range end.
constexpr double kSlack = 1e-9;
// No axis needs more; a guard against ranges a step cannot resolve.
constexpr int kMostTicks = 200;
// From this many decades on, a log axis carries the powers of ten only.
constexpr double kDecadesForPowersOnly = 1.9;

double Mantissa(double round_step) {
  return round_step / std::pow(10.0, std::floor(std::log10(round_step)));
}

// The smallest step of 1, 2 or 5 times a power of ten that is not below
// `at_least`.
double RoundStepAtLeast(double at_least) {
  const double power = std::pow(10.0, std::floor(std::log10(at_least)));
  for (double m : {1.0, 2.0, 5.0}) {
    if (m * power >= at_least * (1.0 - kSlack)) return m * power;
  }
  return 10.0 * power;
}

double NextRoundStep(double step) {
  const double m = Mantissa(step);
  return step * (m < 1.5 ? 2.0 : m < 3.5 ? 2.5 : 2.0);
}

double PreviousRoundStep(double step) {
  const double m = Mantissa(step);
  return step / (m < 1.5 ? 2.0 : m < 3.5 ? 2.0 : 2.5);
}

std::vector<double> Multiples(double lower, double upper, double step) {
  std::vector<double> ticks;
  const double slack = step * kSlack;
  double k = std::ceil((lower - slack) / step);
  for (int n = 0; n < kMostTicks; ++n, k += 1.0) {
    const double v = k * step + 0.0;  // never -0
    if (v > upper + slack) break;
    if (!ticks.empty() && v <= ticks.back()) break;  // step below precision
    ticks.push_back(v);
  }
  return ticks;
}

bool Usable(double lower, double upper) {
  return std::isfinite(lower) && std::isfinite(upper) && upper > lower;
}

// m times each power of ten, for every m of `mantissas`, within the range.
std::vector<double> LogMultiples(double lower, double upper,
                                 std::initializer_list<double> mantissas) {
  std::vector<double> ticks;
  const int first = static_cast<int>(std::floor(std::log10(lower)));
  const int last = static_cast<int>(std::ceil(std::log10(upper)));
  for (int e = first; e <= last; ++e) {
    const double power = std::pow(10.0, e);
    for (double m : mantissas) {
      const double v = m * power;
      if (v >= lower * (1.0 - kSlack) && v <= upper * (1.0 + kSlack)) {
        ticks.push_back(v);
      }
    }
  }
  return ticks;
}

}  // namespace

std::vector<double> LinearTicks(double lower, double upper, int max_count,
                                double min_step) {
  if (!Usable(lower, upper)) return {};
  max_count = std::max(max_count, 2);
  const double floor_step = min_step > 0.0 ? min_step : 0.0;
  double step =
      RoundStepAtLeast(std::max(floor_step, (upper - lower) / max_count));
  std::vector<double> ticks = Multiples(lower, upper, step);
  while (static_cast<int>(ticks.size()) > max_count) {
    step = NextRoundStep(step);
    ticks = Multiples(lower, upper, step);
  }
  while (ticks.size() < 2) {
    const double finer = PreviousRoundStep(step);
    if (finer < floor_step * (1.0 - kSlack)) break;
    step = finer;
    ticks = Multiples(lower, upper, step);
  }
  return ticks;
}

std::vector<double> LogTicks(double lower, double upper, int max_count) {
  if (!Usable(lower, upper) || lower <= 0.0) return {};
  max_count = std::max(max_count, 2);
  const double decades = std::log10(upper / lower);
  if (decades >= kDecadesForPowersOnly) {
    const std::vector<double> powers = LogMultiples(lower, upper, {1.0});
    const std::size_t stride =
        (powers.size() + max_count - 1) / static_cast<std::size_t>(max_count);
    std::vector<double> ticks;
    for (std::size_t i = 0; i < powers.size(); i += std::max<size_t>(stride, 1))
      ticks.push_back(powers[i]);
    return ticks;
  }
  const std::array<std::initializer_list<double>, 3> sets = {{
      {1.0},
      {1.0, 2.0, 5.0},
      {1.0, 2.0, 3.0, 4.0, 5.0, 6.0, 7.0, 8.0, 9.0},
  }};
  std::size_t set = decades > 1.0 + kSlack ? 1 : 2;
  std::vector<double> ticks = LogMultiples(lower, upper, sets[set]);
  while (static_cast<int>(ticks.size()) > max_count && set > 0) {
    ticks = LogMultiples(lower, upper, sets[--set]);
  }
  if (ticks.size() < 3) {
    std::vector<double> linear = LinearTicks(lower, upper, max_count);
    if (linear.size() > ticks.size()) return linear;
  }
  return ticks;
}

std::vector<bool> LabelsThatFit(const std::vector<double>& centres,
                                const std::vector<double>& extents, double gap,
                                const std::vector<bool>& preferred) {
  const std::size_t n = std::min(centres.size(), extents.size());
  std::vector<bool> shown(centres.size(), false);
  std::vector<std::size_t> order;
  for (int pass = 0; pass < 2; ++pass) {
    for (std::size_t i = 0; i < n; ++i) {
      const bool first = i < preferred.size() && preferred[i];
      if (first == (pass == 0)) order.push_back(i);
    }
  }
  for (std::size_t i : order) {
    const double lo = centres[i] - extents[i] / 2.0;
    const double hi = centres[i] + extents[i] / 2.0;
    bool fits = true;
    for (std::size_t j = 0; j < n && fits; ++j) {
      if (!shown[j]) continue;
      const double other_lo = centres[j] - extents[j] / 2.0;
      const double other_hi = centres[j] + extents[j] / 2.0;
      fits = hi + gap <= other_lo || lo - gap >= other_hi;
    }
    shown[i] = fits;
  }
  return shown;
}

bool IsPowerOfTen(double value) {
  if (!(value > 0.0) || !std::isfinite(value)) return false;
  const double e = std::log10(value);
  return std::fabs(e - std::round(e)) < 1e-9;
}

}  // namespace zel
