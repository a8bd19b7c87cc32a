// A chart of a curve document over QCustomPlot: curves in the document's
// colours and widths, title lines, axis titles, legend, free labels, log or
// linear axes, MyGraphDisplay for frame and grid, and a frame around the plot.
// Dragging a rectangle zooms in; ZoomOutAll shows all data again. At every
// layout the text sizes follow the window, titles fit its width and the
// legend moves to where it hides no curve.
#ifndef ZEL_APP_PLOT_CHART_WIDGET_H_
#define ZEL_APP_PLOT_CHART_WIDGET_H_

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "app/plot/chart_axis_ticker.h"
#include "app/plot/my_graph_display.h"
#include "core/document/curve_document.h"
#include "core/plot/chart_geometry.h"
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
  const CZELwDoc& document() const { return doc_; }
  // The legend's rectangle in the chart's pixels while it is shown.
  QRect LegendRect() const;
  bool LegendOutsidePlot() const { return legend_outside_; }

 signals:
  // Mouse position in chart coordinates, for the status bar.
  void CursorMoved(double x, double y);

 protected:
  void mouseMoveEvent(QMouseEvent* event) override;
  void updateLayout() override;

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
  // Log or linear; a positive `step` is the finest tick step of a linear
  // axis.
  void SetScale(QCPAxis* axis, ChartAxisTicker* ticker, bool log, double step);
  // Font sizes for the window's size; title and axis titles fitted to the
  // room they have.
  void FitTexts();
  // Puts the legend into the corner that hides no curve, or beside the plot.
  // Returns true when the layout has to be made again.
  bool PlaceLegendAwayFromCurves();
  void MoveLegendInside();
  void MoveLegendOutside();
  // The legend's place in the plot's inset layout; -1 when it is not there.
  int LegendInsetIndex() const;
  void AlignLegendBesidePlot();
  bool TicksOutOfDate() const;
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
  ChartAxisTicker* x_ticker_;
  ChartAxisTicker* y_ticker_;
  Fingerprint fitted_;
  QFont base_font_;
  bool legend_outside_ = false;
};

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_WIDGET_H_
