// What a chart shows besides its curve values: title lines, axis titles,
// legend, free labels and the styles of the curves. Plain data, so that a view
// can draw a document from the document alone.
#ifndef ZEL_CORE_PLOT_CHART_MODEL_H_
#define ZEL_CORE_PLOT_CHART_MODEL_H_

#include <array>
#include <string>
#include <vector>

#include "core/document/data_store.h"

namespace zel {

struct Rgb {
  int red = 0;
  int green = 0;
  int blue = 0;
  friend bool operator==(const Rgb&, const Rgb&) = default;
};

// Colour of curve c (groups 2c and 2c+1).
inline constexpr std::array<Rgb, kMaxCurves> kSeriesColours = {{
    {255, 0, 0},
    {0, 128, 0},
    {0, 0, 255},
    {255, 255, 0},
    {0, 255, 255},
    {255, 0, 255},
}};

struct SeriesStyle {
  Rgb colour;
  int width = 1;
};

// A free text on the chart, anchored at a position given in per cent of the
// chart's area (or of the plot area) from its left-top corner.
struct ChartLabel {
  enum Style { kPlain = 0, kBoxed = 1 };
  std::string title;
  std::string content;
  double x_percent = 0.0;
  double y_percent = 0.0;
  int style = kPlain;
  // The position is in per cent of the plot area inside the frame.
  bool in_plot_area = false;
};

// The legend; entry k names curve k.
struct ChartLegend {
  std::string title;
  std::vector<std::string> entries;
  bool empty() const { return entries.empty(); }
};

struct ChartModel {
  std::vector<std::string> title_lines;
  std::array<std::string, 2> axis_titles;  // 0 X axis, 1 Y axis
  ChartLegend legend;
  std::vector<ChartLabel> labels;
  std::array<SeriesStyle, kMaxCurves> series = [] {
    std::array<SeriesStyle, kMaxCurves> styles{};
    for (int c = 0; c < kMaxCurves; ++c) styles[c].colour = kSeriesColours[c];
    return styles;
  }();
  // Log axes show no value below these minimums while the range handling is
  // on (set by the log toggles).
  bool log_range = false;
  double log_min_x = 0.01;
  double log_min_y = 0.01;
};

}  // namespace zel

#endif  // ZEL_CORE_PLOT_CHART_MODEL_H_
