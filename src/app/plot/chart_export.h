// Pictures and data of a chart in files: BMP and JPEG (the Save command's
// images), and PNG, SVG, PDF and CSV for reports (File / Export and
// `zel --export`). Every file replaces its target only once complete.
#ifndef ZEL_APP_PLOT_CHART_EXPORT_H_
#define ZEL_APP_PLOT_CHART_EXPORT_H_

#include <QByteArray>
#include <QSize>
#include <QString>
#include <string_view>

namespace zel::app {

class ChartWidget;

// Writes the chart as shown on screen, frame included, in `format` ("BMP" or
// "JPG"). Returns false when the file cannot be written.
bool SaveChartImage(ChartWidget& chart, const QString& path,
                    const char* format);

// A PNG of `pixels` marked with `dpi`; see ChartImage.
bool ExportPng(ChartWidget& chart, const QString& path, QSize pixels,
               double dpi);
// The chart at the window's size as SVG, and as a PDF page of that size.
bool ExportSvg(ChartWidget& chart, const QString& path);
bool ExportPdf(ChartWidget& chart, const QString& path);
// The document's curves as comma-separated columns.
bool ExportCsv(ChartWidget& chart, const QString& path);

// The chart's title in one line, for a file's metadata.
QString ChartTitle(const ChartWidget& chart);

// Puts `bytes` in place of the file at `path` as the data file is saved: a
// failed save leaves the old file. Returns false when that fails.
bool ReplaceFileWith(const QString& path, std::string_view bytes);
// The same for a whole picture; an empty one (a drawing that failed) is
// refused.
bool WriteWholeFile(const QString& path, const QByteArray& bytes);

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_EXPORT_H_
