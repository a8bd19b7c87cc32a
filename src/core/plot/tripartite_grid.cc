#include "core/plot/tripartite_grid.h"

#include <cmath>
#include <functional>

#include "core/document/c_format.h"

namespace zel {
namespace {

bool Unknown(double value) { return value < -1000.0; }

// Far more steps than the widest chart needs (ten per decade of values);
// only a guard against a range no chart produces.
constexpr int kMaxSteps = 20000;

// One family's lines as functions of its value: where the line of a value
// reaches the velocity v, and its velocity at the period t.
struct Family {
  std::function<double(double value, double v)> t_at;
  std::function<double(double value, double t)> v_at;
  // The X edge the family enters the plot by and the one it leaves by, as
  // its lines' bottom crossings move across the plot with growing values.
  double first_edge;
  double second_edge;
  // Whether the crossing a lies before b in that direction.
  bool rising;
  bool Before(double a, double b) const { return rising ? a < b : a > b; }
};

// Where the line of `value` leaves the plot: by the family's first edge
// while it is not above the plot there, else by the top edge.
PixelPoint Exit(const TripartitePlot& plot, const Family& family,
                double value) {
  const double v = family.v_at(value, family.first_edge);
  if (v <= plot.y1()) return plot.Map(family.first_edge, v);
  return plot.Map(family.t_at(value, plot.y1()), plot.y1());
}

std::vector<GridLine> Lines(const TripartitePlot& plot, const Family& family,
                            CLogAxis& axis) {
  axis.Reset();
  std::vector<GridLine> lines;
  auto exit = [&](double value) { return Exit(plot, family, value); };
  double value = 0.00001;
  double increment = 0.00001;
  int phase = 0;
  bool drawn = false;
  for (int i = 0; i < kMaxSteps; ++i) {
    const double bottom_t = family.t_at(value, plot.y0());
    if (phase == 0 && !family.Before(bottom_t, family.first_edge)) phase = 1;
    if (phase == 1 && !family.Before(bottom_t, family.second_edge)) phase = 2;
    if (phase == 1) {
      lines.push_back({plot.Map(bottom_t, plot.y0()), exit(value)});
      drawn = true;
    } else if (phase == 2) {
      const double v = family.v_at(value, family.second_edge);
      if (!(v < plot.y1())) break;  // the family is complete
      lines.push_back({plot.Map(family.second_edge, v), exit(value)});
      drawn = true;
    }
    // Values 1 to 9 times each power of ten, by repeated addition; each
    // power of ten is handled twice, and labelled on its first pass.
    if (i % 10 != 0) {
      value += increment;
    } else {
      if (i != 0) increment *= 10.0;
      if (drawn) {
        const GridLine& last = lines.back();
        const auto anchor =
            LabelAnchor(axis.start, axis.end, last.from, last.to);
        if (anchor && plot.rect().Inside(*anchor)) {
          axis.AddLabel(LogLabelText(value), *anchor);
        }
      }
    }
  }
  axis.made = 1;
  return lines;
}

Family DisplacementLines(const TripartitePlot& plot) {
  return {
      [](double d, double v) { return DisplacementRelation(kUnknown, v, d); },
      [](double d, double t) { return DisplacementRelation(t, kUnknown, d); },
      plot.x0(), plot.x1(), true};
}

Family AccelerationLines(const TripartitePlot& plot) {
  const double g = plot.gravity();
  return {[g](double a, double v) {
            return AccelerationRelation(kUnknown, v, a, g);
          },
          [g](double a, double t) {
            return AccelerationRelation(t, kUnknown, a, g);
          },
          plot.x1(), plot.x0(), false};
}

// The reference axis along the line of `value`: from where the line enters
// the plot (the bottom edge, else the family's second edge once its bottom
// crossing lies beyond that edge) to where it leaves it.
void PlaceAxis(const TripartitePlot& plot, const Family& family, double value,
               CLogAxis& axis) {
  axis.Reset();
  const double bottom_t = family.t_at(value, plot.y0());
  const double edge = family.second_edge;
  const PixelPoint start = family.Before(edge, bottom_t)
                               ? plot.Map(edge, family.v_at(value, edge))
                               : plot.Map(bottom_t, plot.y0());
  axis.SetLine(start, Exit(plot, family, value));
}

}  // namespace

double DisplacementRelation(double t, double v, double d) {
  constexpr double kTwoPi = 2.0 * 3.14159;
  if (Unknown(t)) return -v + std::log10(kTwoPi * d);
  if (Unknown(v)) return -t + std::log10(kTwoPi * d);
  if (Unknown(d)) return std::pow(10.0, t + v) / kTwoPi;
  return kUnknown;
}

double AccelerationRelation(double t, double v, double a, double gravity) {
  constexpr double kTwoPi = 2.0 * 3.141592;
  if (Unknown(t)) return v - std::log10(a * gravity / kTwoPi);
  if (Unknown(v)) return t + std::log10(a * gravity / kTwoPi);
  if (Unknown(a)) return kTwoPi * std::pow(10.0, v - t) / gravity;
  return kUnknown;
}

TripartitePlot::TripartitePlot(const PlotRect& rect, double x_min, double x_max,
                               double y_min, double y_max, double gravity)
    : rect_(rect),
      x0_(std::log10(x_min)),
      x1_(std::log10(x_max)),
      y0_(std::log10(y_min)),
      y1_(std::log10(y_max)),
      gravity_(gravity) {
  valid_ = rect.width > 0 && rect.height > 0 && std::isfinite(x0_) &&
           std::isfinite(x1_) && std::isfinite(y0_) && std::isfinite(y1_) &&
           x0_ < x1_ && y0_ < y1_ && gravity > 0.0 && std::isfinite(gravity);
}

PixelPoint TripartitePlot::Map(double t, double v) const {
  return {
      rect_.left + TruncateToInt(rect_.width * (t - x0_) / (x1_ - x0_)),
      rect_.bottom() - TruncateToInt(rect_.height * (v - y0_) / (y1_ - y0_))};
}

void PlaceReferenceAxes(const TripartitePlot& plot, CLogAxis& displacement,
                        CLogAxis& acceleration) {
  if (!plot.valid()) {
    displacement.Reset();
    acceleration.Reset();
    return;
  }
  const double tc = (plot.x0() + plot.x1()) / 2.0;
  const double vc = (plot.y0() + plot.y1()) / 2.0;
  const double a_centre =
      AccelerationRelation(tc, vc, kUnknown, plot.gravity());
  const double d_centre = DisplacementRelation(tc, vc, kUnknown);
  PlaceAxis(plot, AccelerationLines(plot),
            2.0 * std::pow(10.0, DecadeExponent(a_centre)), displacement);
  PlaceAxis(plot, DisplacementLines(plot),
            2.0 * std::pow(10.0, DecadeExponent(d_centre)), acceleration);
}

std::vector<GridLine> DisplacementFamily(const TripartitePlot& plot,
                                         CLogAxis& axis) {
  if (!plot.valid()) return {};
  return Lines(plot, DisplacementLines(plot), axis);
}

std::vector<GridLine> AccelerationFamily(const TripartitePlot& plot,
                                         CLogAxis& axis) {
  if (!plot.valid()) return {};
  return Lines(plot, AccelerationLines(plot), axis);
}

}  // namespace zel
