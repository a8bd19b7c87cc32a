// MyGraphDisplay: the plot area of a chart. It replaces the chart library's
// own frame, tick marks and grid with ZEL's: a frame around the plot
// rectangle, major ticks only, grid lines exactly at the axes' tick positions,
// and after them the diagonal grid of a tripartite chart.
#ifndef ZEL_APP_PLOT_MY_GRAPH_DISPLAY_H_
#define ZEL_APP_PLOT_MY_GRAPH_DISPLAY_H_

#include <QColor>
#include <QRect>
#include <QVector>

#include "core/plot/log_axis.h"
#include "qcustomplot.h"

namespace zel::app {

class MyGraphDisplay : public QCPLayerable {
  Q_OBJECT

 public:
  // The identifier by which the view finds the display in its chart.
  static constexpr int kComponentId = 53528;

  struct Style {
    QColor background = Qt::white;
    bool fill_background = false;
    QColor frame_colour = Qt::black;
    int frame_width = 1;
    QColor grid_colour = QColor(192, 192, 192);
    double major_tick_size = 5.0;
    bool y_ticks = true;
    bool x_ticks = true;
    bool y_grid = true;
    bool x_grid = true;
  };

  // Draws on the plot of `rect`, whose axes must not draw their own grid.
  explicit MyGraphDisplay(QCPAxisRect* rect);

  Style& style() { return style_; }
  const Style& style() const { return style_; }

  // Set from the document before every drawing.
  void SetDiagonalGrid(int on) { diagonal_grid_ = on; }
  void SetTripartite(int flag) { tripartite_ = flag; }
  void SetGravityFactor(double g) { gravity_factor_ = g; }
  int GetDiagonalGrid() const { return diagonal_grid_; }
  int tripartite() const { return tripartite_; }
  double gravity_factor() const { return gravity_factor_; }
  // The reference axes and their labels as last drawn.
  const CLogAxis& displacement_axis() const { return displacement_axis_; }
  const CLogAxis& acceleration_axis() const { return acceleration_axis_; }

  // The plot rectangle in the drawing surface's pixels, and the scales.
  QRect PlotRect() const;
  QCPRange XRange() const;
  QCPRange YRange() const;
  // Pixel positions of the tick marks within the visible range, in tick
  // order: x positions along the X axis, y positions along the Y axis.
  QVector<int> XTickPixels() const;
  QVector<int> YTickPixels() const;

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override;
  QRect clipRect() const override;
  void draw(QCPPainter* painter) override;

  // The diagonal (displacement and acceleration) grid of a tripartite chart,
  // drawn after the ordinary grid while the diagonal-grid flag is set. The
  // tripartite axes draw here (diagonal_grid.cc).
  virtual void DrawDiagonalGrid(QCPPainter* painter);

 private:
  void DrawTicks(QCPPainter* painter, const QVector<int>& pixels,
                 bool vertical_axis) const;

  QCPAxisRect* rect_;
  Style style_;
  int tripartite_ = 0;
  CLogAxis displacement_axis_;
  CLogAxis acceleration_axis_;
  int diagonal_grid_ = 0;
  double gravity_factor_ = 9815.0;
};

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_MY_GRAPH_DISPLAY_H_
