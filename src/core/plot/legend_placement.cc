#include "core/plot/legend_placement.h"

#include <algorithm>
#include <cmath>

namespace zel {
namespace {

// Liang-Barsky: clips the parameter range [t0, t1] of the segment against
// one boundary; false when nothing is left.
bool Clip(double p, double q, double& t0, double& t1) {
  if (p == 0.0) return q >= 0.0;
  const double t = q / p;
  if (p < 0.0) {
    if (t > t1) return false;
    t0 = std::max(t0, t);
  } else {
    if (t < t0) return false;
    t1 = std::min(t1, t);
  }
  return true;
}

}  // namespace

PixelRectF LegendRect(const PixelRectF& plot, double width, double height,
                      LegendPlace place) {
  const bool left =
      place == LegendPlace::kTopLeft || place == LegendPlace::kBottomLeft;
  const bool top =
      place == LegendPlace::kTopLeft || place == LegendPlace::kTopRight;
  PixelRectF r;
  r.left = left ? plot.left : plot.right - width;
  r.right = r.left + width;
  r.top = top ? plot.top : plot.bottom - height;
  r.bottom = r.top + height;
  return r;
}

bool SegmentTouches(PixelPointF a, PixelPointF b, const PixelRectF& rect) {
  if (!std::isfinite(a.x) || !std::isfinite(a.y) || !std::isfinite(b.x) ||
      !std::isfinite(b.y)) {
    return false;
  }
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  double t0 = 0.0;
  double t1 = 1.0;
  return Clip(-dx, a.x - rect.left, t0, t1) &&
         Clip(dx, rect.right - a.x, t0, t1) &&
         Clip(-dy, a.y - rect.top, t0, t1) &&
         Clip(dy, rect.bottom - a.y, t0, t1);
}

LegendPlace PlaceLegend(const PixelRectF& plot, double width, double height,
                        const std::vector<std::vector<PixelPointF>>& curves) {
  if (width > plot.right - plot.left || height > plot.bottom - plot.top) {
    return LegendPlace::kOutside;
  }
  for (LegendPlace place :
       {LegendPlace::kTopRight, LegendPlace::kTopLeft,
        LegendPlace::kBottomRight, LegendPlace::kBottomLeft}) {
    const PixelRectF r = LegendRect(plot, width, height, place);
    bool free = true;
    for (const auto& curve : curves) {
      for (std::size_t i = 0; free && i < curve.size(); ++i) {
        free = !SegmentTouches(curve[i],
                               curve[i + 1 < curve.size() ? i + 1 : i], r);
      }
      if (!free) break;
    }
    if (free) return place;
  }
  return LegendPlace::kOutside;
}

}  // namespace zel
