#include "core/codes/ibc2000.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zel {
namespace {

TEST(Ibc2000Test, SiteCoefficientsInterpolateAndHoldAtTheEnds) {
  EXPECT_NEAR(Ibc2000Fa(3, 0.6), 1.32, 1e-12);  // site D
  EXPECT_EQ(Ibc2000Fa(3, 0.1), 1.6);
  EXPECT_EQ(Ibc2000Fa(3, 2.0), 1.0);
  EXPECT_EQ(Ibc2000Fa(3, 0.75), 1.2);  // on a column
  EXPECT_EQ(Ibc2000Fa(0, 0.6), 0.8);
  EXPECT_NEAR(Ibc2000Fa(4, 0.9), 1.2 + (0.9 - 1.2) * 0.15 / 0.25, 1e-12);
  EXPECT_EQ(Ibc2000Fv(3, 0.2), 2.0);
  EXPECT_NEAR(Ibc2000Fv(2, 0.25), 1.55, 1e-12);
  EXPECT_EQ(Ibc2000Fv(2, 0.05), 1.7);
  EXPECT_EQ(Ibc2000Fv(2, 0.8), 1.3);
  EXPECT_EQ(Ibc2000Fa(5, 0.6), 0.0);
}

TEST(Ibc2000Test, SiteDSpectrum) {
  Ibc2000Params p{.ss = 0.6, .s1 = 0.2, .site = 3, .grid = {}};
  // SDS = 2/3 1.32 0.6 = 0.528, SD1 = 2/3 2.0 0.2 = 0.26667,
  // Ts = 0.50505, T0 = 0.10101.
  const Ibc2000Coefficients c = ComputeIbc2000Coefficients(p);
  EXPECT_NEAR(c.sds, 0.528, 1e-12);
  EXPECT_NEAR(c.sd1, 0.4 / 1.5, 1e-12);
  EXPECT_NEAR(c.ts, 0.505051, 1e-6);
  EXPECT_NEAR(c.t0, 0.101010, 1e-6);
  auto points = Ibc2000Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_NEAR(points[0].sa, 0.2112, 1e-12);
  EXPECT_NEAR(points[1].sa, 0.2112 + 0.6 * 0.528 / c.t0 * 0.06, 1e-12);
  EXPECT_NEAR(points[2].period, c.t0, 1e-15);
  EXPECT_NEAR(points[2].sa, 0.528, 1e-12);
  EXPECT_NEAR(points[3].sa, 0.528, 1e-12);
  EXPECT_NEAR(points[10].period, c.ts, 1e-15);
  EXPECT_NEAR(points.back().sa, c.sd1 / 6.0, 1e-12);
  p.importance = 1.5;
  p.r = 6.0;
  EXPECT_NEAR(Ibc2000Spectrum(p)[3].sa, 0.132, 1e-12);
  EXPECT_EQ(Ibc2000Label(p), "Site Class = D  Ss = 0.600  S1 = 0.200");
}

TEST(Ibc2000Test, SiteClassENoteIsStrictAndComesFirst) {
  MessageLog log;
  Ibc2000Params p{.ss = 1.0, .s1 = 0.4, .site = 4, .grid = {}};
  EXPECT_TRUE(CheckIbc2000SiteClass(p, log));
  p.ss = 1.01;
  EXPECT_FALSE(CheckIbc2000SiteClass(p, log));
  p.ss = 0.5;
  p.s1 = 0.41;
  p.grid.steps = 0;  // the note still wins
  CZELwDoc doc;
  EXPECT_FALSE(GenerateIbc2000(doc, p, log));
  p.site = 3;
  EXPECT_FALSE(GenerateIbc2000(doc, p, log));
  p.grid.steps = 100;
  p.ss = std::nan("");
  EXPECT_FALSE(GenerateIbc2000(doc, p, log));
  p.ss = 0.6;
  p.s1 = 0.0;  // SD1 = 0: Sa(0) = 0 / 0, stored as it is
  EXPECT_TRUE(GenerateIbc2000(doc, p, log));
  EXPECT_TRUE(std::isnan(doc.store().Value(0, 1)));
  const std::string note =
      "Note! In case of Site Class 'E' and Ss > 1.0 or S1 > 0.4, Site "
      "Specific geotechnical investigation and dynamic site response analyses "
      "shall be performed to determine appropriate values";
  EXPECT_EQ(log.texts(),
            (std::vector<std::string>{note, note, kStepMessage,
                                      "The value Ss must be a finite number"}));
}

}  // namespace
}  // namespace zel
