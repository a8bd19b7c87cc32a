#include "core/plot/log_axis.h"

#include <cmath>
#include <utility>

#include "core/document/c_format.h"

namespace zel {

int DecadeExponent(double u) {
  if (!(u > 0.0) || !std::isfinite(u)) return 0;
  int exponent = 0;
  if (u > 1.05) {
    while (u / 10.0 >= 0.95) {
      u /= 10.0;
      ++exponent;
    }
  } else if (u < 0.95) {
    while (u * 10.0 < 9.5) {
      u *= 10.0;
      --exponent;
    }
  }
  return exponent;
}

std::string LogLabelText(double u) {
  const int exponent = DecadeExponent(u);
  const std::string text = CFormat("%f", u);
  const int keep = exponent >= 0 ? exponent + 2 : 2 - exponent;
  return text.substr(0, static_cast<std::size_t>(keep));
}

int AxisAngle(PixelPoint start, PixelPoint end) {
  // 1800 / 3.14159: the angle in tenths of a degree from a rounded pi.
  constexpr double kTenthsPerRadian = 572.9582790879778;
  const double rise = end.y - start.y;
  const double run = start.x - end.x;
  int angle = TruncateToInt(kTenthsPerRadian * std::atan(rise / run));
  if (angle < 0) angle += 3600;
  return angle;
}

std::optional<PixelPoint> LabelAnchor(PixelPoint axis_start,
                                      PixelPoint axis_end,
                                      PixelPoint line_start,
                                      PixelPoint line_end) {
  // In doubles: the products of three pixel coordinates outgrow an int on a
  // printer page.
  const double x1a = axis_start.x;
  const double y1a = axis_start.y;
  const double u1 = line_start.x;
  const double w1 = line_start.y;
  const double dx = axis_end.x - x1a;
  const double dy = axis_end.y - y1a;
  const double du = line_end.x - u1;
  const double dw = line_end.y - w1;
  const double denominator = dy * du - dw * dx;
  if (denominator == 0.0 || dx == 0.0) return std::nullopt;
  PixelPoint p;
  p.x = TruncateToInt((x1a * du * dy - u1 * dx * dw - dx * du * (y1a - w1)) /
                      denominator);
  p.y = TruncateToInt(TruncateToInt(dy * (p.x - x1a) / dx) + y1a);
  return p;
}

bool LabelFits(const PlotRect& plot, PixelPoint anchor, int angle, int width,
               int height, int margin) {
  const double theta = angle * (3.141592653589793 / 1800.0);
  const double c = std::cos(theta);
  const double s = std::sin(theta);
  const double left = angle < 1800 ? 0.0 : -width;
  const double corners[4][2] = {{left, 0.0},
                                {left + width, 0.0},
                                {left, -static_cast<double>(height)},
                                {left + width, -static_cast<double>(height)}};
  for (const auto& corner : corners) {
    // Turned counter-clockwise on a screen whose y grows downwards.
    const double x = anchor.x + corner[0] * c + corner[1] * s;
    const double y = anchor.y - corner[0] * s + corner[1] * c;
    if (x < plot.left + margin || x > plot.right() - margin ||
        y < plot.top + margin || y > plot.bottom() - margin) {
      return false;
    }
  }
  return true;
}

void CLogAxis::Reset() {
  made = 0;
  count = 0;
  labels.clear();
  positions.clear();
}

void CLogAxis::SetLine(PixelPoint from, PixelPoint to) {
  start = from;
  end = to;
  title_angle = AxisAngle(from, to);
  label_angle = 3600 - title_angle;
}

void CLogAxis::AddLabel(std::string text, PixelPoint anchor) {
  labels.push_back(std::move(text));
  positions.push_back(anchor);
  count = static_cast<int>(labels.size());
}

}  // namespace zel
