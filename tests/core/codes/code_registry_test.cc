#include "core/codes/code_registry.h"

#include <gtest/gtest.h>

#include <set>

#include "core/codes/ibc2000.h"
#include "core/codes/kds2019.h"
#include "core/codes/ubc97_coefficients.h"
#include "core/codes/us_codes.h"

namespace zel {
namespace {

std::vector<double> Values(const CZELwDoc& doc, int group) {
  std::vector<double> values;
  for (const DataItem& item : doc.store().Items(group)) {
    values.push_back(item.value);
  }
  return values;
}

void ExpectSameDocument(const CZELwDoc& a, const CZELwDoc& b) {
  EXPECT_EQ(a.title, b.title);
  EXPECT_EQ(a.subtitle, b.subtitle);
  EXPECT_EQ(a.AxisTitle(1), b.AxisTitle(1));
  EXPECT_EQ(a.point_count[0], b.point_count[0]);
  EXPECT_EQ(Values(a, 0), Values(b, 0));
  EXPECT_EQ(Values(a, 1), Values(b, 1));
}

TEST(CodeRegistryTest, DialogDefaultsAreTheParameterRecordsDefaults) {
  std::set<std::string> ids;
  for (const CodeEntry& code : DesignCodes()) {
    SCOPED_TRACE(code.id);
    EXPECT_TRUE(ids.insert(code.id).second);
    EXPECT_EQ(FindDesignCode(code.id), &code);
    for (const ParamDescriptor& param : code.params) {
      if (param.kind != ParamKind::kChoice) continue;
      const int index = IntegerValue(DefaultValues(code), param.name);
      EXPECT_GE(index, 0);
      EXPECT_LT(index, static_cast<int>(param.items.size()));
      EXPECT_EQ(param.items.size(), param.keys.size());
    }
    const ParamValues defaults = DefaultValues(code);
    MessageLog log;
    EXPECT_TRUE(PrecheckCode(code, defaults, log));
    CZELwDoc from_registry;
    ASSERT_TRUE(code.generate(defaults, from_registry, log));
    EXPECT_EQ(from_registry.title, code.title);
    EXPECT_TRUE(log.texts().empty());

    CZELwDoc direct;
    if (code.id == "atc3-06") GenerateAtc306(direct, {}, log);
    if (code.id == "ubc88-94") GenerateUbc88(direct, {}, log);
    if (code.id == "ubc97") GenerateUbc97(direct, {}, log);
    if (code.id == "ibc2000") GenerateIbc2000(direct, {}, log);
    if (code.id == "kds2019") GenerateKds2019(direct, {}, log);
    ExpectSameDocument(from_registry, direct);
  }
  EXPECT_EQ(ids.size(), 5u);
  EXPECT_EQ(FindDesignCode("UBC97"), FindDesignCode("ubc97"));
  EXPECT_EQ(FindDesignCode("eurocode"), nullptr);
  const ParamValues ibc = DefaultValues(*FindDesignCode("ibc2000"));
  EXPECT_EQ(ibc.at("ss"), "0.25");
  EXPECT_EQ(ibc.at("importance"), "1.0");
  EXPECT_EQ(ibc.at("steps"), "100");
}

TEST(CodeRegistryTest, Ubc97AutomaticOptionDrivesTheCoefficientFields) {
  const CodeEntry& code = *FindDesignCode("ubc97");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("ca"), "0.44");
  EXPECT_EQ(v.at("cv"), "0.64");
  EXPECT_EQ(v.at("distance"), "10.0");
  EXPECT_FALSE(IsFieldEnabled(code, v, "ca"));
  EXPECT_TRUE(IsFieldEnabled(code, v, "zone"));
  EXPECT_TRUE(IsFieldEnabled(code, v, "distance"));

  MessageLog log;
  v["source"] = "0";
  v["distance"] = "2";
  ASSERT_TRUE(NotifyChanged(code, v, "distance", log));
  EXPECT_EQ(v.at("ca"), "0.66");
  EXPECT_EQ(v.at("cv"), "1.28");
  v["distance"] = "-3";
  EXPECT_FALSE(NotifyChanged(code, v, "distance", log));
  EXPECT_EQ(v.at("ca"), "0.66");
  EXPECT_EQ(v.at("cv"), "1.28");
  EXPECT_EQ(log.texts(), std::vector<std::string>{
                             "Error! Distance must not be negative value."});

  v["zone"] = "3";  // zone 3 never reads the distance
  ASSERT_TRUE(NotifyChanged(code, v, "zone", log));
  EXPECT_EQ(v.at("ca"), "0.36");
  EXPECT_EQ(v.at("cv"), "0.54");
  EXPECT_FALSE(IsFieldEnabled(code, v, "source"));

  v["option"] = "1";  // User Defined: the fields keep what was computed
  ASSERT_TRUE(NotifyChanged(code, v, "option", log));
  EXPECT_TRUE(IsFieldEnabled(code, v, "ca"));
  EXPECT_FALSE(IsFieldEnabled(code, v, "zone"));
  v["ca"] = "abc";  // not a number: read as 0, refused on OK
  CZELwDoc doc;
  EXPECT_FALSE(code.generate(v, doc, log));
  EXPECT_EQ(log.texts().back(), "The value Ca must be greater than zero");
  EXPECT_EQ(doc.StoredPoints(0), 0u);
}

TEST(CodeRegistryTest, Kds2019NotificationsAndValuesAsDisplayed) {
  const CodeEntry& code = *FindDesignCode("kds2019");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("epa"), "0.22");
  EXPECT_EQ(v.at("sds"), "0.506");
  EXPECT_EQ(v.at("sd1"), "0.2024");
  MessageLog log;
  // Zone 2 writes EPA 0.14: on S2 Fa = 1.4, Fv = 1.5 - 0.1 * 0.4 = 1.46,
  // Sds = 2/3 0.14 2.5 1.4 = 0.326667, Sd1 = 2/3 0.14 1.46 = 0.136267.
  v["zone"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "zone", log));
  EXPECT_EQ(v.at("epa"), "0.14");
  EXPECT_EQ(v.at("fa"), "1.4");
  EXPECT_EQ(v.at("fv"), "1.46");
  EXPECT_EQ(v.at("sds"), "0.326667");
  EXPECT_EQ(v.at("sd1"), "0.136267");
  // The curve is drawn from the six digits shown, not from 0.32666...
  CZELwDoc doc;
  ASSERT_TRUE(code.generate(v, doc, log));
  EXPECT_EQ(doc.store().Value(3, 1), 0.326667 * 1.2 / 4.0);
  EXPECT_EQ(doc.subtitle,
            "KDS(41-17-00:2019): Zone=2,S=0.14,Site=S2,Fa=1.40,Fv=1.46,"
            "Sds=0.33,Sd1=0.14,Ie=1.2,R=4.0");

  v["epa"] = "0.3";
  ASSERT_TRUE(NotifyChanged(code, v, "epa", log));
  EXPECT_EQ(v.at("fa"), "1.3");
  // S6 clears the coefficients for hand entry; zone and EPA then leave
  // everything alone.
  v["site"] = "5";
  ASSERT_TRUE(NotifyChanged(code, v, "site", log));
  EXPECT_EQ(v.at("fa"), "0");
  EXPECT_EQ(v.at("fv"), "0");
  EXPECT_EQ(v.at("sds"), "0");
  v["zone"] = "0";
  ASSERT_TRUE(NotifyChanged(code, v, "zone", log));
  v["epa"] = "0.2";
  ASSERT_TRUE(NotifyChanged(code, v, "epa", log));
  EXPECT_EQ(v.at("epa"), "0.2");
  EXPECT_EQ(v.at("sd1"), "0");
  EXPECT_TRUE(log.texts().empty());
}

TEST(CodeRegistryTest, Ibc2000SiteClassNoteBeforeAnyDocument) {
  const CodeEntry& code = *FindDesignCode("ibc2000");
  ParamValues v = DefaultValues(code);
  v["site"] = "4";
  v["s1"] = "0.5";
  MessageLog log;
  EXPECT_FALSE(PrecheckCode(code, v, log));
  EXPECT_EQ(log.texts().size(), 1u);
  v["s1"] = "0.4";
  EXPECT_TRUE(PrecheckCode(code, v, log));
}

}  // namespace
}  // namespace zel
