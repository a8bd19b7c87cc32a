#include "core/plot/tripartite_grid.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

namespace zel {
namespace {

using ::testing::ElementsAre;

TEST(TripartiteGridTest, RelationsUseTheirOwnPi) {
  // 1 s and 10 mm: PSV = 2 x 3.14159 x 10 = 62.8318 mm/s.
  EXPECT_DOUBLE_EQ(DisplacementRelation(0.0, kUnknown, 10.0),
                   std::log10(62.8318));
  EXPECT_DOUBLE_EQ(DisplacementRelation(kUnknown, std::log10(62.8318), 10.0),
                   0.0);
  // 0.5 s at 100 mm/s: D = 50 / 6.28318.
  EXPECT_DOUBLE_EQ(DisplacementRelation(std::log10(0.5), 2.0, kUnknown),
                   50.0 / 6.28318);
  // 1 g at 1 s with g = 9815: PSV = 9815 / 6.283184.
  const double v = std::log10(9815.0 / 6.283184);
  EXPECT_DOUBLE_EQ(AccelerationRelation(0.0, v, kUnknown, 9815.0), 1.0);
  EXPECT_DOUBLE_EQ(AccelerationRelation(0.0, kUnknown, 1.0, 9815.0), v);
  EXPECT_DOUBLE_EQ(AccelerationRelation(kUnknown, v, 1.0, 9815.0), 0.0);
  EXPECT_EQ(DisplacementRelation(0.0, 1.0, 1.0), kUnknown);
  EXPECT_EQ(AccelerationRelation(0.0, 1.0, 1.0, 9815.0), kUnknown);
}

TEST(TripartiteGridTest, DecadesAndLabelTexts) {
  EXPECT_EQ(DecadeExponent(0.01), -2);
  EXPECT_EQ(DecadeExponent(0.001), -3);
  EXPECT_EQ(DecadeExponent(0.00001), -5);
  EXPECT_EQ(DecadeExponent(9.6), 1);
  EXPECT_EQ(DecadeExponent(5.0), 0);
  EXPECT_EQ(DecadeExponent(std::numeric_limits<double>::infinity()), 0);
  EXPECT_EQ(DecadeExponent(-3.0), 0);
  EXPECT_EQ(LogLabelText(1.0), "1.");
  EXPECT_EQ(LogLabelText(10.0), "10.");
  EXPECT_EQ(LogLabelText(100.0), "100.");
  EXPECT_EQ(LogLabelText(0.01), "0.01");
  EXPECT_EQ(LogLabelText(0.00001), "0.00001");
  // A power of ten reached by adding nine steps of the one below it.
  double sum = 0.00001;
  for (int i = 0; i < 9; ++i) sum += 0.00001;
  EXPECT_EQ(LogLabelText(sum), "0.0001");
}

TEST(TripartiteGridTest, AnchorsAnglesAndLabelRoom) {
  // Axis y = 200 - 0.6 (x - 10), line y = 0.75 x: they meet at x = 152.59;
  // the axis at x = 152 is 114.8, truncated towards zero from 200 - 85.2.
  EXPECT_EQ(LabelAnchor({10, 200}, {310, 20}, {0, 0}, {400, 300}),
            (PixelPoint{152, 115}));
  EXPECT_FALSE(LabelAnchor({0, 0}, {10, 10}, {0, 5}, {10, 15}));  // parallel

  const PlotRect plot{0, 0, 300, 300};
  EXPECT_FALSE(plot.Inside({0, 150}));
  EXPECT_FALSE(plot.Inside({150, 300}));
  EXPECT_TRUE(LabelFits(plot, {150, 150}, 0, 40, 13, 2));
  EXPECT_FALSE(LabelFits(plot, {270, 150}, 0, 40, 13, 2));
  // Right-aligned at -45 degrees, the text runs up and left of the anchor.
  EXPECT_TRUE(LabelFits(plot, {150, 150}, 3150, 40, 13, 2));
  EXPECT_FALSE(LabelFits(plot, {20, 150}, 3150, 40, 13, 2));
}

// 0.01 to 10 s and 1 to 1000 mm/s on 300 x 300 pixels: 100 pixels a decade.
TEST(TripartiteGridTest, ReferenceAxesFamiliesAndLabels) {
  const TripartitePlot plot({0, 0, 300, 300}, 0.01, 10.0, 1.0, 1000.0, 9815.0);
  ASSERT_TRUE(plot.valid());
  EXPECT_EQ(plot.Map(-1.0, 1.0), (PixelPoint{100, 200}));
  // The offset from the bottom is truncated: 300 - trunc(33.3).
  EXPECT_EQ(plot.Map(-0.5, 1.0 / 3.0), (PixelPoint{150, 267}));

  CLogAxis displacement;
  CLogAxis acceleration;
  PlaceReferenceAxes(plot, displacement, acceleration);
  // Centre (0.316 s, 31.6 mm/s): 0.064 g, so the axis is the 0.02 g line
  // v = t + 1.49473, from the bottom at t = -1.49473 to the right edge.
  EXPECT_EQ(displacement.start, (PixelPoint{50, 300}));
  EXPECT_EQ(displacement.end, (PixelPoint{300, 51}));
  EXPECT_EQ(displacement.title_angle, 448);  // atan(249 / 250)
  EXPECT_EQ(displacement.label_angle, 3152);
  // 1.59 mm there: the 2 mm line v = -t + 1.09922 misses the bottom edge
  // and runs from the right edge to the top.
  EXPECT_EQ(acceleration.start, (PixelPoint{300, 291}));
  EXPECT_EQ(acceleration.end, (PixelPoint{9, 0}));
  EXPECT_EQ(acceleration.title_angle, 3150);
  EXPECT_EQ(acceleration.label_angle, 450);

  // The bottom-left corner lies at 0.0016 mm: the first line is 0.002 mm
  // and the first label comes only after it. Each power of ten is drawn
  // twice: 8 lines to 0.009, 10 a decade up to 999, and 1000 twice.
  const std::vector<GridLine> d_lines = DisplacementFamily(plot, displacement);
  ASSERT_EQ(d_lines.size(), 60u);
  EXPECT_EQ(d_lines.front().from, (PixelPoint{9, 300}));
  EXPECT_EQ(d_lines.front().to, (PixelPoint{0, 291}));
  EXPECT_THAT(displacement.labels,
              ElementsAre("0.01", "0.1", "1.", "10.", "100."));
  const std::vector<GridLine> a_lines = AccelerationFamily(plot, acceleration);
  EXPECT_THAT(acceleration.labels,
              ElementsAre("0.0001", "0.001", "0.01", "0.1", "1.", "10."));
  EXPECT_EQ(displacement.made, 1);
  EXPECT_EQ(acceleration.count, 6);
  for (const CLogAxis* axis : {&displacement, &acceleration}) {
    for (const PixelPoint& p : axis->positions) {
      EXPECT_TRUE(plot.rect().Inside(p)) << p.x << "," << p.y;
    }
  }
  for (const auto* lines : {&d_lines, &a_lines}) {
    for (const GridLine& line : *lines) {
      EXPECT_TRUE(plot.rect().Covers(line.from) && plot.rect().Covers(line.to));
    }
  }

  // No log-log plot (a range from 0), no lines.
  const TripartitePlot bad({0, 0, 300, 300}, 0.0, 10.0, 1.0, 1000.0, 9815.0);
  EXPECT_TRUE(DisplacementFamily(bad, displacement).empty());
}

}  // namespace
}  // namespace zel
