#include "core/codes/ubc97_coefficients.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zel {
namespace {

TEST(Ubc97CoefficientsTest, NearSourceFactorsBetweenTabulatedDistances) {
  // Source A at 3.5 km: a third of the way... half of 2 to 5 km.
  EXPECT_NEAR(NearSourceNa(0, 3.5), 1.35, 1e-12);
  EXPECT_NEAR(NearSourceNv(0, 3.5), 1.8, 1e-12);
  // At 10 km Na has reached its last column, Nv ends its 5-10 km segment.
  EXPECT_EQ(NearSourceNa(0, 10.0), 1.0);
  EXPECT_NEAR(NearSourceNv(0, 10.0), 1.2, 1e-12);
  // 7 km: Na 1.2 + (1.0 - 1.2) 2/5 = 1.12; 12 km: Nv 1.2 + (1.0 - 1.2) 2/5.
  EXPECT_NEAR(NearSourceNa(0, 7.0), 1.12, 1e-12);
  EXPECT_NEAR(NearSourceNv(0, 12.0), 1.12, 1e-12);
  EXPECT_EQ(NearSourceNa(1, 0.0), 1.3);
  EXPECT_EQ(NearSourceNv(1, 2.0), 1.6);
  EXPECT_EQ(NearSourceNv(0, 15.0), 1.0);
  EXPECT_EQ(NearSourceNv(0, 1e9), 1.0);
  EXPECT_EQ(NearSourceNa(2, 3.0), 1.0);
  EXPECT_EQ(NearSourceNv(2, 3.0), 1.0);
}

TEST(Ubc97CoefficientsTest, TablesAndZone4NearSourceScaling) {
  SeismicCoefficients c;
  ASSERT_TRUE(Ubc97Coefficients(4, 3, 0, 2.0, c));  // Zone 4, Sd, A, 2 km
  EXPECT_NEAR(c.ca, 0.66, 1e-12);
  EXPECT_NEAR(c.cv, 1.28, 1e-12);
  // Below zone 4 the distance is not even read.
  ASSERT_TRUE(Ubc97Coefficients(3, 4, 0, -1.0, c));  // Zone 3, Se
  EXPECT_EQ(c.ca, 0.36);
  EXPECT_EQ(c.cv, 0.84);
  ASSERT_TRUE(Ubc97Coefficients(0, 2, 0, 0.0, c));  // Zone 1, Sc
  EXPECT_EQ(c.ca, 0.09);
  EXPECT_EQ(c.cv, 0.13);
  ASSERT_TRUE(Ubc97Coefficients(4, 2, 2, 0.0, c));  // Zone 4, Sc, C
  EXPECT_EQ(c.ca, 0.4);
  EXPECT_EQ(c.cv, 0.56);
  EXPECT_FALSE(Ubc97Coefficients(5, 0, 0, 10.0, c));
  EXPECT_FALSE(Ubc97Coefficients(4, 0, 3, 10.0, c));
  EXPECT_FALSE(Ubc97Coefficients(4, 0, 0, std::nan(""), c));
}

TEST(Ubc97CoefficientsTest, RefreshRoundsThroughTheDisplayedText) {
  MessageLog log;
  // The record's defaults are what the dialog computes when it opens, and
  // refreshing rounds through the displayed text.
  Ubc97Params p;
  ASSERT_TRUE(RefreshUbc97Coefficients(p, log));
  EXPECT_EQ(p.ca, Ubc97Params{}.ca);
  EXPECT_EQ(p.cv, Ubc97Params{}.cv);
  // Se, source A, 3 km: Na 1.4, Nv 1.866667: Cv = 0.96 Nv = 1.792.
  p = {.soil = 4, .source = 0, .distance = 3.0, .grid = {}};
  ASSERT_TRUE(RefreshUbc97Coefficients(p, log));
  EXPECT_EQ(p.ca, 0.504);
  EXPECT_EQ(p.cv, 1.792);
}

}  // namespace
}  // namespace zel
