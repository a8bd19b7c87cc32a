// The rules behind the record and response-spectrum dialogs: range checks
// and their messages, the chosen record's texts, the spectrum choices.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/records/range_check.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"
#include "core/records/spectrum_choices.h"

namespace zel {
namespace {

using ::testing::ElementsAre;

TEST(RecordDialogRulesTest, RangesAndTheirMessages) {
  const ValueRange damping{0.0, 1.0};
  EXPECT_TRUE(InRange(0.0, damping) && InRange(1.0, damping));
  EXPECT_FALSE(InRange(-1e-12, damping) || InRange(1.0000001, damping));
  EXPECT_FALSE(InRange(std::nan(""), damping));
  EXPECT_FALSE(InRange(INFINITY, kRecordAmplitudeRange));

  // The dialogs' own messages are checked through them; bounds keep their
  // digits.
  EXPECT_EQ(RangeMessage({-0.5, 2.25}),
            "Please enter a number between -0.5 and 2.25.");
}

TEST(RecordDialogRulesTest, ChosenRecordTexts) {
  // The dialogs show the catalog's captions; none outside the catalog.
  EXPECT_EQ(CatalogCaptionText(-1), "");
  EXPECT_EQ(CatalogCaptionText(kCatalogSize), "");

  EXPECT_EQ(ImportedRecordName("/home/eng/quakes/kobe_ns.dbs"),
            "User EQ : kobe_ns.dbs");
  EXPECT_EQ(ImportedRecordName("C:\\quakes\\kobe.dbs"), "User EQ : kobe.dbs");
  EXPECT_EQ(ImportedRecordName("bare.dbs"), "User EQ : bare.dbs");
  // The catalog's own files first, every file last.
  const std::string filter = kRecordFileFilter;
  EXPECT_EQ(filter.rfind("ZEL dbase file *.dbs|*.dbs|", 0), 0u);
  EXPECT_TRUE(filter.ends_with("|All files (*)|*||"));
}

TEST(RecordDialogRulesTest, SpectrumChoices) {
  const auto names = SpectrumTypeNames();
  EXPECT_THAT(
      std::vector<std::string>(names.begin(), names.end()),
      ElementsAre("Pseudo Acceleration", "Pseudo Velocity",
                  "Absolute Acceleration", "Relative Velocity",
                  "Relative Displacement", "Combined D-V-A (Tripartite)"));
  // The command line's words name the same kinds.
  const char* words[] = {"psa", "psv", "sa", "sv", "sd", "dva"};
  for (int kind = 0; kind < 6; ++kind) {
    EXPECT_EQ(SpectrumKindOfWord(words[kind]), kind);
  }
  EXPECT_EQ(SpectrumKindOfWord("PSA"), -1);
  EXPECT_EQ(SpectrumKindOfWord(""), -1);

  // The dialog shows the starting values; these are their exact bits.
  const SpectrumSettings d = DefaultSpectrumChoices();
  EXPECT_EQ(d.period_from, 0.009999999776482582);
  EXPECT_EQ(d.damping_count, 1);
  EXPECT_THAT(d.damping, ElementsAre(0.0, 0.009999999776482582,
                                     0.019999999552965164, 0.05000000074505806,
                                     0.10000000149011612, 0.20000000298023224));

  // Checked in this order; the second damping edit before the first.
  std::vector<SpectrumField> order;
  for (const FieldCheck& c : SpectrumFieldChecks()) {
    order.push_back(c.field);
    EXPECT_EQ(SpectrumFieldRange(c.field).max, c.range.max);
  }
  using F = SpectrumField;
  EXPECT_THAT(
      order, ElementsAre(F::kAmplitudeScale, F::kPeriodFrom, F::kPeriodCount,
                         F::kPeriodTo, F::kDamping2, F::kDamping1, F::kDamping3,
                         F::kDamping4, F::kDamping5, F::kDamping6));
}

}  // namespace
}  // namespace zel
