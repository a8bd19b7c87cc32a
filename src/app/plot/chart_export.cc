#include "app/plot/chart_export.h"

#include <QImage>
#include <QSaveFile>

#include "app/plot/chart_widget.h"

namespace zel::app {

bool SaveChartImage(ChartWidget& chart, const QString& path,
                    const char* format) {
  // JPEG has no alpha channel; flatten onto white first.
  QImage image = chart.RenderImage().convertToFormat(QImage::Format_RGB32);
  QSaveFile file(path);
  if (!file.open(QIODevice::WriteOnly)) return false;
  if (!image.save(&file, format, 95)) {
    file.cancelWriting();
    return false;
  }
  return file.commit();
}

}  // namespace zel::app
