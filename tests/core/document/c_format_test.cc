#include "core/document/c_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zel {
namespace {

TEST(CFormatTest, DataNumbersHaveThreeExponentDigits) {
  EXPECT_EQ(FormatDataNumber(0.01), "1.00000E-002");
  EXPECT_EQ(FormatDataNumber(-0.15181), "-1.51810E-001");
  EXPECT_EQ(FormatDataNumber(0.0), "0.00000E+000");
  EXPECT_EQ(FormatDataNumber(123456.789), "1.23457E+005");
  EXPECT_EQ(FormatDataNumber(1e-300), "1.00000E-300");
  EXPECT_EQ(FormatDataNumber(-1.5e200), "-1.50000E+200");
  // Non-finite ordinates stay readable by atof rather than breaking the layout.
  EXPECT_EQ(FormatDataNumber(std::numeric_limits<double>::infinity()), "INF");
  EXPECT_EQ(FormatDataNumber(-std::numeric_limits<double>::infinity()), "-INF");
  EXPECT_TRUE(std::isnan(AtoF(FormatDataNumber(std::nan("")))));
}

TEST(CFormatTest, PercentEscapesInTitlesAreInterpretedSafely) {
  EXPECT_EQ(ExpandPercentEscapes("5%% damped"), "5% damped");
  EXPECT_EQ(ExpandPercentEscapes("a %d b %s c"), "a  b  c");
  EXPECT_EQ(ExpandPercentEscapes("x %-08.3lf y %n z"), "x  y  z");
  EXPECT_EQ(ExpandPercentEscapes("%*.*e|%1$s|%"), "||");
  EXPECT_EQ(ExpandPercentEscapes("100%"), "100");
  EXPECT_EQ(ExpandPercentEscapes("plain"), "plain");
}

TEST(CFormatTest, AtoFReadsTheLongestPrefixLikeTheCLibrary) {
  EXPECT_EQ(AtoF("  2.5E-002\t"), 0.025);
  EXPECT_EQ(AtoF("1.5abc"), 1.5);
  EXPECT_EQ(AtoF("+3"), 3.0);
  EXPECT_EQ(AtoF("junk"), 0.0);
  EXPECT_EQ(AtoF(""), 0.0);
  EXPECT_EQ(AtoF("0x10"), 16.0);
  EXPECT_EQ(AtoF("1,5"), 1.0);  // a decimal comma is never a decimal point
  EXPECT_TRUE(std::isinf(AtoF("inf")));
  EXPECT_TRUE(std::isnan(AtoF("nan")));
}

TEST(CFormatTest, TruncationSaturatesInsteadOfOverflowing) {
  EXPECT_EQ(TruncateToInt(1.9), 1);
  EXPECT_EQ(TruncateToInt(-1.9), -1);
  EXPECT_EQ(TruncateToInt(std::nan("")), 0);
  EXPECT_EQ(TruncateToInt(1e300), std::numeric_limits<int>::max());
  EXPECT_EQ(TruncateToInt(-1e300), std::numeric_limits<int>::min());
}

}  // namespace
}  // namespace zel
