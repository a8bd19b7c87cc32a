// The chart's numbers: drawable points, axis ranges, ticks and labels,
// legend corners and fitted text.
#include "core/plot/chart_geometry.h"

#include <gtest/gtest.h>

#include <limits>

#include "core/plot/axis_ticks.h"
#include "core/plot/legend_placement.h"
#include "core/plot/text_fit.h"

namespace zel {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

using Values = std::vector<double>;

TEST(ChartGeometryTest, DrawablePointsSkipWhatCannotBeDrawn) {
  CZELwDoc doc;
  const double xs[] = {0.0, 0.5, kNaN, 1.0, 2.0, 1e200, 3.0};
  const double ys[] = {0.2, -0.1, 1.0, kInf, 0.4, 1.0, 0.3};
  for (int i = 0; i < 7; ++i) doc.SetPoint(i, 1, xs[i], ys[i], 1);
  PlotSeries linear = DrawablePoints(doc, 1);
  EXPECT_EQ(linear.x, (std::vector<double>{0.0, 0.5, 2.0, 3.0}));
  EXPECT_EQ(linear.y, (std::vector<double>{0.2, -0.1, 0.4, 0.3}));
  doc.log_x = doc.log_y = 1;  // neither x = 0 nor y = -0.1 can be drawn
  EXPECT_EQ(DrawablePoints(doc, 1).x, (std::vector<double>{2.0, 3.0}));
  EXPECT_TRUE(DrawablePoints(doc, 6).x.empty());
}

TEST(ChartGeometryTest, RangesShowTheDataAndFrameTheChart) {
  CZELwDoc doc;
  EXPECT_EQ(FitChartRanges(doc, {}).x, (AxisRange{0.0, 1.0}));
  ChartRanges r = FitChartRanges(doc, {{{2.0, 2.0}, {0.0, 0.0}}});
  EXPECT_EQ(r.x, (AxisRange{1.0, 3.0}));  // flat data: a valid range
  EXPECT_EQ(r.y, (AxisRange{-1.0, 1.0}));
  r = FitChartRanges(doc, {{{0.0, 6.0}, {-0.5, 1.2}}});
  EXPECT_DOUBLE_EQ(r.y.lower, -0.585);  // 5 % of the span as headroom
  EXPECT_DOUBLE_EQ(r.y.upper, 1.285);
  // A pseudo-velocity spectrum from T = 0 (stored at 1e-10 s with a value
  // near 0) on log axes spans whole decades of the points shown: the
  // zero-period point lies below the log minimum and stretches neither axis.
  doc.ToggleLogX();
  doc.ToggleLogY();
  r = FitChartRanges(doc,
                     {{{1e-10, 0.01, 0.9, 3.0}, {4.4e-8, 4.4, 1085.0, 700.0}}});
  EXPECT_DOUBLE_EQ(r.x.lower, 0.01);
  EXPECT_DOUBLE_EQ(r.x.upper, 10.0);
  EXPECT_DOUBLE_EQ(r.y.lower, 1.0);
  EXPECT_DOUBLE_EQ(r.y.upper, 10000.0);
  r = FitChartRanges(doc, {{{1e-10}, {4.4e-8}}});  // nothing left to show
  EXPECT_GT(r.y.upper, r.y.lower);

  EXPECT_EQ(ChartFrameWidth(kScreenPixelsPerMm), 2);
  EXPECT_EQ(ChartFrameWidth(23.6), 11);  // a 600 dpi printer
  EXPECT_DOUBLE_EQ(PercentOfClientArea(200, 150, 800, 600).y, 25.0);
  EXPECT_EQ(PercentOfClientArea(5, 5, 0, 0).x, 0.0);
}

TEST(AxisTicksTest, RoundTicksOnLinearAndLogAxes) {
  // A frequency spectrum with bins of 0.0977 Hz: tens of Hz, not bins.
  EXPECT_EQ(LinearTicks(0.0, 49.9, 6, 0.0977), (Values{0, 10, 20, 30, 40}));
  // Never finer than a bin, however narrow the zoom.
  EXPECT_EQ(LinearTicks(0.0, 0.12, 10, 0.0977), (Values{0.0, 0.1}));

  // Two decades or more: powers of ten, every second one when short of room.
  EXPECT_EQ(LogTicks(0.01, 10.0, 10), (Values{0.01, 0.1, 1.0, 10.0}));
  EXPECT_EQ(LogTicks(1e-3, 1e3, 4), (Values{1e-3, 1e-1, 1e1, 1e3}));
  // One to two decades: 1, 2 and 5 times the powers.
  EXPECT_EQ(LogTicks(0.2, 10.0, 10), (Values{0.2, 0.5, 1, 2, 5, 10}));
  // Within one decade (a zoom): every 1 to 9 times, sparser when crowded.
  EXPECT_EQ(LogTicks(150.0, 950.0, 10),
            (Values{200, 300, 400, 500, 600, 700, 800, 900}));
  EXPECT_EQ(LogTicks(1.0, 10.0, 4), (Values{1, 2, 5, 10}));
  // Too narrow even for those: round linear ticks, never a single one.
  const Values narrow = LogTicks(2.12, 2.61, 5);  // 2.2, 2.3 ... 2.6
  ASSERT_EQ(narrow.size(), 5u);
  EXPECT_DOUBLE_EQ(narrow[0], 2.2);
  EXPECT_TRUE(LogTicks(0.0, 10.0, 10).empty());
  // Labels 30 px wide every 20 px: the power of ten first, then every label
  // that keeps 4 px from the others.
  EXPECT_EQ(LabelsThatFit({0, 20, 40, 60}, {30, 30, 30, 30}, 4,
                          {false, true, false, false}),
            (std::vector<bool>{false, true, false, true}));
}

TEST(LegendPlacementTest, LegendTakesAFreeCornerOrGoesOutside) {
  const PixelRectF plot{0, 0, 100, 100};
  // A curve rising to the top right corner, as response spectra at long
  // periods do: the top left corner is free.
  std::vector<std::vector<PixelPointF>> curves = {
      {{0, 90}, {60, 50}, {100, 5}}};
  EXPECT_EQ(PlaceLegend(plot, 30, 20, curves), LegendPlace::kTopLeft);
  EXPECT_EQ(LegendRect(plot, 30, 20, LegendPlace::kBottomLeft).top, 80.0);
  // A segment crossing the rectangle with no point inside touches it.
  EXPECT_TRUE(SegmentTouches({-10, 10}, {110, 10}, {0, 0, 30, 20}));
  // Data in every corner, or a legend larger than the plot: beside it.
  curves.push_back({{0, 0}, {100, 100}});
  curves.push_back({{0, 100}, {100, 0}});
  EXPECT_EQ(PlaceLegend(plot, 30, 20, curves), LegendPlace::kOutside);
  EXPECT_EQ(PlaceLegend(plot, 120, 20, {}), LegendPlace::kOutside);
}

TEST(TextFitTest, TitlesShrinkThenWrapAndFontsKeepALegibleMinimum) {
  // Half a pixel per character and point.
  const TextWidth measure = [](const std::string& text, double points) {
    return text.size() * points * 0.5;
  };
  EXPECT_EQ(FitLines({"Title"}, 100, 10, 8, measure).points, 10.0);
  FittedText fit = FitLines({std::string(40, 'x')}, 180, 10, 8, measure);
  EXPECT_EQ(fit.points, 9.0);  // 200 px shrink into 180
  EXPECT_EQ(fit.lines.size(), 1u);
  // At the smallest size still too wide: wrapped after commas and blanks,
  // and cut with "..." beyond the lines allowed.
  const std::vector<std::string> kds = {"KDS: Zone=1,S=0.22,Site=S2,Fa=1.38"};
  fit = FitLines(kds, 60, 10, 8, measure);
  EXPECT_EQ(fit.points, 8.0);
  EXPECT_EQ(fit.lines, (std::vector<std::string>{
                           "KDS: Zone=1,", "S=0.22,Site=S2,", "Fa=1.38"}));
  EXPECT_EQ(FitLines(kds, 60, 10, 8, measure, 2).lines,
            (std::vector<std::string>{"KDS: Zone=1,", "S=0.22,Site=..."}));

  EXPECT_EQ(ChartFontSize(1120, 800, 9.0, 7.0), 9.0);
  EXPECT_DOUBLE_EQ(ChartFontSize(448, 400, 9.0, 7.0), 7.2);  // 0.8 of 9
  EXPECT_EQ(ChartFontSize(250, 160, 9.0, 7.0), 7.0);
}

}  // namespace
}  // namespace zel
