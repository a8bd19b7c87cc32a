#include "app/plot/chart_render.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPdfWriter>
#include <QScreen>
#include <QSvgGenerator>
#include <cmath>

#include "app/plot/chart_widget.h"

namespace zel::app {
namespace {

constexpr double kInchMm = 25.4;
constexpr double kPointsPerInch = 72.0;

bool IsRaster(const QPaintDevice& device) {
  return device.devType() == QInternal::Image ||
         device.devType() == QInternal::Pixmap;
}

}  // namespace

QByteArray ChartPdf(ChartWidget& chart, const QPageLayout& page,
                    const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  {
    QPdfWriter pdf(&buffer);
    pdf.setResolution(ChartDpi());
    pdf.setPageLayout(page);
    pdf.setTitle(title);
    pdf.setCreator(QStringLiteral("ZEL"));
    if (!RenderChart(chart, pdf, QRectF(0, 0, pdf.width(), pdf.height()))) {
      return {};
    }
  }  // the writer finishes the file here
  return bytes;
}

int ChartDpi() {
  // As the fonts measure their text: the primary screen's logical
  // resolution, 96 without a screen.
  const QScreen* screen = QGuiApplication::primaryScreen();
  const int dpi = screen ? qRound(screen->logicalDotsPerInchY()) : 0;
  return dpi > 0 ? dpi : 96;
}

bool RenderChart(ChartWidget& chart, QPaintDevice& device, const QRectF& target,
                 double scale) {
  if (!(scale > 0.0) || target.width() < 1.0 || target.height() < 1.0) {
    return false;
  }
  const int width = std::max(1, qRound(target.width() / scale));
  const int height = std::max(1, qRound(target.height() / scale));
  {
    QCPPainter painter;
    if (!painter.begin(&device)) return false;
    // Vector devices get no half-pixel shift for antialiasing, and thin
    // lines keep their width on paper.
    if (!IsRaster(device)) painter.setMode(QCPPainter::pmVectorized);
    painter.setMode(QCPPainter::pmNonCosmetic);
    painter.translate(target.topLeft());
    painter.scale(scale, scale);
    painter.setClipRect(QRectF(0, 0, width, height));
    chart.toPainter(&painter, width, height);
  }
  // The window lays itself out for its own size again.
  chart.replot();
  return true;
}

QImage ChartImage(ChartWidget& chart, QSize pixels, double dpi) {
  QImage image(pixels, QImage::Format_RGB32);
  if (image.isNull() || !(dpi > 0.0)) return {};
  image.fill(Qt::white);
  // Text is measured at the screen's resolution while it is drawn.
  const int dots_per_metre = qRound(ChartDpi() * 1000.0 / kInchMm);
  image.setDotsPerMeterX(dots_per_metre);
  image.setDotsPerMeterY(dots_per_metre);
  if (!RenderChart(chart, image, QRectF(QPointF(0, 0), QSizeF(pixels)),
                   dpi / ChartDpi())) {
    return {};
  }
  image.setDotsPerMeterX(qRound(dpi * 1000.0 / kInchMm));
  image.setDotsPerMeterY(qRound(dpi * 1000.0 / kInchMm));
  return image;
}

QByteArray ChartSvg(ChartWidget& chart, QSize size, const QString& title) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly)) return {};
  {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setResolution(ChartDpi());
    svg.setSize(size);
    svg.setViewBox(QRect(QPoint(0, 0), size));
    svg.setTitle(title);
    svg.setDescription(QStringLiteral("Chart drawn by ZEL"));
    if (!RenderChart(chart, svg, QRectF(QPointF(0, 0), QSizeF(size)))) {
      return {};
    }
  }
  return bytes;
}

QByteArray ChartPdf(ChartWidget& chart, QSize size, const QString& title) {
  const double to_points = kPointsPerInch / ChartDpi();
  const QPageSize page_size(
      QSizeF(size.width() * to_points, size.height() * to_points),
      QPageSize::Point, QString(), QPageSize::ExactMatch);
  return ChartPdf(chart,
                  QPageLayout(page_size, QPageLayout::Portrait, QMarginsF(),
                              QPageLayout::Point),
                  title);
}

}  // namespace zel::app
