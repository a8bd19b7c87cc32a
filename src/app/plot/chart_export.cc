#include "app/plot/chart_export.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <string_view>

#include "app/plot/chart_widget.h"
#include "core/document/replacing_file.h"

namespace zel::app {

bool SaveChartImage(ChartWidget& chart, const QString& path,
                    const char* format) {
  // JPEG has no alpha channel; flatten onto white first.
  QImage image = chart.RenderImage().convertToFormat(QImage::Format_RGB32);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, format, 95)) {
    return false;
  }
  return ReplaceFileWith(
      path, std::string_view(bytes.constData(),
                             static_cast<std::size_t>(bytes.size())));
}

bool ReplaceFileWith(const QString& path, std::string_view bytes) {
  ReplacingFile file(QFile::encodeName(path).toStdString());
  return file.Write(bytes) && file.Commit();
}

}  // namespace zel::app
