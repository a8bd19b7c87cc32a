// A paint device whose pictures are Enhanced Metafiles: whatever a QPainter
// draws on it (lines, polylines, polygons, rectangles, ellipses, paths and
// text, turned as the painter's transform turns it) becomes vector records
// with pens, brushes and fonts, so that a word processor shows the chart
// sharp at any size.
#ifndef ZEL_APP_PLOT_EMF_PAINT_DEVICE_H_
#define ZEL_APP_PLOT_EMF_PAINT_DEVICE_H_

#include <QPaintDevice>
#include <QSize>
#include <QString>
#include <memory>
#include <string>

namespace zel::app {

class ChartWidget;
class EmfPaintEngine;

class EmfPaintDevice : public QPaintDevice {
 public:
  // A picture `size` pixels large whose fonts measure as on `like` (the
  // chart's screen), at the screen's pixels per millimetre.
  EmfPaintDevice(QSize size, const QPaintDevice& like,
                 const QString& description);
  ~EmfPaintDevice() override;

  QPaintEngine* paintEngine() const override;
  // The metafile, complete once the painter has ended.
  const std::string& Bytes() const;

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  QSize size_;
  int dpi_x_;
  int dpi_y_;
  std::unique_ptr<EmfPaintEngine> engine_;
};

// Writes the chart as an Enhanced Metafile with the chart's own drawing,
// frame included. Returns false when the file cannot be written.
bool SaveChartEmf(ChartWidget& chart, const QString& path);

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_EMF_PAINT_DEVICE_H_
