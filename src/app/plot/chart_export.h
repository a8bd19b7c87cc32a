// Image export of a chart: BMP and JPEG pictures of the chart as shown.
#ifndef ZEL_APP_PLOT_CHART_EXPORT_H_
#define ZEL_APP_PLOT_CHART_EXPORT_H_

#include <QString>
#include <string_view>

namespace zel::app {

class ChartWidget;

// Writes the chart as shown on screen, frame included, in `format` ("BMP" or
// "JPG"). Returns false when the file cannot be written.
bool SaveChartImage(ChartWidget& chart, const QString& path,
                    const char* format);

// Puts `bytes` in place of the file at `path` as the data file is saved: a
// failed save leaves the old picture. Returns false when that fails.
bool ReplaceFileWith(const QString& path, std::string_view bytes);

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_EXPORT_H_
