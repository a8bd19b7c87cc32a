#include "core/codes/period_grid.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <vector>

namespace zel {
namespace {

std::vector<SpectrumPoint> Sample(const PeriodGrid& grid,
                                  std::vector<SpectrumPoint> corners,
                                  CornerRule rule = CornerRule::kInsideStep) {
  return SampleSpectrum(grid, corners, rule, [](double t) {
    return SpectrumPoint{t, 1.0};
  });
}

TEST(PeriodGridTest, DefaultGridHas101PeriodsFromZeroToSix) {
  EXPECT_EQ(CornerTolerance(PeriodGrid{}), 0.06 / 100);
  const auto points = Sample(PeriodGrid{}, {});
  ASSERT_EQ(points.size(), 101u);
  EXPECT_EQ(points.front().period, 0.0);
  EXPECT_EQ(points[1].period, 0.06);
  EXPECT_EQ(points.back().period, 6.0);
}

TEST(PeriodGridTest, CornerPointsOnNearAndOffTheGrid) {
  for (CornerRule rule :
       {CornerRule::kPastPreviousPeriod, CornerRule::kInsideStep}) {
    const PeriodGrid grid;  // h = 0.06, e = 0.0006
    // Off the grid: one extra point, written just before the next period.
    auto points = Sample(grid, {{0.1, 9.0}}, rule);
    ASSERT_EQ(points.size(), 102u);
    EXPECT_EQ(points[1].period, 0.06);
    EXPECT_EQ(points[2].period, 0.1);
    EXPECT_EQ(points[2].sa, 9.0);
    EXPECT_EQ(points[3].period, 0.12);
    // On a grid period, and within e of one: that period marks the corner.
    EXPECT_EQ(Sample(grid, {{0.12, 9.0}}, rule).size(), 101u);
    EXPECT_EQ(Sample(grid, {{0.1203, 9.0}}, rule).size(), 101u);
    EXPECT_EQ(Sample(grid, {{0.1197, 9.0}}, rule).size(), 101u);
    // Just beyond e: a point again.
    EXPECT_EQ(Sample(grid, {{0.1207, 9.0}}, rule).size(), 102u);
    // Two corners in one step keep the given order.
    points = Sample(grid, {{0.08, 7.0}, {0.1, 8.0}}, rule);
    ASSERT_EQ(points.size(), 103u);
    EXPECT_EQ(points[2].period, 0.08);
    EXPECT_EQ(points[3].period, 0.1);
    // Outside the grid, or at its first period: nothing.
    const PeriodGrid from_one{1.0, 6.0, 100};
    EXPECT_EQ(
        Sample(from_one, {{0.5, 9.0}, {7.0, 9.0}, {1.0, 9.0}}, rule).size(),
        101u);
    // Step = 1: e equals h, so no corner is ever inserted.
    const PeriodGrid one_step{0.0, 6.0, 1};
    points = Sample(one_step, {{3.0, 9.0}, {0.001, 9.0}, {5.999, 9.0}}, rule);
    ASSERT_EQ(points.size(), 2u);
    EXPECT_EQ(points[0].period, 0.0);
    EXPECT_EQ(points[1].period, 6.0);
  }
}

TEST(PeriodGridTest, ChecksRunInOrderAndOnlyTheFirstFailureIsShown) {
  const double nan = std::nan("");
  const double inf = std::numeric_limits<double>::infinity();
  const struct {
    PeriodGrid grid;
    const char* message;  // none: accepted
  } grids[] = {{{}, nullptr},
               {{0.0, 6.0, kMaxPeriodSteps}, nullptr},
               {{-1.0, -2.0, 0}, kFromMessage},
               {{nan, 6.0, 100}, kFromMessage},
               {{0.0, 0.0, 0}, kToMessage},
               {{2.0, 1.0, 100}, kToMessage},
               {{0.0, nan, 100}, kToMessage},
               {{0.0, inf, 100}, kToMessage},
               {{0.0, 6.0, 0}, kStepMessage},
               {{0.0, 6.0, -5}, kStepMessage},
               {{0.0, 6.0, INT_MAX}, kStepTooLargeMessage}};
  for (const auto& g : grids) {
    MessageLog log;
    EXPECT_EQ(ValidatePeriodGrid(g.grid, log), g.message == nullptr);
    EXPECT_EQ(log.texts(), g.message == nullptr
                               ? std::vector<std::string>{}
                               : std::vector<std::string>{g.message});
  }
  EXPECT_EQ(std::string(kFromMessage),
            "The edit value in 'From' must be greater than or equal to 0");
  EXPECT_EQ(std::string(kToMessage),
            "The edit value in 'To' must be greater than the edit value in "
            "'From'");
  EXPECT_EQ(std::string(kStepMessage),
            "The edit value in 'Step' must be greater than or equal to 1");
  // The sampler itself refuses to run on a grid that fails.
  EXPECT_TRUE(Sample({0.0, 6.0, 0}, {}).empty());
  EXPECT_TRUE(Sample({0.0, 6.0, INT_MAX}, {}).empty());
}

}  // namespace
}  // namespace zel
