// A chart of a curve document over QCustomPlot: curves in the document's
// colours and widths, title lines, axis titles, legend, free labels, log or
// linear axes, MyGraphDisplay for frame and grid, and a frame around the plot.
// Dragging a rectangle zooms in; ZoomOutAll shows all data again.
#ifndef ZEL_APP_PLOT_CHART_WIDGET_H_
#define ZEL_APP_PLOT_CHART_WIDGET_H_

#include <array>
#include <cstddef>
#include <vector>

#include "app/plot/my_graph_display.h"
#include "core/plot/chart_geometry.h"
#include "core/document/curve_document.h"
#include "qcustomplot.h"

namespace zel::app {

class ChartWidget : public QCustomPlot {
  Q_OBJECT

 public:
  ChartWidget(const CZELwDoc& doc, QWidget* parent = nullptr);

  // Takes everything from the document again. The axis ranges are fitted to
  // the data when the data or the scales changed, else the zoom is kept.
  void Rebuild();
  // Fits the axis ranges to all data again.
  void ZoomOutAll();

  MyGraphDisplay& display() { return *display_; }
  // Looks up the display by its component identifier.
  MyGraphDisplay* FindDisplay(int id);

  // Renders the chart as it appears on screen, frame included.
  QImage RenderImage();

 signals:
  // Mouse position in chart coordinates, for the status bar.
  void CursorMoved(double x, double y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  struct Fingerprint {
    int log_x = -1;
    int log_y = -1;
    bool log_range = false;
    std::array<std::size_t, kMaxCurves> sizes{};
    std::array<double, kMaxCurves> y_sums{};
    friend bool operator==(const Fingerprint&, const Fingerprint&) = default;
  };

  void SetUpAxes();
  // Log or linear; a positive `step` fixes a linear axis's tick step.
  void SetScale(QCPAxis* axis, bool log, double step);
  // The drawable points of every curve, in curve order.
  std::vector<PlotSeries> AllDrawablePoints() const;
  void AddCurves(const std::vector<PlotSeries>& series);
  void AddLegend();
  void AddLabels();
  void FitRanges(const std::vector<PlotSeries>& series);
  Fingerprint TakeFingerprint() const;

  const CZELwDoc& doc_;
  MyGraphDisplay* display_;
  QCPTextElement* title_;
  QCPTextElement* legend_title_ = nullptr;
  Fingerprint fitted_;
};

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_WIDGET_H_
