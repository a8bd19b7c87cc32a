#include "core/codes/ntc2018.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

TEST(Ntc2018Test, FirstRefreshAndTheFourSpectra) {
  const CodeEntry& code = *FindDesignCode("ntc2018");
  const ParamValues v = DefaultValues(code);
  // Ground B on T1: Ss = 1.4 - 0.4 x 2.5 x 0.08 = 1.32, limited to 1.2;
  // Tc = 1.1 x 0.3^-0.2 x 0.3, Tb = Tc / 3, Td = 4 x 0.08 + 1.6.
  EXPECT_EQ(v.at("s"), "1.2");
  EXPECT_EQ(v.at("tc"), "0.419846");
  EXPECT_EQ(v.at("tb"), "0.139949");
  EXPECT_EQ(v.at("td"), "1.92");
  EXPECT_EQ(GetFieldState(code, v, "s"), FieldState::kReadOnly);
  EXPECT_EQ(GetFieldState(code, v, "q"), FieldState::kDisabled);
  // The values as displayed. Horizontal elastic: eta = 1, plateau
  // ag S Fo = 0.24, start P / Fo; a corner at Tb; Tc lies within the
  // tolerance 0.0006 of 0.42 and Td on the grid, so neither gets one.
  Ntc2018Params p{.tb = 0.139949, .tc = 0.419846, .td = 1.92, .grid = {}};
  auto points = Ntc2018Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_NEAR(points[0].sa, 0.096, 1e-15);
  EXPECT_NEAR(points[3].sa, 0.24, 1e-15);
  EXPECT_NEAR(points.back().sa, 0.24 * 0.419846 * 1.92 / 36.0, 1e-15);
  EXPECT_EQ(Ntc2018Label(p),
            "NTC2018 H-ELA: G=B, S=1.20, Tb=0.14, Tc=0.42, Td=1.92, "
            "ag=0.08g, Fo=2.5, Tc*=0.30, Damping=5.00");
  // Horizontal design: P = 0.24 / 1.5 = 0.16, start P q / Fo, and the
  // floor 0.2 ag at long periods.
  p.type = 2;
  points = Ntc2018Spectrum(p);
  EXPECT_NEAR(points[0].sa, 0.096, 1e-15);
  EXPECT_NEAR(points.back().sa, 0.016, 1e-15);
  EXPECT_EQ(Ntc2018Label(p),
            "NTC2018 H-DGN: G=B,S=1.20,Tb=0.14,Tc=0.42,Td=1.92,ag=0.08g,Fo=2.5,"
            "Tc*=0.30,q=1.50");
  // Vertical: the fixed S, Tb, Tc, Td; F = 1.35 Fo sqrt(ag), yet Fo in
  // the start branch; the design floor 0.2 ag S 1.35 sqrt(ag).
  p.type = 1;
  ASSERT_TRUE(Ntc2018Refresh(p));
  EXPECT_EQ(p.tc, 0.15);
  EXPECT_NEAR(Ntc2018Spectrum(p)[0].sa, 0.08 * 1.35 * std::sqrt(0.08), 1e-15);
  EXPECT_EQ(Ntc2018Label(p),
            "NTC2018 V-ELA: G=B,S=1.00,Tb=0.05,Tc=0.15,Td=1.00,ag=0.08g,Fo=2.5,"
            "Tc*=0.30,Damping=5.00");
  p.type = 3;
  EXPECT_NEAR(Ntc2018Spectrum(p).back().sa, 0.2 * 0.08 * 1.35 * std::sqrt(0.08),
              1e-15);
}

TEST(Ntc2018Test, UserDefinedFreezesAndChecksComeInOrder) {
  const CodeEntry& code = *FindDesignCode("ntc2018");
  ParamValues v = DefaultValues(code);
  MessageLog log;
  for (const auto& [field, text] :
       {std::pair{"topography", "4"}, {"ag", "0.3"}, {"type", "1"}}) {
    v[field] = text;
    ASSERT_TRUE(NotifyChanged(code, v, field, log));
  }
  EXPECT_EQ(v.at("tc"), "0.419846");
  EXPECT_EQ(v.at("td"), "1.92");
  EXPECT_EQ(GetFieldState(code, v, "s"), FieldState::kReadOnly);
  EXPECT_EQ(GetFieldState(code, v, "tb"), FieldState::kEnabled);

  const auto first_message = [&](const ParamValues& values) {
    CZELwDoc doc;
    MessageLog messages;
    EXPECT_FALSE(code.generate(values, doc, messages));
    return messages.texts().empty() ? "" : messages.texts()[0];
  };
  v["steps"] = "0";  // the code's fields are checked before the grid
  v["s"] = "0";
  EXPECT_EQ(first_message(v), "S > 0");
  v["s"] = "1";
  v["tc"] = "0.1";
  EXPECT_EQ(first_message(v), "Tc > Tb");
  v["tc"] = "0.5";
  v["xi"] = "-1";  // refused for the elastic types only
  EXPECT_EQ(first_message(v), "Damping Ratio cannot have (-) value");
  v["type"] = "3";
  EXPECT_EQ(first_message(v), kStepMessage);
  v["q"] = "0";
  EXPECT_EQ(first_message(v), "q > 0");
  v["tcstar"] = "abc";
  EXPECT_EQ(first_message(v), "Tc* > 0");
}

}  // namespace
}  // namespace zel
