// The one drawing of a chart for every output: the window's picture, the
// printer and its preview, PNG, SVG, PDF, the clipboard and the metafile all
// come from QCustomPlot's own rendering of the chart (MyGraphDisplay, the
// diagonal grid and the frame included) onto the output's paint device.
#ifndef ZEL_APP_PLOT_CHART_RENDER_H_
#define ZEL_APP_PLOT_CHART_RENDER_H_

#include <QByteArray>
#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>

class QPaintDevice;
class QPageLayout;

namespace zel::app {

class ChartWidget;

// The resolution (dots per inch) at which the chart measures its text. A
// device drawn on must report it as its own, or every font comes out scaled
// by the ratio of the two resolutions; the devices made here do.
int ChartDpi();

// Lays the chart out for `target`'s size divided by `scale` (chart pixels,
// as a window of that size shows it) and draws it into `target` (device
// pixels) of `device`, enlarged by `scale`. The window keeps its own layout.
// False when no painter could be opened on `device`.
bool RenderChart(ChartWidget& chart, QPaintDevice& device, const QRectF& target,
                 double scale = 1.0);

// `pixels` wide and high, drawn as a chart of the same physical size on the
// screen would be (so larger `dpi` means a sharper picture of the same
// chart) and marked with `dpi`. Opaque white background.
QImage ChartImage(ChartWidget& chart, QSize pixels, double dpi);
// The chart as an SVG drawing of `size` chart pixels.
QByteArray ChartSvg(ChartWidget& chart, QSize size, const QString& title);
// The chart as a one-page PDF filling the page's printable area.
QByteArray ChartPdf(ChartWidget& chart, const QPageLayout& page,
                    const QString& title);
// A one-page PDF exactly the chart's size, for placing in a report.
QByteArray ChartPdf(ChartWidget& chart, QSize size, const QString& title);

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_RENDER_H_
