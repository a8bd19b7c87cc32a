// The diagonal grid of a tripartite chart: the displacement and acceleration
// lines (only on a tripartite document) and the two black reference axes
// with their values, written along the lines they name.
#include <QFontMetrics>
#include <QPaintDevice>
#include <algorithm>
#include <vector>

#include "app/plot/my_graph_display.h"
#include "core/document/c_format.h"
#include "core/plot/chart_geometry.h"
#include "core/plot/tripartite_grid.h"

namespace zel::app {
namespace {

const QColor kDisplacementColour(100, 100, 255);
const QColor kAccelerationColour(255, 90, 90);
// Labels keep this many pixels clear of the plot's frame.
constexpr int kLabelMargin = 2;

// A font of a cell `height` pixels high with characters `width` pixels wide
// on average, as the axes' logical fonts are given for the screen; on a
// printer both grow with its pixels per millimetre.
QFont AxisFont(int height, int width, const QPaintDevice* device) {
  if (device != nullptr && device->devType() == QInternal::Printer &&
      device->widthMM() > 0 && device->heightMM() > 0) {
    height = TruncateToInt(height * (double(device->height()) /
                                     device->heightMM() / kScreenPixelsPerMm));
    width = TruncateToInt(width * (double(device->width()) / device->widthMM() /
                                   kScreenPixelsPerMm));
  }
  QFont font(QStringLiteral("Arial"));
  font.setStyleHint(QFont::SansSerif);
  font.setWeight(QFont::Normal);
  int pixels = std::max(height, 1);
  font.setPixelSize(pixels);
  while (pixels > 1 && QFontMetrics(font).height() > height) {
    font.setPixelSize(--pixels);
  }
  const int average = QFontMetrics(font).averageCharWidth();
  if (average > 0 && width > 0) {
    font.setStretch(std::clamp(100 * width / average, 1, 4000));
  }
  return font;
}

void DrawLines(QPainter& surface, const std::vector<GridLine>& lines,
               const QColor& colour) {
  surface.setPen(QPen(colour, 1, Qt::SolidLine));
  for (const GridLine& line : lines) {
    surface.drawLine(line.from.x, line.from.y, line.to.x, line.to.y);
  }
}

// Text turned `angle` tenths of a degree counter-clockwise about `at`, its
// box's `corner` there (in the turned frame).
void DrawTurnedText(QPainter& surface, const QString& text, PixelPoint at,
                    int angle, Qt::Alignment corner) {
  const QFontMetrics metrics(surface.font(), surface.device());
  const int w = metrics.horizontalAdvance(text);
  const int h = metrics.height();
  surface.save();
  surface.translate(at.x, at.y);
  surface.rotate(-angle / 10.0);
  const int x = corner & Qt::AlignRight ? -w : 0;
  const int y = corner & Qt::AlignBottom ? -h : 0;
  surface.drawText(QRect(x, y, w, h), Qt::AlignLeft | Qt::AlignBottom, text);
  surface.restore();
}

// The axis line and its texts; an axis whose line misses the plot (a plot
// narrower than a decade) is left out.
void DrawAxis(QPainter& surface, const PlotRect& plot, const CLogAxis& axis) {
  if (!plot.Covers(axis.start) || !plot.Covers(axis.end)) return;
  surface.setPen(QPen(Qt::black, 1, Qt::SolidLine));
  surface.drawLine(axis.start.x, axis.start.y, axis.end.x, axis.end.y);
  surface.setBackground(Qt::white);
  surface.setBackgroundMode(Qt::TransparentMode);
  surface.setRenderHint(QPainter::TextAntialiasing, true);
  const QPaintDevice* device = surface.device();
  if (!axis.title.empty()) {
    surface.setFont(AxisFont(14, 6, device));
    DrawTurnedText(surface, QString::fromStdString(axis.title), axis.start,
                   axis.title_angle,
                   Qt::AlignTop | (axis.title_angle < 1800 ? Qt::AlignLeft
                                                           : Qt::AlignRight));
  }
  surface.setFont(AxisFont(13, 6, device));
  const QFontMetrics metrics(surface.font(), device);
  const Qt::Alignment corner =
      Qt::AlignBottom |
      (axis.label_angle < 1800 ? Qt::AlignLeft : Qt::AlignRight);
  for (std::size_t i = 0; i < axis.labels.size(); ++i) {
    const QString text = QString::fromStdString(axis.labels[i]);
    // A label that would run over the frame is not written at all.
    if (!LabelFits(plot, axis.positions[i], axis.label_angle,
                   metrics.horizontalAdvance(text), metrics.height(),
                   kLabelMargin)) {
      continue;
    }
    DrawTurnedText(surface, text, axis.positions[i], axis.label_angle, corner);
  }
}

}  // namespace

void MyGraphDisplay::DrawDiagonalGrid(QCPPainter* painter) {
  // Diagonal lines exist only where both scales are logarithmic.
  if (rect_->axis(QCPAxis::atBottom)->scaleType() != QCPAxis::stLogarithmic ||
      rect_->axis(QCPAxis::atLeft)->scaleType() != QCPAxis::stLogarithmic) {
    return;
  }
  const QRect r = PlotRect();
  const QCPRange x = XRange();
  const QCPRange y = YRange();
  const TripartitePlot plot({r.left(), r.top(), r.width(), r.height()}, x.lower,
                            x.upper, y.lower, y.upper, gravity_factor_);
  if (!plot.valid()) return;
  PlaceReferenceAxes(plot, displacement_axis_, acceleration_axis_);
  QPainter& surface = *painter;  // whole-pixel lines
  surface.save();
  if (tripartite_ == 1) {
    DrawLines(surface, DisplacementFamily(plot, displacement_axis_),
              kDisplacementColour);
    DrawLines(surface, AccelerationFamily(plot, acceleration_axis_),
              kAccelerationColour);
  }
  DrawAxis(surface, plot.rect(), displacement_axis_);
  DrawAxis(surface, plot.rect(), acceleration_axis_);
  surface.restore();
}

}  // namespace zel::app
