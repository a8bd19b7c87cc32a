#include "core/codes/ntc2018.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

// The curve and label `code` makes from the controls' texts.
std::vector<double> Generate(const ParamValues& v, std::string* label) {
  CZELwDoc doc;
  MessageLog log;
  EXPECT_TRUE(FindDesignCode("ntc2018")->generate(v, doc, log));
  *label = doc.subtitle;
  std::vector<double> sa;
  for (std::size_t i = 0; i < doc.StoredPoints(0); ++i) {
    sa.push_back(doc.store().Value(i, 1));
  }
  return sa;
}

TEST(Ntc2018Test, FirstRefreshAndTheFourSpectra) {
  const CodeEntry& code = *FindDesignCode("ntc2018");
  ParamValues v = DefaultValues(code);
  // Ground B on T1: Ss = 1.4 - 0.4 x 2.5 x 0.08 = 1.32, limited to 1.2;
  // Tc = 1.1 x 0.3^-0.2 x 0.3, Tb = Tc / 3, Td = 4 x 0.08 + 1.6.
  EXPECT_EQ(v.at("s"), "1.2");
  EXPECT_EQ(v.at("tc"), "0.419846");
  EXPECT_EQ(v.at("tb"), "0.139949");
  EXPECT_EQ(v.at("td"), "1.92");
  EXPECT_EQ(GetFieldState(code, v, "s"), FieldState::kReadOnly);
  EXPECT_EQ(GetFieldState(code, v, "q"), FieldState::kDisabled);
  std::string label;
  // Horizontal elastic: eta = 1, plateau ag S Fo = 0.24, start P / Fo;
  // a corner at Tb; Tc lies within the tolerance 0.0006 of 0.42 and Td
  // on the grid, so neither gets one.
  auto sa = Generate(v, &label);
  ASSERT_EQ(sa.size(), 102u);
  EXPECT_NEAR(sa[0], 0.096, 1e-15);
  EXPECT_NEAR(sa[3], 0.24, 1e-15);
  EXPECT_NEAR(sa.back(), 0.24 * 0.419846 * 1.92 / 36.0, 1e-15);
  EXPECT_EQ(label,
            "NTC2018 H-ELA: G=B, S=1.20, Tb=0.14, Tc=0.42, Td=1.92, "
            "ag=0.08g, Fo=2.5, Tc*=0.30, Damping=5.00");
  // Horizontal design: P = 0.24 / 1.5 = 0.16, start P q / Fo, and the
  // floor 0.2 ag at long periods.
  MessageLog log;
  v["type"] = "2";
  ASSERT_TRUE(NotifyChanged(code, v, "type", log));
  sa = Generate(v, &label);
  EXPECT_NEAR(sa[0], 0.096, 1e-15);
  EXPECT_NEAR(sa.back(), 0.016, 1e-15);
  EXPECT_EQ(label,
            "NTC2018 H-DGN: G=B,S=1.20,Tb=0.14,Tc=0.42,Td=1.92,ag=0.08g,Fo=2.5,"
            "Tc*=0.30,q=1.50");
  // Vertical: the fixed S, Tb, Tc, Td; F = 1.35 Fo sqrt(ag), yet Fo in
  // the start branch; the design floor 0.2 ag S 1.35 sqrt(ag).
  const double f = 1.35 * 2.5 * std::sqrt(0.08);
  v["type"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "type", log));
  EXPECT_EQ(v.at("tc"), "0.15");
  sa = Generate(v, &label);
  EXPECT_NEAR(sa[0], 0.08 * f / 2.5, 1e-15);
  EXPECT_EQ(label,
            "NTC2018 V-ELA: G=B,S=1.00,Tb=0.05,Tc=0.15,Td=1.00,ag=0.08g,Fo=2.5,"
            "Tc*=0.30,Damping=5.00");
  v["type"] = "3";
  sa = Generate(v, &label);
  EXPECT_NEAR(sa.back(), 0.2 * 0.08 * 1.35 * std::sqrt(0.08), 1e-15);
  EXPECT_EQ(label.substr(0, 15), "NTC2018 V-DGN: ");
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
