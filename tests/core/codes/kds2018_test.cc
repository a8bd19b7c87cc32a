#include "core/codes/kds2018.h"

#include <gtest/gtest.h>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

TEST(Kds2018Test, RockDefaultsHaveTheirOwnFixedSpectrum) {
  const Kds2018Params p;  // zone 1, I = 0.4, S1: S = 0.044
  const auto points = Kds2018Spectrum(p);
  // T0 = 0.06 and Ts = 0.3 lie on the grid: no corner points.
  ASSERT_EQ(points.size(), 101u);
  EXPECT_NEAR(points[0].sa, 0.044, 1e-15);
  EXPECT_NEAR(points[1].sa, 0.1232, 1e-15);    // 0.06 s: 2.8 S
  EXPECT_NEAR(points[5].sa, 0.1232, 1e-15);    // 0.3 s
  EXPECT_NEAR(points[50].sa, 0.01232, 1e-15);  // 3 s, both sides of TL
  EXPECT_NEAR(points[100].sa, 2.52 * 0.044 / 36.0, 1e-15);
  EXPECT_EQ(Kds2018Label(p), "Zone=ZoneI(0.11), I=0.400, Site=S1");
}

TEST(Kds2018Test, SiteLookupHidingAndThePlateauAfterACorner) {
  const CodeEntry& code = *FindDesignCode("kds2018");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("risk"), "0.4");
  EXPECT_EQ(v.at("fa"), "0.000000");
  EXPECT_EQ(GetFieldState(code, v, "fa"), FieldState::kHidden);
  MessageLog log;
  // Zone 2, I = 2.0, S3: S = 0.14, Fa = 1.7 - 0.2 * 0.4, Fv = 1.7 - 0.1 * 0.4.
  for (const auto& [field, text] :
       {std::pair{"zone", "1"}, {"risk", "2.0"}, {"site", "2"}}) {
    v[field] = text;
    ASSERT_TRUE(NotifyChanged(code, v, field, log));
  }
  EXPECT_EQ(v.at("fa"), "1.620000");
  EXPECT_EQ(v.at("fv"), "1.660000");
  EXPECT_EQ(GetFieldState(code, v, "fv"), FieldState::kReadOnly);
  CZELwDoc doc;
  ASSERT_TRUE(PrecheckCode(code, v, log) && code.generate(v, doc, log));
  EXPECT_EQ(doc.subtitle, "Zone=ZoneII(0.07), I=2.000, Site=S3");
  // Ts = 1.66 / (2.5 1.62) = 0.40988 lies inside the step 0.36..0.42: the
  // corner point, then 0.42 s repeats the plateau 2.5 Fa S = 0.567.
  ASSERT_EQ(doc.StoredPoints(0), 103u);
  EXPECT_NEAR(doc.store().Value(8, 0), 1.66 / (2.5 * 1.62), 1e-15);
  EXPECT_NEAR(doc.store().Value(9, 0), 0.42, 1e-15);
  EXPECT_NEAR(doc.store().Value(9, 1), 0.567, 1e-15);
  EXPECT_NEAR(doc.store().Value(10, 1), 1.66 * 0.14 / 0.48, 1e-15);

  // S6 keeps the values last shown, now typed; zero is refused there, and
  // the risk factor is checked first.
  v["site"] = "5";
  ASSERT_TRUE(NotifyChanged(code, v, "site", log));
  EXPECT_EQ(v.at("fa"), "1.620000");
  EXPECT_EQ(GetFieldState(code, v, "fa"), FieldState::kEnabled);
  v["fa"] = "0";
  EXPECT_FALSE(PrecheckCode(code, v, log));
  v["risk"] = "abc";
  EXPECT_FALSE(PrecheckCode(code, v, log));
  EXPECT_EQ(log.texts(),
            (std::vector<std::string>{"Error! Fa must be positive value.",
                                      "Error! I  must be positive value."}));
}

}  // namespace
}  // namespace zel
