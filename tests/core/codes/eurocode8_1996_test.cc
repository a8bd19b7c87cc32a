#include "core/codes/eurocode8_1996.h"

#include <gtest/gtest.h>

#include "core/codes/period_grid.h"

namespace zel {
namespace {

TEST(Ec8DesignTest, BehaviourFactorIsRaisedTo15) {
  // qo Kd Kr Kw = 1.6 * 0.75 = 1.2 < 1.5. Soil B, alpha 0.3: P = 0.5.
  Ec8DesignParams p{.soil = 1, .qo = 1.6, .ductility = 1, .alpha = 0.3};
  EXPECT_EQ(Ec8BehaviourFactor(p), 1.5);
  const auto points = Ec8DesignSpectrum(p);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.3);   // alpha S at T = 0
  EXPECT_DOUBLE_EQ(points[2].sa, 0.46);  // T = 0.12, rising
  EXPECT_EQ(points[3].period, 0.15);     // TB
  EXPECT_DOUBLE_EQ(points[3].sa, 0.5);
  EXPECT_EQ(
      Ec8DesignLabel(p),
      "Soil = B  qo = 1.6  Kd = 0.75  Kr = 1.00  Kw = 1.00  Alpha = 0.300");
}

TEST(Ec8DesignTest, DescendingBranchMeetsTheFloor) {
  // Soil A, alpha 0.2, q 5: from 0.2 down to P = 0.1 at TB, held to TC,
  // then 0.1 (0.4 / T)^(2/3) until it meets 0.2 alpha = 0.04 near 1.58 s.
  Ec8DesignParams p;
  auto points = Ec8DesignSpectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.2);
  EXPECT_EQ(points[2].period, 0.1);
  EXPECT_DOUBLE_EQ(points[2].sa, 0.1);
  EXPECT_EQ(points[8].period, 0.4);
  EXPECT_DOUBLE_EQ(points[8].sa, 0.1);
  EXPECT_NEAR(points[28].sa, 0.04036053632388317, 1e-15);  // T = 1.56
  EXPECT_DOUBLE_EQ(points[29].sa, 0.04);                   // T = 1.62
  EXPECT_DOUBLE_EQ(points.back().sa, 0.04);
  // Off the grid, the TD corner carries the floor as well (TB lies within
  // the corner tolerance h / N of T = 0 and gets no point).
  p.grid = {0.0, 6.0, 7};
  points = Ec8DesignSpectrum(p);
  ASSERT_EQ(points.size(), 10u);
  EXPECT_EQ(points[5].period, 3.0);
  EXPECT_DOUBLE_EQ(points[5].sa, 0.04);
}

TEST(Ec8ElasticTest, DampingCorrectionAndItsCheck) {
  EXPECT_EQ(Ec8DampingCorrection(5.0), 1.0);
  EXPECT_NEAR(Ec8DampingCorrection(0.0), 1.8708286933869707, 1e-15);
  EXPECT_EQ(Ec8DampingCorrection(20.0), 0.7);  // sqrt(7 / 22) = 0.564

  // xi = 20, soil A, alpha 0.2: plateau 0.2 * 0.7 * 2.5, no floor.
  Ec8ElasticParams p{.damping = 20.0, .grid = {0.0, 6.0, 7}};
  const auto points = Ec8ElasticSpectrum(p);
  ASSERT_EQ(points.size(), 10u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.2);
  EXPECT_DOUBLE_EQ(points[1].sa, 0.35);              // TC
  EXPECT_DOUBLE_EQ(points[5].sa, 0.35 * 0.4 / 3.0);  // TD
  EXPECT_NEAR(points.back().sa, 0.011666666666666665, 1e-15);
  EXPECT_EQ(Ec8ElasticLabel(p), "Soil = A  Acc. = 0.200g  Damping = 20.000");

  // A negative ratio is refused before the grid is looked at.
  p.damping = -1.0;
  p.grid.steps = 0;
  CZELwDoc doc;
  MessageLog log;
  EXPECT_FALSE(GenerateEc8Elastic(doc, p, log));
  EXPECT_EQ(log.texts(),
            std::vector<std::string>{
                "Viscous Damping Ratio cannot have negative value"});
  EXPECT_EQ(doc.StoredPoints(0), 0u);
  p.damping = 0.0;
  EXPECT_FALSE(GenerateEc8Elastic(doc, p, log));
  EXPECT_EQ(log.texts().back(), kStepMessage);
}

}  // namespace
}  // namespace zel
