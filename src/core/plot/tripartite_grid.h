// The diagonal grid of a tripartite chart (period on a logarithmic X axis,
// pseudo velocity on a logarithmic Y axis): lines of constant displacement
// and of constant acceleration at 1 to 9 times each power of ten, and the
// two reference axes their values are written on. Plain geometry in the
// drawing surface's pixels; the chart only draws what comes out.
#ifndef ZEL_CORE_PLOT_TRIPARTITE_GRID_H_
#define ZEL_CORE_PLOT_TRIPARTITE_GRID_H_

#include <vector>

#include "core/plot/log_axis.h"

namespace zel {

// Marks the argument a relation solves for; any argument below -1000
// counts as unknown.
inline constexpr double kUnknown = -2000.0;

// t = log10 period, v = log10 velocity, d the displacement: PSV = 2 pi D /
// T with pi taken as 3.14159. Solves for the first unknown of t, v, d;
// kUnknown when none is.
double DisplacementRelation(double t, double v, double d);
// The same for the acceleration a in g: PSV = a g T / (2 pi) with pi taken
// as 3.141592 and g the gravity factor (1 g in the length unit of the
// velocity, per second squared). The two roundings of pi differ on purpose.
double AccelerationRelation(double t, double v, double a, double gravity);

struct GridLine {
  PixelPoint from;
  PixelPoint to;
};

// The plot of a tripartite chart: its rectangle, its axis ranges as log10
// of their minimum and maximum, and the gravity factor.
class TripartitePlot {
 public:
  TripartitePlot(const PlotRect& rect, double x_min, double x_max, double y_min,
                 double y_max, double gravity);

  // Whether there is a log-log plot to draw on: a rectangle of some size,
  // positive finite increasing ranges and a positive gravity factor.
  bool valid() const { return valid_; }
  const PlotRect& rect() const { return rect_; }
  double gravity() const { return gravity_; }
  double x0() const { return x0_; }
  double x1() const { return x1_; }
  double y0() const { return y0_; }
  double y1() const { return y1_; }

  // The pixel of (t, v), each coordinate truncated towards zero.
  PixelPoint Map(double t, double v) const;

 private:
  PlotRect rect_;
  double x0_;
  double x1_;
  double y0_;
  double y1_;
  double gravity_;
  bool valid_;
};

// Lays the displacement reference axis along the acceleration line of twice
// the power of ten of the acceleration at the plot's centre, and the
// acceleration reference axis along the displacement line chosen alike;
// both lose their labels. Where such a line misses the plot its axis ends
// lie off the plot, and the chart does not draw it.
void PlaceReferenceAxes(const TripartitePlot& plot, CLogAxis& displacement,
                        CLogAxis& acceleration);

// The lines of one family from 0.00001 upwards, each from edge to edge of
// the plot, with a label for each power of ten whose line crosses the
// reference axis strictly inside the plot. `axis` must have been placed;
// its labels are made anew.
std::vector<GridLine> DisplacementFamily(const TripartitePlot& plot,
                                         CLogAxis& axis);
std::vector<GridLine> AccelerationFamily(const TripartitePlot& plot,
                                         CLogAxis& axis);

}  // namespace zel

#endif  // ZEL_CORE_PLOT_TRIPARTITE_GRID_H_
