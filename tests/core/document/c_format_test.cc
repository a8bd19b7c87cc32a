#include "core/document/c_format.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <limits>
#include <random>
#include <string>

namespace zel {
namespace {

TEST(CFormatTest, DataNumbersArePrintfsWithThreeExponentDigits) {
  EXPECT_EQ(FormatDataNumber(0.01), "1.00000E-002");
  EXPECT_EQ(FormatDataNumber(std::numeric_limits<double>::infinity()), "INF");
  EXPECT_TRUE(std::isnan(AtoF(FormatDataNumber(std::nan("")))));
  // Any double: the C library's "%2.5E", the exponent widened to 3 digits.
  std::mt19937_64 random(11);
  for (int i = 0; i < 20000; ++i) {
    double value;
    const std::uint64_t bits = random();
    std::memcpy(&value, &bits, sizeof value);
    if (!std::isfinite(value)) continue;
    char expected[64];
    std::snprintf(expected, sizeof expected, "%2.5E", value);
    std::string text = expected;
    const std::size_t sign = text.find('E') + 1;
    if (text.size() - sign == 3) text.insert(sign + 1, "0");
    ASSERT_EQ(FormatDataNumber(value), text) << expected;
  }
}

TEST(CFormatTest, AtoFIsTheCLibrarysAtof) {
  EXPECT_EQ(AtoF("1,5"), 1.0);  // a decimal comma is never a decimal point
  // Every kind of text the readers meet, against atof itself.
  const char* const pieces[] = {"",       " ",
                                "\t",     "+",
                                "-",      "+-",
                                "0",      "1",
                                "9",      ".",
                                "5",      "e",
                                "E",      "-",
                                "+",      "x",
                                "inf",    "1e400",
                                "1e-400", "4e-320",
                                ",",      "123456789012345678901234567890",
                                "0x1p3",  "abc",
                                "00",     "7.",
                                "e5",     "nan"};
  std::mt19937 random(5);
  for (int i = 0; i < 200000; ++i) {
    std::string text;
    for (int n = static_cast<int>(random() % 7); n > 0; --n) {
      text += pieces[random() % std::size(pieces)];
    }
    const double expected = std::atof(text.c_str());
    const double value = AtoF(text);
    ASSERT_TRUE(value == expected ||
                (std::isnan(value) && std::isnan(expected)))
        << '"' << text << '"';
    ASSERT_EQ(std::signbit(value), std::signbit(expected)) << text;
  }
}

TEST(CFormatTest, PercentEscapesInTitlesAreInterpretedSafely) {
  EXPECT_EQ(ExpandPercentEscapes("5%% damped"), "5% damped");
  EXPECT_EQ(ExpandPercentEscapes("x %-08.3lf y %n z"), "x  y  z");
  EXPECT_EQ(ExpandPercentEscapes("%*.*e|%1$s|%"), "||");
}

}  // namespace
}  // namespace zel
