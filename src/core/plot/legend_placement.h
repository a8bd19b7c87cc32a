// Where a chart's legend goes: into a corner of the plot that no curve
// crosses, or beside the plot when every corner holds data, so that the
// legend never hides a curve.
#ifndef ZEL_CORE_PLOT_LEGEND_PLACEMENT_H_
#define ZEL_CORE_PLOT_LEGEND_PLACEMENT_H_

#include <vector>

namespace zel {

// A point in pixels, not rounded: curves pass between whole pixels.
struct PixelPointF {
  double x = 0.0;
  double y = 0.0;
};

// A rectangle in pixels, y growing downwards.
struct PixelRectF {
  double left = 0.0;
  double top = 0.0;
  double right = 0.0;
  double bottom = 0.0;
};

// In the order tried: the top right corner first, where a reader looks for a
// legend.
enum class LegendPlace {
  kTopRight,
  kTopLeft,
  kBottomRight,
  kBottomLeft,
  kOutside
};

// The rectangle of a legend of `width` x `height` in a corner of `plot`.
PixelRectF LegendRect(const PixelRectF& plot, double width, double height,
                      LegendPlace place);

// True when the segment from `a` to `b` touches `rect`.
bool SegmentTouches(PixelPointF a, PixelPointF b, const PixelRectF& rect);

// The first corner of `plot` whose legend rectangle no curve (a polyline
// through its points in pixels) touches; kOutside when the legend fits no
// corner that way or is larger than the plot.
LegendPlace PlaceLegend(const PixelRectF& plot, double width, double height,
                        const std::vector<std::vector<PixelPointF>>& curves);

}  // namespace zel

#endif  // ZEL_CORE_PLOT_LEGEND_PLACEMENT_H_
