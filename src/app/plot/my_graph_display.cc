#include "app/plot/my_graph_display.h"

#include "core/document/c_format.h"

namespace zel::app {
namespace {

QVector<int> TickPixels(const QCPAxis* axis) {
  QVector<int> pixels;
  const QCPRange range = axis->range();
  for (double tick : axis->tickVector()) {
    // The library keeps one tick beyond each end of the range.
    if (tick < range.lower || tick > range.upper) continue;
    pixels << TruncateToInt(axis->coordToPixel(tick));
  }
  return pixels;
}

}  // namespace

MyGraphDisplay::MyGraphDisplay(QCPAxisRect* rect)
    : QCPLayerable(rect->parentPlot(), QStringLiteral("grid")), rect_(rect) {
  setObjectName(QStringLiteral("MyGraphDisplay"));
}

QRect MyGraphDisplay::PlotRect() const { return rect_->rect(); }

QCPRange MyGraphDisplay::XRange() const {
  return rect_->axis(QCPAxis::atBottom)->range();
}

QCPRange MyGraphDisplay::YRange() const {
  return rect_->axis(QCPAxis::atLeft)->range();
}

QVector<int> MyGraphDisplay::XTickPixels() const {
  return TickPixels(rect_->axis(QCPAxis::atBottom));
}

QVector<int> MyGraphDisplay::YTickPixels() const {
  return TickPixels(rect_->axis(QCPAxis::atLeft));
}

void MyGraphDisplay::applyDefaultAntialiasingHint(QCPPainter* painter) const {
  painter->setAntialiasing(false);
}

QRect MyGraphDisplay::clipRect() const {
  return mParentPlot ? mParentPlot->viewport() : QRect();
}

void MyGraphDisplay::draw(QCPPainter* painter) {
  const QPen old_pen = painter->pen();
  const QBrush old_brush = painter->brush();
  const QRect r = PlotRect();

  // Brush and frame; the frame reaches one pixel beyond the plot's right and
  // bottom edge.
  painter->setBrush(style_.fill_background ? QBrush(style_.background)
                                           : QBrush(Qt::NoBrush));
  QPen frame(style_.frame_colour, style_.frame_width);
  frame.setJoinStyle(Qt::MiterJoin);
  painter->setPen(frame);
  painter->drawRect(QRect(r.left(), r.top(), r.width(), r.height()));

  const QVector<int> y_ticks = YTickPixels();
  const QVector<int> x_ticks = XTickPixels();
  if (style_.y_ticks && !y_ticks.isEmpty()) DrawTicks(painter, y_ticks, true);
  if (style_.x_ticks && !x_ticks.isEmpty()) DrawTicks(painter, x_ticks, false);

  painter->setPen(QPen(style_.grid_colour, 1, Qt::SolidLine));
  painter->setBrush(Qt::NoBrush);
  const int right = r.left() + r.width();
  const int bottom = r.top() + r.height();
  QPainter& surface = *painter;  // whole-pixel lines
  if (style_.y_grid && !y_ticks.isEmpty()) {
    for (int y : y_ticks) surface.drawLine(r.left(), y, right, y);
  }
  if (style_.x_grid && !x_ticks.isEmpty()) {
    for (int x : x_ticks) surface.drawLine(x, bottom, x, r.top());
  }

  if (diagonal_grid_) DrawDiagonalGrid(painter);

  painter->setPen(old_pen);
  painter->setBrush(old_brush);
}

void MyGraphDisplay::DrawTicks(QCPPainter* painter, const QVector<int>& pixels,
                               bool vertical_axis) const {
  const int size = TruncateToInt(style_.major_tick_size);
  painter->setPen(QPen(style_.frame_colour, 1));
  const QRect r = PlotRect();
  const int bottom = r.top() + r.height();
  QPainter& surface = *painter;
  for (int p : pixels) {
    if (vertical_axis) {
      surface.drawLine(r.left(), p, r.left() + size, p);
    } else {
      surface.drawLine(p, bottom, p, bottom - size);
    }
  }
}

}  // namespace zel::app
