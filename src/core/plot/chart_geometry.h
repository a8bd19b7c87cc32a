// The numbers a chart view needs from a curve document: which points can be
// drawn, the axis ranges that show them, the frame around the plot and where
// a free label lands. Kept here so that the view only paints.
#ifndef ZEL_CORE_PLOT_CHART_GEOMETRY_H_
#define ZEL_CORE_PLOT_CHART_GEOMETRY_H_

#include <vector>

#include "core/document/curve_document.h"
#include "core/plot/chart_model.h"

namespace zel {

// Values beyond this magnitude (or, on a log axis, below its inverse) are not
// drawn: they would only squeeze every other point into one pixel.
inline constexpr double kMaxPlotMagnitude = 1e150;

struct PlotSeries {
  std::vector<double> x;
  std::vector<double> y;
};

// The points of curve c that can be drawn on the document's current scales:
// pairs with a non-finite or huge value, or a value not above 0 on a log
// axis, are left out.
PlotSeries DrawablePoints(const CZELwDoc& doc, int c);

struct AxisRange {
  double lower = 0.0;
  double upper = 1.0;
  friend bool operator==(const AxisRange&, const AxisRange&) = default;
};

struct ChartRanges {
  AxisRange x;
  AxisRange y;
};

// Ranges that show every drawable point of `series`. Log axes span the
// whole decades of the values; while the log-range handling is on they start
// no lower than its minimum, and a point below the minimum of a log axis
// counts for neither axis. A linear Y axis of positive values starts at 0
// and leaves a little room above the highest value. An empty or flat set of
// values still gives a valid, non-empty range.
ChartRanges FitChartRanges(const CZELwDoc& doc,
                           const std::vector<PlotSeries>& series);

// The screen is taken as 4 pixels per millimetre.
inline constexpr double kScreenPixelsPerMm = 4.0;
inline constexpr Rgb kChartFrameColour = {150, 150, 250};
// Width of the frame drawn around the plot: half a millimetre, truncated.
int ChartFrameWidth(double pixels_per_mm);

struct PercentPoint {
  double x = 0.0;
  double y = 0.0;
};
// A point of the view's client area in per cent of its width and height.
PercentPoint PercentOfClientArea(int x, int y, int width, int height);

}  // namespace zel

#endif  // ZEL_CORE_PLOT_CHART_GEOMETRY_H_
