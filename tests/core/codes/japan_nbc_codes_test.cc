#include "core/codes/japan_nbc_codes.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(Japan2000Test, ZoneOneSoilTwo) {
  // Z = 1, Co = 0.2: plateau 0.2 * 12 / 9.806 from 0.16 s to Tc = 0.864 s.
  Japan2000Params p;
  const auto points = Japan2000Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_NEAR(points[0].sa, 0.09789924535998369, 1e-15);  // 0.2 * 4.8 / 9.806
  EXPECT_EQ(points[3].period, 0.16);
  EXPECT_NEAR(points[3].sa, 0.24474811339995928, 1e-15);
  EXPECT_EQ(points[4].sa, points[3].sa);  // T = 0.18
  EXPECT_EQ(points[16].period, 0.864);
  EXPECT_EQ(points[16].sa, points[3].sa);
  EXPECT_NEAR(points.back().sa, 0.03524372832959414, 1e-15);
  EXPECT_EQ(Japan2000Label(p), "Zone = 1(1.0)  Soil = II  Co = 0.200");
  // Zone 4 (0.7) on soil III: 0.7 * 0.2 * 13.824 / 6 / 9.806 at 6 s.
  p = {.zone = 3, .soil = 2, .co = 0.2, .grid = {}};
  EXPECT_NEAR(Japan2000Spectrum(p).back().sa, 0.032894146440954515, 1e-15);
}

TEST(Nbc1995Test, PlateauByZonesAndTheDecay) {
  EXPECT_EQ(NbcPlateauFactor(4, 3), 4.2);
  EXPECT_EQ(NbcPlateauFactor(4, 4), 3.0);
  EXPECT_EQ(NbcPlateauFactor(3, 4), 2.1);
  // Za = Zv, v = 0.2: 3.0 v from T = 0 up to 1.2814 / 3, then 1.2814 v / T.
  Nbc1995Params p;
  const auto points = Nbc1995Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_EQ(points[0].period, 0.0);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.6);
  EXPECT_DOUBLE_EQ(points[7].sa, 0.6);  // T = 0.42
  EXPECT_NEAR(points[8].period, 0.42713333333333336, 1e-15);
  EXPECT_DOUBLE_EQ(points[8].sa, 0.6);
  EXPECT_NEAR(points.back().sa, 0.04271333333333333, 1e-15);
  EXPECT_EQ(Nbc1995Label(p), "v = 0.20  Za = 4  Zv = 4");
}

}  // namespace
}  // namespace zel
