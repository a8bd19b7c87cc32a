#include "app/plot/chart_export.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include "app/plot/chart_render.h"
#include "app/plot/chart_widget.h"
#include "core/document/csv_export.h"
#include "core/document/replacing_file.h"

namespace zel::app {
namespace {

QByteArray Encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (image.isNull() || !buffer.open(QIODevice::WriteOnly) ||
      !image.save(&buffer, format, 95)) {
    return {};
  }
  return bytes;
}

}  // namespace

QString ChartTitle(const ChartWidget& chart) {
  QStringList lines;
  for (const std::string& line : chart.document().chart.title_lines) {
    lines << QString::fromStdString(line).simplified();
  }
  lines.removeAll(QString());
  return lines.join(QLatin1Char(' '));
}

bool SaveChartImage(ChartWidget& chart, const QString& path,
                    const char* format) {
  // JPEG has no alpha channel; the picture is opaque white underneath.
  return WriteWholeFile(path, Encoded(chart.RenderImage(), format));
}

bool ExportPng(ChartWidget& chart, const QString& path, QSize pixels,
               double dpi) {
  return WriteWholeFile(path, Encoded(ChartImage(chart, pixels, dpi), "PNG"));
}

bool ExportSvg(ChartWidget& chart, const QString& path) {
  return WriteWholeFile(
      path, ChartSvg(chart, chart.viewport().size(), ChartTitle(chart)));
}

bool ExportPdf(ChartWidget& chart, const QString& path) {
  return WriteWholeFile(
      path, ChartPdf(chart, chart.viewport().size(), ChartTitle(chart)));
}

bool ExportCsv(ChartWidget& chart, const QString& path) {
  return ReplaceFileWith(path, CurvesToCsv(chart.document()));
}

bool ReplaceFileWith(const QString& path, std::string_view bytes) {
  ReplacingFile file(QFile::encodeName(path).toStdString());
  return file.Write(bytes) && file.Commit();
}

bool WriteWholeFile(const QString& path, const QByteArray& bytes) {
  return !bytes.isEmpty() &&
         ReplaceFileWith(
             path, std::string_view(bytes.constData(),
                                    static_cast<std::size_t>(bytes.size())));
}

}  // namespace zel::app
