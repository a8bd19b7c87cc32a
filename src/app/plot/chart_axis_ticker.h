// The tick positions and labels of a chart axis, from the round-tick rules
// of core/plot/axis_ticks: as many ticks as the axis's length allows, and
// only the labels that do not overlap.
#ifndef ZEL_APP_PLOT_CHART_AXIS_TICKER_H_
#define ZEL_APP_PLOT_CHART_AXIS_TICKER_H_

#include "qcustomplot.h"

namespace zel::app {

class ChartAxisTicker : public QCPAxisTicker {
 public:
  explicit ChartAxisTicker(QCPAxis* axis) : axis_(axis) {}

  void SetLog(bool log) { log_ = log; }
  // Ticks of a linear axis are never closer than this (0: no limit).
  void SetMinimumStep(double step) { min_step_ = step; }
  // The axis length in pixels the last ticks were made for.
  int laid_out_length() const { return laid_out_length_; }

  void generate(const QCPRange& range, const QLocale& locale, QChar format,
                int precision, QVector<double>& ticks, QVector<double>* sub,
                QVector<QString>* labels) override;

 private:
  int AxisLength() const;

  QCPAxis* axis_;
  bool log_ = false;
  double min_step_ = 0.0;
  int laid_out_length_ = -1;
};

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_AXIS_TICKER_H_
