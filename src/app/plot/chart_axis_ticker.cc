#include "app/plot/chart_axis_ticker.h"

#include <QFontMetricsF>
#include <algorithm>
#include <vector>

#include "core/plot/axis_ticks.h"

namespace zel::app {
namespace {

// Most ticks on one axis: more grid lines than this only clutter a chart.
constexpr int kMostTicks = 11;

}  // namespace

int ChartAxisTicker::AxisLength() const {
  const QCPAxisRect* rect = axis_->axisRect();
  return axis_->orientation() == Qt::Horizontal ? rect->width()
                                                : rect->height();
}

void ChartAxisTicker::generate(const QCPRange& range, const QLocale& locale,
                               QChar format, int precision,
                               QVector<double>& ticks, QVector<double>* sub,
                               QVector<QString>* labels) {
  const bool horizontal = axis_->orientation() == Qt::Horizontal;
  const int length = AxisLength();
  laid_out_length_ = length;
  const QFontMetricsF metrics(axis_->tickLabelFont());
  // Room per tick: a label of a few digits across, two lines up.
  const double room =
      horizontal ? metrics.horizontalAdvance("00.000") : 2.5 * metrics.height();
  const int max_count =
      std::clamp(static_cast<int>(length / room), 2, kMostTicks);
  const std::vector<double> values =
      log_ ? LogTicks(range.lower, range.upper, max_count)
           : LinearTicks(range.lower, range.upper, max_count, min_step_);
  ticks = QVector<double>(values.begin(), values.end());
  if (sub) sub->clear();
  if (!labels) return;

  labels->clear();
  std::vector<double> centres;
  std::vector<double> extents;
  std::vector<bool> preferred;
  for (double v : values) {
    const QString text = getTickLabel(v, locale, format, precision);
    *labels << text;
    centres.push_back(axis_->coordToPixel(v));
    extents.push_back(horizontal ? metrics.horizontalAdvance(text)
                                 : metrics.height());
    preferred.push_back(log_ && IsPowerOfTen(v));
  }
  const double gap = horizontal ? 2.0 * metrics.horizontalAdvance(' ')
                                : 0.25 * metrics.height();
  const std::vector<bool> shown =
      LabelsThatFit(centres, extents, gap, preferred);
  for (qsizetype i = 0; i < labels->size(); ++i) {
    if (!shown[i]) (*labels)[i].clear();
  }
}

}  // namespace zel::app
