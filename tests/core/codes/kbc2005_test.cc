#include "core/codes/kbc2005.h"

#include <gtest/gtest.h>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

TEST(Kbc2005Test, DefaultsAndTheirRelief) {
  // 2.3 x 1.33 x 0.11 is 0.33648999999999996 in doubles: five digits.
  double sds = 0.0;
  double sd1 = 0.0;
  ASSERT_TRUE(Kbc2005Refresh(0, 3, sds, sd1));
  EXPECT_EQ(sds, 0.52668);
  EXPECT_EQ(sd1, 0.33649);
  Kbc2005Params p;
  const double plateau = 0.52668 * 1.2 / 4.5;
  auto points = Kbc2005Spectrum(p);
  // Corners T0 = 0.12778 s and Ts = 0.63889 s, each inside a step.
  ASSERT_EQ(points.size(), 103u);
  EXPECT_NEAR(points[0].sa, 0.4 * plateau, 1e-15);
  EXPECT_NEAR(points[3].period, 0.12778, 5e-6);
  EXPECT_NEAR(points[12].period, 0.63889, 5e-6);
  EXPECT_NEAR(points[12].sa, plateau, 1e-15);
  EXPECT_NEAR(points.back().sa, 0.33649 / 6.0 * 1.2 / 4.5, 1e-15);

  // Relieved: T0 = 0.3 falls on the grid, the rising branch is 2 Sds T +
  // 0.4 Sds, and meets the plateau there.
  p.relieve = 1;
  points = Kbc2005Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_NEAR(points[4].sa, 0.88 * plateau, 1e-15);
  EXPECT_NEAR(points[5].sa, plateau, 1e-15);
  EXPECT_EQ(Kbc2005Label(p),
            "KBC2005 : Zone=ZoneI(0.11), Site=Sd, Sds=0.5267, Sd1=0.3365, "
            "Ie=1.200, R=4.500, Relieve=Yes");

  // No relief with T0 = 0.04 or 0.32 (0.2 Sd1 / Sds): 0.06 s stays on the
  // plateau, or on the normal rising branch.
  Kbc2005Params user{.sds = 1.0, .sd1 = 0.2, .relieve = 1, .grid = {}};
  EXPECT_NEAR(Kbc2005Spectrum(user)[2].sa, 1.2 / 4.5, 1e-15);
  user.sd1 = 1.6;
  EXPECT_NEAR(Kbc2005Spectrum(user)[1].sa,
              (0.6 / 0.32 * 0.06 + 0.4) * 1.2 / 4.5, 1e-15);
}

TEST(Kbc2005Test, ModesSitesAndTheReliefBoxAsChecked) {
  const CodeEntry& code = *FindDesignCode("kbc2005");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(GetFieldState(code, v, "sds"), FieldState::kDisabled);
  EXPECT_EQ(GetFieldState(code, v, "relieve"), FieldState::kEnabled);
  MessageLog log;
  v["relieve"] = "1";
  // Site Sa in zone 2: 1.8 x 1.33 x 0.07 and 0.7 x 1.33 x 0.07. The box
  // is disabled but stays checked, and is applied.
  v["zone"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "zone", log));
  v["site"] = "0";
  ASSERT_TRUE(NotifyChanged(code, v, "site", log));
  EXPECT_EQ(v.at("sds"), "0.16758");
  EXPECT_EQ(v.at("sd1"), "0.06517");
  EXPECT_EQ(GetFieldState(code, v, "relieve"), FieldState::kDisabled);
  CZELwDoc doc;
  ASSERT_TRUE(code.generate(v, doc, log));
  EXPECT_EQ(doc.subtitle,
            "KBC2005 : Zone=ZoneII(0.07), Site=Sa, Sds=0.1676, Sd1=0.0652, "
            "Ie=1.200, R=4.500, Relieve=Yes");
  EXPECT_NEAR(doc.store().Value(4, 1), 0.88 * 0.16758 * 1.2 / 4.5, 1e-15);

  // User Defined: Sds and Sd1 open for typing, the lists closed; the mode
  // switch first writes the Per Code values over what was typed.
  v["sds"] = "0.9";
  v["mode"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "mode", log));
  EXPECT_EQ(v.at("sds"), "0.16758");
  EXPECT_EQ(GetFieldState(code, v, "sds"), FieldState::kEnabled);
  EXPECT_EQ(GetFieldState(code, v, "site"), FieldState::kDisabled);
  v["sds"] = "1";
  v["sd1"] = "0.2";
  v["relieve"] = "0";
  CZELwDoc user_doc;
  ASSERT_TRUE(code.generate(v, user_doc, log));
  EXPECT_EQ(user_doc.subtitle,
            "KBC2005 : (User Defined) Sds=1.0000, Sd1=0.2000, Ie=1.200, "
            "R=4.500, Relieve=No");
  EXPECT_TRUE(log.texts().empty());
}

}  // namespace
}  // namespace zel
