#include "core/codes/code_registry.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <stdexcept>
#include <vector>

#include "core/codes/field_table.h"

namespace zel {
namespace {

struct Sample {
  int kind = 1;
  double ratio = 0.05;
  std::vector<double> damping = {0.02, 0.05};
  int relieve = 0;
  PeriodGrid grid{0.0, 10.0, 100};
  double left_out = 3.0;
};

TEST(FieldTableTest, NamesEachParameterOnceAndFindsTheOnesLeftOut) {
  FieldTable<Sample> table;
  table.Choice("kind", "Kind", &Sample::kind, {"A", "B"})
      .Radio()
      .Number("ratio", "Ratio :", &Sample::ratio)
      .Format("%5f")
      .List("damping", "Damping Ratio", &Sample::damping, 3, "No more damping!")
      .Check("relieve", "Relieve", &Sample::relieve)
      .Grid(&Sample::grid)
      .Text("0.0");
  // The controls open with the record's defaults in each field's format.
  ParamValues v;
  for (const ParamDescriptor& param : table.Descriptors()) {
    v[param.name] = param.default_text;
  }
  EXPECT_EQ(v, (ParamValues{{"kind", "1"},
                            {"ratio", "0.050000"},
                            {"damping", "0.02,0.05"},
                            {"relieve", "0"},
                            {"from", "0"},
                            {"to", "10"},
                            {"steps", "0.0"}}));
  // The generator's record comes from the texts as atof reads them.
  v["ratio"] = "0.07abc";
  v["damping"] = "0.1,x";
  v["steps"] = "12.9";
  const Sample read = table.Read(v);
  EXPECT_EQ(read.ratio, 0.07);
  EXPECT_EQ(read.damping, (std::vector<double>{0.1, 0.0}));
  EXPECT_EQ(read.grid.steps, 12);
  EXPECT_EQ(read.grid.to, 10.0);
  // A member no field fills is found, and no reaction can name it.
  EXPECT_EQ(table.UnboundMembers(), std::vector<std::size_t>{5});
  EXPECT_THROW(table.FieldOf(&Sample::left_out), std::logic_error);
  v.erase("relieve");
  EXPECT_THROW(table.Read(v), std::logic_error);
  table.Number("left_out", "Left out", &Sample::left_out);
  EXPECT_TRUE(table.UnboundMembers().empty());
}

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(c));
  return text;
}

// What every code promises, so that a code added later is checked too.
TEST(CodeRegistryTest, EveryCodeIsCompleteAndGeneratesFromEveryChoice) {
  std::set<std::string> ids;
  for (const CodeEntry& code : DesignCodes()) {
    SCOPED_TRACE(code.id);
    EXPECT_TRUE(ids.insert(code.id).second);
    EXPECT_EQ(FindDesignCode(Upper(code.id)), &code);
    // The field table fills every member of the generator's record.
    EXPECT_THAT(code.unbound_members(), ::testing::IsEmpty());
    const ParamValues defaults = DefaultValues(code);
    MessageLog log;
    CZELwDoc doc;
    ASSERT_TRUE(PrecheckCode(code, defaults, log));
    ASSERT_TRUE(code.generate(defaults, doc, log));
    EXPECT_EQ(doc.title, code.title);
    EXPECT_GT(doc.StoredPoints(0), 1u);
    EXPECT_TRUE(log.texts().empty());
    for (const ParamDescriptor& param : code.params) {
      SCOPED_TRACE(param.name);
      ParamValues v = defaults;
      // Every reaction knows every field; a reaction naming a member
      // without a field would throw here.
      EXPECT_NO_THROW(GetFieldState(code, v, param.name));
      EXPECT_NO_THROW(NotifyChanged(code, v, param.name, log));
      if (param.kind != ParamKind::kChoice) continue;
      EXPECT_EQ(param.items.size(), param.keys.size());
      EXPECT_LT(IntegerText(v.at(param.name)),
                static_cast<int>(param.items.size()));
      // Each choice gives a curve or one of the code's messages.
      for (std::size_t i = 0; i < param.items.size(); ++i) {
        v[param.name] = std::to_string(i);
        NotifyChanged(code, v, param.name, log);
        CZELwDoc each;
        if (PrecheckCode(code, v, log)) code.generate(v, each, log);
      }
    }
  }
  EXPECT_EQ(FindDesignCode("eurocode"), nullptr);
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

}  // namespace
}  // namespace zel
