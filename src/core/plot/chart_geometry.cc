#include "core/plot/chart_geometry.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/document/c_format.h"

namespace zel {
namespace {

bool Drawable(double v, bool log) {
  if (!std::isfinite(v) || std::fabs(v) > kMaxPlotMagnitude) return false;
  return !log || v >= 1.0 / kMaxPlotMagnitude;
}

struct Bounds {
  double min = std::numeric_limits<double>::infinity();
  double max = -std::numeric_limits<double>::infinity();
  bool empty() const { return min > max; }
  void Add(double v) {
    min = std::min(min, v);
    max = std::max(max, v);
  }
};

AxisRange FitLog(Bounds b, bool clamp, double log_min) {
  if (clamp && log_min > 0.0) {
    b.min = b.empty() ? log_min : std::max(b.min, log_min);
    b.max = b.empty() ? log_min : std::max(b.max, b.min);
  }
  if (b.empty()) return {1.0, 10.0};
  AxisRange r{std::pow(10.0, std::floor(std::log10(b.min))),
              std::pow(10.0, std::ceil(std::log10(b.max)))};
  if (!(r.upper > r.lower)) r.upper = r.lower * 10.0;
  return r;
}

// Room left above a curve's peak (and below a negative trough) so that a
// plateau does not run along the frame, in parts of the data's span.
constexpr double kHeadroom = 0.05;

AxisRange FitLinear(Bounds b, bool is_y) {
  if (b.empty()) return {0.0, 1.0};
  if (is_y && b.min > 0.0) b.min = 0.0;
  if (b.max > b.min) {
    if (!is_y) return {b.min, b.max};
    const double room = kHeadroom * (b.max - b.min);
    return {b.min < 0.0 ? b.min - room : b.min,
            b.max > 0.0 ? b.max + room : b.max};
  }
  const double half = b.min == 0.0 ? 1.0 : std::fabs(b.min) * 0.5;
  return {b.min - half, b.max + half};
}

}  // namespace

PlotSeries DrawablePoints(const CZELwDoc& doc, int c) {
  PlotSeries out;
  if (c < 0 || c >= kMaxCurves) return out;
  const auto xs = doc.store().Items(2 * c);
  const auto ys = doc.store().Items(2 * c + 1);
  const std::size_t n = std::min(xs.size(), ys.size());
  out.x.reserve(n);
  out.y.reserve(n);
  for (std::size_t i = 0; i < n; ++i) {
    const double x = xs[i].value;
    const double y = ys[i].value;
    if (!Drawable(x, doc.log_x) || !Drawable(y, doc.log_y)) continue;
    out.x.push_back(x);
    out.y.push_back(y);
  }
  return out;
}

ChartRanges FitChartRanges(const CZELwDoc& doc,
                           const std::vector<PlotSeries>& series) {
  const bool clamp = doc.chart.log_range;
  // While the log range handling is on, a point below a log axis's minimum
  // lies outside the chart (a spectrum's zero period, its value near zero):
  // it must not stretch either axis over decades that show nothing.
  const double min_x = clamp && doc.log_x ? doc.chart.log_min_x : 0.0;
  const double min_y = clamp && doc.log_y ? doc.chart.log_min_y : 0.0;
  Bounds bx;
  Bounds by;
  for (const PlotSeries& s : series) {
    for (std::size_t i = 0; i < s.x.size() && i < s.y.size(); ++i) {
      if (min_x > 0.0 && s.x[i] < min_x) continue;
      if (min_y > 0.0 && s.y[i] < min_y) continue;
      bx.Add(s.x[i]);
      by.Add(s.y[i]);
    }
  }
  ChartRanges r;
  r.x =
      doc.log_x ? FitLog(bx, clamp, doc.chart.log_min_x) : FitLinear(bx, false);
  r.y =
      doc.log_y ? FitLog(by, clamp, doc.chart.log_min_y) : FitLinear(by, true);
  return r;
}

int ChartFrameWidth(double pixels_per_mm) {
  return TruncateToInt(0.5 * pixels_per_mm);
}

PercentPoint PercentOfClientArea(int x, int y, int width, int height) {
  PercentPoint p;
  if (width > 0) p.x = static_cast<double>(x) / width * 100.0;
  if (height > 0) p.y = static_cast<double>(y) / height * 100.0;
  return p;
}

}  // namespace zel
