#include "core/codes/tolerant_compare.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace zel {
namespace {

constexpr double kEps = std::numeric_limits<double>::epsilon();

TEST(TolerantCompareTest, ThirtyTwoUnitsInTheLastPlaceOfTheSmallerValue) {
  EXPECT_EQ(TolerantCompare(1.0, 1.0), 0);
  // Above 1.0 one unit is eps; below it, eps / 2.
  EXPECT_EQ(TolerantCompare(1.0 + 32 * kEps, 1.0), 0);
  EXPECT_EQ(TolerantCompare(1.0 + 33 * kEps, 1.0), 1);
  EXPECT_EQ(TolerantCompare(1.0, 1.0 + 32 * kEps), 0);
  EXPECT_EQ(TolerantCompare(1.0, 1.0 + 33 * kEps), -1);
  EXPECT_EQ(TolerantCompare(1.0 - 32 * kEps / 2, 1.0), 0);
  EXPECT_EQ(TolerantCompare(1.0 - 33 * kEps / 2, 1.0), -1);
  EXPECT_EQ(TolerantCompare(1.0, 1.0 - 33 * kEps / 2), 1);
  // The classic rounding case.
  EXPECT_EQ(TolerantCompare(0.1 + 0.2, 0.3), 0);
  EXPECT_EQ(TolerantCompare(0.22, 0.1), 1);
  EXPECT_EQ(TolerantCompare(0.0, 1e-300), -1);
  EXPECT_EQ(TolerantCompare(std::nan(""), 1.0), 0);
}

TEST(TolerantCompareTest, InterpolationClampsAndInterpolatesBetweenColumns) {
  const std::vector<double> xs = {0.1, 0.2, 0.3};
  const std::vector<double> ys = {1.8, 1.3, 1.3};
  double y = -1.0;
  ASSERT_TRUE(InterpolateTable(0.05, xs, ys, y));
  EXPECT_EQ(y, 1.8);
  ASSERT_TRUE(InterpolateTable(0.14, xs, ys, y));
  EXPECT_NEAR(y, 1.8 - 0.5 * 0.4, 1e-12);
  ASSERT_TRUE(InterpolateTable(0.2, xs, ys, y));
  EXPECT_EQ(y, 1.3);
  ASSERT_TRUE(InterpolateTable(0.35, xs, ys, y));
  EXPECT_EQ(y, 1.3);
  // Within tolerance of the last column counts as the last column.
  ASSERT_TRUE(
      InterpolateTable(0.1 + 0.2, xs, std::vector<double>{3.0, 2.7, 2.4}, y));
  EXPECT_EQ(y, 2.4);
  ASSERT_TRUE(InterpolateTable(0.25, std::vector<double>{0.0, 1.0},
                               std::vector<double>{0.0, 4.0}, y));
  EXPECT_EQ(y, 1.0);

  y = 7.0;
  EXPECT_FALSE(InterpolateTable(0.1, {}, {}, y));
  EXPECT_EQ(y, 7.0);
  ASSERT_TRUE(InterpolateTable(5.0, std::vector<double>{1.0},
                               std::vector<double>{2.0}, y));
  EXPECT_EQ(y, 2.0);
}

}  // namespace
}  // namespace zel
