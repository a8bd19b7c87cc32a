#include "core/plot/chart_geometry.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zel {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

TEST(ChartGeometryTest, DrawablePointsSkipWhatCannotBeDrawn) {
  CZELwDoc doc;
  const double xs[] = {0.0, 0.5, kNaN, 1.0, 2.0, 1e200, 3.0};
  const double ys[] = {0.2, -0.1, 1.0, kInf, 0.4, 1.0, 0.3};
  for (int i = 0; i < 7; ++i) doc.SetPoint(i, 1, xs[i], ys[i], 1);

  PlotSeries linear = DrawablePoints(doc, 1);
  EXPECT_EQ(linear.x, (std::vector<double>{0.0, 0.5, 2.0, 3.0}));
  EXPECT_EQ(linear.y, (std::vector<double>{0.2, -0.1, 0.4, 0.3}));

  doc.log_x = 1;  // x = 0 cannot be drawn
  doc.log_y = 1;  // y = -0.1 neither
  PlotSeries log = DrawablePoints(doc, 1);
  EXPECT_EQ(log.x, (std::vector<double>{2.0, 3.0}));

  EXPECT_TRUE(DrawablePoints(doc, 0).x.empty());
  EXPECT_TRUE(DrawablePoints(doc, 6).x.empty());
}

TEST(ChartGeometryTest, RangesAreValidForAnyData) {
  CZELwDoc doc;
  // Empty, flat and ordinary data on linear axes.
  EXPECT_EQ(FitChartRanges(doc, {}).x, (AxisRange{0.0, 1.0}));
  ChartRanges r = FitChartRanges(doc, {{{2.0, 2.0}, {0.0, 0.0}}});
  EXPECT_EQ(r.x, (AxisRange{1.0, 3.0}));
  EXPECT_EQ(r.y, (AxisRange{-1.0, 1.0}));
  r = FitChartRanges(doc, {{{0.0, 6.0}, {0.5, 1.2}}, {{1.0}, {2.0}}});
  EXPECT_EQ(r.x, (AxisRange{0.0, 6.0}));
  EXPECT_EQ(r.y.lower, 0.0);  // positive Y starts at 0, with headroom
  EXPECT_DOUBLE_EQ(r.y.upper, 2.1);
  r = FitChartRanges(doc, {{{0.0, 6.0}, {-0.5, 1.2}}});
  EXPECT_DOUBLE_EQ(r.y.lower, -0.585);
  EXPECT_DOUBLE_EQ(r.y.upper, 1.285);

  // Log axes span whole decades; the log-range minimum bounds them below.
  doc.log_x = doc.log_y = 1;
  r = FitChartRanges(doc, {{{0.002, 35.0}, {0.3, 0.3}}});
  EXPECT_DOUBLE_EQ(r.x.lower, 0.001);
  EXPECT_DOUBLE_EQ(r.x.upper, 100.0);
  EXPECT_DOUBLE_EQ(r.y.lower, 0.1);
  EXPECT_DOUBLE_EQ(r.y.upper, 1.0);
  doc.chart.log_range = true;
  r = FitChartRanges(doc, {{{0.002, 35.0}, {0.3, 0.3}}});
  EXPECT_DOUBLE_EQ(r.x.lower, 0.01);
  r = FitChartRanges(doc, {});
  EXPECT_GT(r.x.lower, 0.0);
  EXPECT_GT(r.x.upper, r.x.lower);
}

TEST(ChartGeometryTest, FrameAndLabelGeometry) {
  EXPECT_EQ(ChartFrameWidth(kScreenPixelsPerMm), 2);
  EXPECT_EQ(ChartFrameWidth(23.6), 11);  // a 600 dpi printer
  EXPECT_EQ(ChartFrameWidth(1.9), 0);

  PercentPoint p = PercentOfClientArea(200, 150, 800, 600);
  EXPECT_DOUBLE_EQ(p.x, 25.0);
  EXPECT_DOUBLE_EQ(p.y, 25.0);
  p = PercentOfClientArea(5, 5, 0, 0);
  EXPECT_EQ(p.x, 0.0);
  EXPECT_EQ(p.y, 0.0);
}

}  // namespace
}  // namespace zel
