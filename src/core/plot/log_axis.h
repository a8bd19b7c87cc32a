// CLogAxis: one diagonal reference axis of a tripartite chart and the labels
// of the grid lines that cross it, with the rules for those labels' values,
// texts and anchor points. All in the drawing surface's whole pixels.
#ifndef ZEL_CORE_PLOT_LOG_AXIS_H_
#define ZEL_CORE_PLOT_LOG_AXIS_H_

#include <optional>
#include <string>
#include <vector>

namespace zel {

struct PixelPoint {
  int x = 0;
  int y = 0;
  friend bool operator==(const PixelPoint&, const PixelPoint&) = default;
};

// The plot rectangle; right = left + width and bottom = top + height are the
// pixels of the frame's right and bottom edges.
struct PlotRect {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int right() const { return left + width; }
  int bottom() const { return top + height; }
  // Strictly inside: not on the frame.
  bool Inside(PixelPoint p) const {
    return p.x > left && p.x < right() && p.y > top && p.y < bottom();
  }
  // Inside or on the frame.
  bool Covers(PixelPoint p) const {
    return p.x >= left && p.x <= right() && p.y >= top && p.y <= bottom();
  }
};

// The power of ten of a positive value, with a tolerance of 5 % on either
// side of each power: 10 and 9.6 give 1, 0.01 gives -2, 0.5 gives -1, 5
// gives 0. Zero, negative and non-finite values give 0.
int DecadeExponent(double u);

// A grid value as it is written on its line: "%f" cut after the value's
// last significant decimal, so 0.01 reads "0.01" and 1, 10, 100 keep their
// point: "1.", "10.", "100.".
std::string LogLabelText(double u);

// Angle of the line from `start` to `end` in tenths of a degree, counted
// counter-clockwise on the screen (y grows downwards), 0..3599.
int AxisAngle(PixelPoint start, PixelPoint end);

// Where the grid line from `line_start` to `line_end` crosses the axis line
// through `axis_start` and `axis_end`, truncated to whole pixels; none when
// the two are parallel or the axis is vertical.
std::optional<PixelPoint> LabelAnchor(PixelPoint axis_start,
                                      PixelPoint axis_end,
                                      PixelPoint line_start,
                                      PixelPoint line_end);

// Whether a label's text box, `width` by `height` pixels, lies on the plot
// at least `margin` pixels clear of the frame. The text runs at `angle`
// (tenths of a degree, counter-clockwise) with the box's bottom-left corner
// at `anchor` when the angle is below 1800, else its bottom-right corner.
bool LabelFits(const PlotRect& plot, PixelPoint anchor, int angle, int width,
               int height, int margin);

class CLogAxis {
 public:
  // Forgets the labels; the axis line stays.
  void Reset();
  // Sets the axis line and, from it, the title and label angles.
  void SetLine(PixelPoint from, PixelPoint to);
  void AddLabel(std::string text, PixelPoint anchor);

  int made = 0;
  int count = 0;
  int title_angle = 0;     // of the axis line, 0..3599 tenths of a degree
  int label_angle = 3600;  // 3600 - title angle: the labels' direction
  PixelPoint start;        // the title is written here
  PixelPoint end;
  std::string title;  // nothing sets it: empty
  std::vector<std::string> labels;
  std::vector<PixelPoint> positions;  // label anchors, one per label
};

}  // namespace zel

#endif  // ZEL_CORE_PLOT_LOG_AXIS_H_
