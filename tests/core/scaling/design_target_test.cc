#include "core/scaling/design_target.h"

#include <gtest/gtest.h>

#include <string>

#include "core/document/data_file.h"
#include "core/document/test_files.h"

namespace zel {
namespace {

// Response spectra of pseudo acceleration, two damping ratios, in g.
CZELwDoc ResponseSpectra() {
  CZELwDoc doc;
  doc.title = "Earthquake Response Spectrum";
  doc.subtitle = "record";
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.SetAxisTitle(1, "Pseudo Acceleration (g)");
  doc.spectrum_kind = kPseudoAcceleration;
  doc.damping_flag = 1;
  doc.curve_count = 2;
  doc.damping[0] = 0.02;
  doc.damping[1] = 0.05;
  for (int c = 0; c < 2; ++c) {
    for (int i = 0; i < 3; ++i) doc.SetPoint(i, c, 0.5 * (i + 1), 0.1 * c, 0);
  }
  return doc;
}

TEST(DesignOverlayTest, AddsTheCodeWithItsTitleAndReadsBack) {
  const CodeEntry& code = *FindDesignCode("ubc97");
  MessageLog log;
  CZELwDoc design;
  ASSERT_TRUE(GenerateDesignDocument(code, DefaultValues(code), design, log));
  CZELwDoc doc = ResponseSpectra();
  ASSERT_TRUE(AddDesignSpectrum(doc, design, log));
  EXPECT_EQ(doc.curve_count, 3);
  EXPECT_EQ(doc.chart.legend.entries,
            (std::vector<std::string>{" 0.02", " 0.05", design.title}));
  // Saved as the code's own document saves it: one point short.
  EXPECT_EQ(doc.point_count[2], design.point_count[0]);
  EXPECT_EQ(doc.StoredPoints(2), design.StoredPoints(0));

  testing::TempDir dir;
  ASSERT_TRUE(WriteDataFile(doc, (dir / "overlay.zel").string(), log));
  const std::string bytes = testing::ReadAll(dir / "overlay.zel");
  EXPECT_NE(bytes.find("*DATA\n**LEGEND, " + design.title +
                       "\n*DAMPING, 0.05\n0.00000E+00"),
            std::string::npos);
  CZELwDoc back;
  ASSERT_EQ(ReadDataFile(back, (dir / "overlay.zel").string(), log), 1);
  EXPECT_EQ(back.curve_count, 3);
  EXPECT_EQ(back.chart.legend.entries, doc.chart.legend.entries);
  EXPECT_EQ(back.store().Size(4),
            static_cast<std::size_t>(design.point_count[0]));

  // Without an overlay nothing of the legend line is written or read.
  const CZELwDoc plain = ResponseSpectra();
  ASSERT_TRUE(WriteDataFile(plain, (dir / "plain.zel").string(), log));
  EXPECT_EQ(testing::ReadAll(dir / "plain.zel").find("**"), std::string::npos);
  CZELwDoc plain_back;
  ASSERT_EQ(ReadDataFile(plain_back, (dir / "plain.zel").string(), log), 1);
  EXPECT_EQ(plain_back.chart.legend.entries,
            (std::vector<std::string>{" 0.02", " 0.05"}));
  EXPECT_TRUE(log.texts().empty());
}

TEST(DesignOverlayTest, RefusesOtherKindsAndAFullChart) {
  const CodeEntry& code = *FindDesignCode("ubc97");
  MessageLog log;
  CZELwDoc design;
  ASSERT_TRUE(GenerateDesignDocument(code, DefaultValues(code), design, log));

  CZELwDoc velocities = ResponseSpectra();
  velocities.length_unit = 1;
  velocities.unit = "MM";
  velocities.type = "VELO";
  CZELwDoc record;  // a record document keeps no damping ratios
  CZELwDoc full = ResponseSpectra();
  full.curve_count = kMaxCurves;
  EXPECT_FALSE(AddDesignSpectrum(velocities, design, log));
  EXPECT_FALSE(AddDesignSpectrum(record, design, log));
  EXPECT_FALSE(AddDesignSpectrum(full, design, log));
  EXPECT_EQ(log.texts(),
            (std::vector<std::string>{kOverlayKindMessage, kOverlayKindMessage,
                                      kOverlayFullMessage}));
  EXPECT_EQ(full.curve_count, kMaxCurves);
}

}  // namespace
}  // namespace zel
