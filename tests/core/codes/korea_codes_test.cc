#include "core/codes/korea_codes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/codes/design_document.h"

namespace zel {
namespace {

TEST(Korea1992Test, PlateauEndsAtTheCodesCornerPerSoil) {
  // A I / R = 0.2 * 1.5 / 3 = 0.1; on S1 the plateau is 1.5 of it.
  Korea1992Params p{.epa = 0.2, .importance = 1.5, .r = 3.0, .grid = {}};
  auto points = Korea1992Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_EQ(points[0].period, 9.999999974752427e-7);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.15);
  EXPECT_DOUBLE_EQ(points[5].sa, 0.15);  // T = 0.3
  EXPECT_EQ(points[6].period, 0.3086400032043457);
  EXPECT_DOUBLE_EQ(points[6].sa, 0.15);
  EXPECT_NEAR(points[7].sa, 0.1388888888888889, 1e-15);  // 1 / (1.2 * 0.6)
  EXPECT_NEAR(points.back().sa, 0.03402069087198859, 1e-15);
  EXPECT_EQ(Korea1992Label(p),
            "Soil = 1.0  EPA = 0.20  OIF = 1.50  RMC = 3.00");

  // S3: the 1.75 cap of C S holds up to (1.5 / 2.1)^2.
  p.soil = 2;
  points = Korea1992Spectrum(p);
  EXPECT_NEAR(points[9].period, 0.5102040816326531, 1e-15);
  EXPECT_DOUBLE_EQ(points[9].sa, 0.175);
  EXPECT_DOUBLE_EQ(points[8].sa, 0.175);
  EXPECT_LT(points[10].sa, 0.175);

  // S2 is the single-precision 1.2: its corner lies past (1.2 / 2.1)^2.
  p.soil = 1;
  EXPECT_NEAR(Korea1992Spectrum(p)[6].period, 0.32653063819521994, 1e-15);

  // Like every code: a parameter too large for a readable title, and 0 / 0,
  // are refused; a zero R alone gives an infinite curve that is kept.
  CZELwDoc doc;
  MessageLog log;
  EXPECT_FALSE(GenerateKorea1992(doc, {.epa = 1e16, .grid = {}}, log));
  EXPECT_FALSE(GenerateKorea1992(doc, {.epa = 0.0, .r = 0.0, .grid = {}}, log));
  EXPECT_EQ(log.texts(), (std::vector<std::string>{"The value EPA is too large",
                                                   kUndefinedSpectrumMessage}));
  EXPECT_TRUE(GenerateKorea1992(doc, {.r = 0.0, .grid = {}}, log));
}

TEST(Korea2000Test, SoftSoilPlateauAndExactS2) {
  // S4, Area 2: plateau 1.75 * 0.07 up to (2.0 / 2.1)^2.
  Korea2000Params p{.soil = 3, .area = 1, .grid = {}};
  auto points = Korea2000Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.1225);
  EXPECT_DOUBLE_EQ(points[15].sa, 0.1225);  // T = 0.9
  EXPECT_NEAR(points[16].period, 0.9070294784580498, 1e-15);
  EXPECT_DOUBLE_EQ(points[16].sa, 0.1225);
  EXPECT_NEAR(points[17].sa, 0.11907241805196006, 1e-15);  // T = 0.96
  EXPECT_NEAR(points.back().sa, 0.04762896722078403, 1e-15);
  EXPECT_EQ(Korea2000Label(p),
            "Soil = 2.0  Area = 0.07  OIF = 1.00  RMC = 1.00");
  // This dialog's S2 is the exact 1.2: the corner is 16/49.
  p.soil = 1;
  EXPECT_DOUBLE_EQ(Korea2000Spectrum(p)[6].period, 16.0 / 49.0);
}

TEST(KoreaBridgeTest, CapIsNotDividedByRAndBranchesMeetAtFourSeconds) {
  // R = 2 halves the descending branch but not the cap 2.5 A I = 0.275, so
  // the corner moves to (1.2 / 5)^1.5.
  KoreaBridgeParams p{.area = 0.11, .r = 2.0, .grid = {}};
  auto points = KoreaBridgeSpectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_EQ(points[0].period, 0.0);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.275);
  EXPECT_DOUBLE_EQ(points[1].sa, 0.275);
  EXPECT_NEAR(points[2].period, 0.11757550765359254, 1e-15);
  EXPECT_NEAR(points[2].sa, 0.275, 1e-15);
  EXPECT_LT(points[3].sa, 0.275);
  // T = 4.0 still on the T^(-2/3) branch; T = 8 on the T^(-4/3) one.
  p.grid = {0.0, 8.0, 2};
  points = KoreaBridgeSpectrum(p);
  ASSERT_EQ(points.size(), 3u);
  EXPECT_NEAR(points[1].sa, 0.026192117357475293, 1e-15);
  EXPECT_NEAR(points[2].sa, 0.0103125, 1e-15);

  CZELwDoc doc;
  MessageLog log;
  ASSERT_TRUE(GenerateKoreaBridge(doc, KoreaBridgeParams{}, log));
  EXPECT_EQ(doc.AxisTitle(1), "Csm/R");
  EXPECT_EQ(doc.subtitle, "Soil = 1.0  Area = 0.11  OIF = 1.00  RMC = 1.00");
  // T = 0 takes the cap whatever the signs: a zero coefficient gives 0,
  // not 0 / 0, a negative one its cap, not -infinity.
  p.area = 0.0;
  EXPECT_EQ(KoreaBridgeSpectrum(p)[0].sa, 0.0);
  p.area = -0.1;
  EXPECT_DOUBLE_EQ(KoreaBridgeSpectrum(p)[0].sa, -0.25);
}

}  // namespace
}  // namespace zel
