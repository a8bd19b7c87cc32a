#include "core/document/units.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(UnitsTest, FactorTableKeepsItsRoundingAndSinglePrecisionEntry) {
  EXPECT_EQ(UnitConversionFactor(2, 4), 3.2809998989105225);
  EXPECT_EQ(UnitConversionFactor(4, 2), 0.3048);
  EXPECT_NE(UnitConversionFactor(2, 4) * UnitConversionFactor(4, 2), 1.0);
  EXPECT_EQ(UnitConversionFactor(0, 3), 0.03937);
  EXPECT_EQ(UnitConversionFactor(3, 4), 0.08333);
  for (int u = 0; u < kUnitCount; ++u)
    EXPECT_EQ(UnitConversionFactor(u, u), 1.0);
}

TEST(UnitsTest, UnitWordsOfTheDataFile) {
  EXPECT_EQ(UnitIndexOfWord("MM"), 0);
  EXPECT_EQ(UnitIndexOfWord("CM"), 1);
  EXPECT_EQ(UnitIndexOfWord("M"), 2);
  EXPECT_EQ(UnitIndexOfWord("IN."), 3);
  EXPECT_EQ(UnitIndexOfWord("INCH"), 3);
  EXPECT_EQ(UnitIndexOfWord("FEET"), 4);
  EXPECT_EQ(UnitIndexOfWord("FT."), 4);
  EXPECT_EQ(UnitIndexOfWord("GRAV"), -1);
  EXPECT_EQ(UnitIndexOfWord("KM"), -1);
}

}  // namespace
}  // namespace zel
