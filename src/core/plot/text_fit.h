// Text sizes of a chart: fonts that shrink with a small window down to a
// legible minimum, and titles that shrink or wrap to the chart's width
// rather than being cut off at both ends.
#ifndef ZEL_CORE_PLOT_TEXT_FIT_H_
#define ZEL_CORE_PLOT_TEXT_FIT_H_

#include <functional>
#include <string>
#include <vector>

namespace zel {

// The smallest font, in points, a chart's text is drawn with.
inline constexpr double kLegibleMinimumPoints = 7.0;

// The point size of a chart's text in a chart of `width` x `height` pixels:
// `normal` in a chart of 560 x 400 pixels or more, smaller in proportion
// below, never under `minimum`.
double ChartFontSize(int width, int height, double normal, double minimum);

// Width in pixels of `text` drawn at `points`.
using TextWidth = std::function<double(const std::string& text, double points)>;

struct FittedText {
  double points = 0.0;
  std::vector<std::string> lines;
};

// Fits title lines into `width` pixels: at `points` when every line fits;
// else all lines shrink together, not below `minimum`; a line still too wide
// then wraps after a comma or at a blank (a single word wider than `width`
// stays whole). More than `max_lines` lines (when it is above 0) are cut
// after the last one that fits, which then ends in "...".
FittedText FitLines(const std::vector<std::string>& lines, double width,
                    double points, double minimum, const TextWidth& measure,
                    int max_lines = 0);

}  // namespace zel

#endif  // ZEL_CORE_PLOT_TEXT_FIT_H_
