#include "core/codes/chinese_codes.h"

#include <gtest/gtest.h>

#include <string>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

// The first message of a refused generation, which leaves `doc` empty.
template <class P, class Generate>
std::string Refusal(Generate generate, const P& p) {
  CZELwDoc doc;
  MessageLog log;
  EXPECT_FALSE(generate(doc, p, log));
  EXPECT_EQ(doc.StoredPoints(0), 0u);
  EXPECT_EQ(log.texts().size(), 1u);
  return log.texts().empty() ? std::string() : log.texts()[0];
}

// The dialog's texts once the user has set `field` to `text` and the code
// has reacted.
ParamValues& Set(const CodeEntry& code, ParamValues& v, const char* field,
                 const char* text) {
  v[field] = text;
  MessageLog log;
  EXPECT_TRUE(NotifyChanged(code, v, field, log));
  return v;
}

TEST(Gb50011Test, DampingAdjustmentsAtFiveAndFiftyPercent) {
  const Gb50011Damping standard = Gb50011DampingFor(0.05);
  EXPECT_EQ(standard.gamma, 0.9);
  EXPECT_EQ(standard.eta1, 0.02);
  EXPECT_EQ(standard.eta2, 1.0);
  // eta2 = 1 - 0.45 / 0.91 = 0.505 is raised to 0.55, eta1 = 0.02 - 0.05625
  // to 0.
  const Gb50011Damping heavy = Gb50011DampingFor(0.5);
  EXPECT_DOUBLE_EQ(heavy.gamma, 0.75);
  EXPECT_EQ(heavy.eta1, 0.0);
  EXPECT_EQ(heavy.eta2, 0.55);
}

TEST(Gb50011Test, BranchesCornersAndTheUnboundedTail) {
  // 8(0.20g) frequent: alpha max 0.16; 5 % damping; Tg 0.4, tail from 2.0.
  Gb50011Params p{.intensity = 3, .site = 1, .tg = 0.4, .grid = {}};
  auto points = Gb50011Spectrum(p);
  ASSERT_EQ(points.size(), 104u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.072);  // 0.45 alpha max
  EXPECT_DOUBLE_EQ(points[1].sa, 0.1248);
  EXPECT_EQ(points[2].period, 0.1);
  EXPECT_DOUBLE_EQ(points[2].sa, 0.16);
  EXPECT_EQ(points[8].period, 0.4);
  EXPECT_DOUBLE_EQ(points[8].sa, 0.16);
  EXPECT_NEAR(points[9].sa, 0.1531262382, 1e-10);  // (0.4 / 0.42)^0.9
  EXPECT_EQ(points[36].period, 2.0);
  EXPECT_NEAR(points[36].sa, 0.0375878062, 1e-10);  // 0.2^0.9 alpha max
  EXPECT_NEAR(points.back().sa, 0.0247878062, 1e-10);
  p.grid.to = 20.0;  // falls below zero: (0.2^0.9 - 0.02 * 18) alpha max
  EXPECT_NEAR(Gb50011Spectrum(p).back().sa, -0.0200121938, 1e-10);
  EXPECT_EQ(Gb50011Label(p),
            "Near Src=1  Zone=8(0.20g)  Site=II  Frequent E.Q.  Tg=0.40s  "
            "Damp.=0.05");

  p.intensity = 0;  // 6(0.05g) has no scarce value: a flat zero curve
  p.earthquake = Gb50011Params::kScarce;
  for (const SpectrumPoint& point : Gb50011Spectrum(p)) {
    EXPECT_EQ(point.sa, 0.0);
  }
}

TEST(Gb50011Test, OwnChecksComeBeforeTheGrid) {
  Gb50011Params p{.tg = 0.05, .grid = {0.0, 6.0, 0}};
  EXPECT_EQ(Refusal(GenerateGb50011, p),
            "The edit value in 'Tg' must be greater than or equal to 0.1");
  p.tg = 1.25;
  EXPECT_EQ(Refusal(GenerateGb50011, p),
            "The edit value in 'Tg' must be less than or equal to 1.2");
  p.tg = 1.2;
  EXPECT_EQ(Refusal(GenerateGb50011, p), kStepMessage);
  p.grid.steps = 100;
  p.damping = 5.0;  // a percentage typed for a ratio
  EXPECT_EQ(
      Refusal(GenerateGb50011, p),
      "The edit value in 'Damping Ratio' must be less than or equal to 1");
}

TEST(Gb50011Test, DialogSuggestsTgWhenASelectionChanges) {
  const CodeEntry& code = *FindDesignCode("gb50011-2001");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("tg"), "0.25");
  EXPECT_EQ(v.at("damping"), "0.05");
  const auto pick = [&](const char* field, const char* index) {
    return Set(code, v, field, index).at("tg");
  };
  EXPECT_EQ(pick("category", "1"), "0.3");
  EXPECT_EQ(pick("site", "2"), "0.55");
  EXPECT_EQ(pick("earthquake", "1"), "0.55");  // scarce, intensity 6
  EXPECT_EQ(pick("intensity", "2"), "0.55");   // 7(0.15g)
  EXPECT_EQ(pick("intensity", "3"), "0.6");    // 8(0.20g): 0.05 more
  EXPECT_EQ(pick("category", "2"), "0.7");
  EXPECT_EQ(pick("site", "3"), "0.95");
  EXPECT_EQ(pick("earthquake", "0"), "0.9");
}

TEST(Jtj004Test, DecayReachesTheFloorAtSevenAndAHalfTgWhenKIsOne) {
  // Kh 0.2, Ci 1.0, Cz 0.30: F = 0.06. k = 1: Te = Tg / 0.1333 = 2.25.
  Jtj004Params p{
      .intensity = 1, .kh = 0.2, .tg = 0.3, .mu = 1.0, .k = 1.0, .grid = {}};
  auto points = Jtj004Spectrum(p);
  ASSERT_EQ(points.size(), 103u);  // 0.3 is on the grid
  EXPECT_DOUBLE_EQ(points[0].sa, 0.06);
  EXPECT_DOUBLE_EQ(points[1].sa, 0.105);  // 1 + 12.5 * 0.06
  EXPECT_EQ(points[2].period, 0.1);
  EXPECT_DOUBLE_EQ(points[2].sa, 0.135);
  EXPECT_NEAR(points[38].sa, 0.0182432432, 1e-10);  // 2.25 * 0.3 / 2.22 F
  EXPECT_DOUBLE_EQ(points[39].period, 2.25);
  EXPECT_DOUBLE_EQ(points[39].sa, 0.018);
  EXPECT_DOUBLE_EQ(points[40].sa, 0.018);  // 0.296 raised to 0.3
  EXPECT_EQ(Jtj004Label(p),
            "Zone=8  Kh=0.2  Site=I  Tg=0.30s  Ci=1.00  Cz=0.30");

  Jtj004Params bad{.kh = -0.1, .tg = 0.05, .grid = {0.0, 6.0, 0}};
  EXPECT_EQ(Refusal(GenerateJtj004, bad),
            "The edit value in 'Kh' must be greater than or equal to 0");
  bad.kh = 0.1;
  EXPECT_EQ(Refusal(GenerateJtj004, bad),
            "The edit value in 'Tg' must be greater than or equal to 0.1");
}

TEST(Jtj004Test, DialogSuggestsKhTgAndMuAndShowsK) {
  const CodeEntry& code = *FindDesignCode("jtj004-89");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("kh"), "0.1");
  EXPECT_EQ(v.at("tg"), "0.2");
  EXPECT_EQ(v.at("k"), "0.98");
  EXPECT_EQ(GetFieldState(code, v, "k"), FieldState::kReadOnly);
  EXPECT_EQ(Set(code, v, "intensity", "2").at("kh"), "0.4");
  Set(code, v, "site", "2");  // III
  EXPECT_EQ(v.at("tg"), "0.45");
  EXPECT_EQ(v.at("mu"), "0");
  EXPECT_EQ(v.at("k"), "0.9");
  EXPECT_EQ(Set(code, v, "mu", "0.35").at("k"), "0.935");
}

TEST(Gbj111Test, PlateauFromZeroThenHyperbolaToTheFloorAtFiveTg1) {
  // Kh 0.2, Cz 1: F = 0.2; Tg1 0.25, Tg2 1.25.
  Gbj111Params p{
      .intensity = 1, .kh = 0.2, .tg1 = 0.25, .tg2 = 1.25, .grid = {}};
  auto points = Gbj111Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.45);
  EXPECT_EQ(points[5].period, 0.25);
  EXPECT_DOUBLE_EQ(points[5].sa, 0.45);
  EXPECT_DOUBLE_EQ(points[6].sa, 0.375);  // 2.25 * 0.25 / 0.3 F
  EXPECT_EQ(points[22].period, 1.25);
  EXPECT_DOUBLE_EQ(points[22].sa, 0.09);
  EXPECT_DOUBLE_EQ(points.back().sa, 0.09);
  EXPECT_EQ(Gbj111Label(p), "Zone=8  Kh=0.20  Site=I  Tg1=0.25s  Cz=1.00");

  Gbj111Params bad{.kh = -1.0, .tg1 = 0.0, .grid = {0.0, 6.0, 0}};
  EXPECT_EQ(Refusal(GenerateGbj111, bad),
            "The edit value in 'Kh' must be greater than or equal to 0");
  bad.kh = 0.0;
  EXPECT_EQ(Refusal(GenerateGbj111, bad),
            "The edit value in 'Tg1' must be greater than 0");

  const CodeEntry& code = *FindDesignCode("gbj111-87");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("cz"), "1.0");
  EXPECT_EQ(v.at("tg2"), "1");
  EXPECT_EQ(GetFieldState(code, v, "tg2"), FieldState::kReadOnly);
  EXPECT_EQ(Set(code, v, "intensity", "1").at("kh"), "0.2");
  EXPECT_EQ(Set(code, v, "site", "1").at("tg1"), "0.3");  // II
  EXPECT_EQ(v.at("tg2"), "1.5");
  EXPECT_EQ(Set(code, v, "tg1", "0.25").at("tg2"), "1.25");
}

}  // namespace
}  // namespace zel
