#include "core/codes/tolerant_compare.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace zel {

namespace {

constexpr double kUlpsOfTolerance = 32.0;

}  // namespace

int TolerantCompare(double a, double b) {
  if (a == b) return 0;
  if (a > b) {
    const double gap = std::nextafter(b, a) - b;
    return kUlpsOfTolerance * gap >= a - b ? 0 : 1;
  }
  if (a < b) {
    const double gap = std::nextafter(a, b) - a;
    return kUlpsOfTolerance * gap >= b - a ? 0 : -1;
  }
  return 0;
}

bool InterpolateTable(double x, std::span<const double> xs,
                      std::span<const double> ys, double& result) {
  const std::size_t n = std::min(xs.size(), ys.size());
  if (n < 1) return false;
  if (TolerantCompare(x, xs[0]) < 0) {
    result = ys[0];
    return true;
  }
  if (TolerantCompare(x, xs[n - 1]) >= 0) {
    result = ys[n - 1];
    return true;
  }
  std::size_t i = 1;
  while (i < n && !(TolerantCompare(x, xs[i - 1]) >= 0 &&
                    TolerantCompare(x, xs[i]) < 0)) {
    ++i;
  }
  if (i >= n) i = n - 1;
  result =
      ys[i - 1] + (ys[i] - ys[i - 1]) * (x - xs[i - 1]) / (xs[i] - xs[i - 1]);
  return true;
}

}  // namespace zel
