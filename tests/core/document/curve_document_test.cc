#include "core/document/curve_document.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(CurveDocumentTest, PointCountRuleLeavesGeneratedCurvesOnePointShort) {
  CZELwDoc doc;
  for (int i = 0; i <= 100; ++i) doc.SetPoint(i, 2, 0.01 * i, 1.0 + i, 0);
  EXPECT_EQ(doc.point_count[2], 100);  // 101 points stored, 100 counted
  EXPECT_EQ(doc.StoredPoints(2), 101u);
  EXPECT_EQ(doc.store().Value(100, 4), 1.0);
  EXPECT_EQ(doc.store().Value(100, 5), 101.0);
  EXPECT_EQ(doc.store().Items(4)[7].style, kItemStyle);

  doc.SetPoint(3, 0, 1.0, 2.0, 1);
  EXPECT_EQ(doc.point_count[0], 4);

  // Only curves 0 to 5 exist.
  EXPECT_FALSE(doc.SetPoint(0, 6, 1.0, 1.0, 1));
  EXPECT_FALSE(doc.SetPoint(0, -1, 1.0, 1.0, 1));
  EXPECT_FALSE(doc.SetPoint(-1, 0, 1.0, 1.0, 1));
}

TEST(CurveDocumentTest, YAxisTitleFollowsKindAndUnit) {
  CZELwDoc doc;
  struct Case {
    int kind;
    int length_unit;
    int unit_index;
    const char* expected;
  };
  const Case cases[] = {
      {kPseudoAcceleration, 0, 0, "Pseudo Acceleration (g)"},
      {kPseudoVelocity, 1, 0, "Pseudo Velocity (mm/sec)"},
      {kCombinedDVA, 1, 3, "Pseudo Velocity (in/sec)"},
      {kAbsoluteAcceleration, 0, 4, "Absolute Acceleration (g)"},
      {kRelativeVelocity, 1, 2, "Relative Velocity (m/sec)"},
      {kRelativeDisplacement, 1, 1, "Relative Displacement (cm)"},
      {kRelativeDisplacement, 1, 4, "Relative Displacement (ft)"},
      {7, 1, 0, ""},
      {kKindNotSet, 0, 0, ""},
  };
  for (const Case& c : cases) {
    doc.spectrum_kind = c.kind;
    doc.length_unit = c.length_unit;
    doc.unit_index = c.unit_index;
    EXPECT_EQ(doc.BuildYAxisTitle(), c.expected) << "kind " << c.kind;
  }

  // A file with a length unit keeps its own words before the unit.
  doc.spectrum_kind = kLengthUnitFile;
  doc.length_unit = 1;
  doc.unit_index = 1;
  doc.SetAxisTitle(1, "Spectral Displacement (mm) of (x)");
  EXPECT_EQ(doc.BuildYAxisTitle(), "Spectral Displacement (cm)");
  doc.SetAxisTitle(1, "No unit here");
  EXPECT_EQ(doc.BuildYAxisTitle(), " (cm)");
  doc.SetAxisTitle(1, "(mm)");
  EXPECT_EQ(doc.BuildYAxisTitle(), " (cm)");
}

TEST(CurveDocumentTest, LineThicknessTogglesWidthAndSetsColours) {
  CZELwDoc doc;
  doc.ApplySeriesStyles();
  EXPECT_EQ(doc.thick_lines, 1);
  EXPECT_EQ(doc.chart.series[0].width, 2);
  EXPECT_EQ(doc.chart.series[1].colour, (Rgb{0, 128, 0}));
  EXPECT_EQ(doc.chart.series[5].colour, (Rgb{255, 0, 255}));
  doc.ApplySeriesStyles();
  EXPECT_EQ(doc.thick_lines, 0);
  EXPECT_EQ(doc.chart.series[3].width, 1);
}

TEST(CurveDocumentTest, UnitConversionScalesYValuesOfCountedCurvesOnly) {
  CZELwDoc doc;
  doc.spectrum_kind = kRelativeDisplacement;
  doc.length_unit = 1;
  doc.unit_index = 2;  // m
  doc.unit = "M";
  doc.curve_count = 2;
  doc.SetPoint(0, 0, 0.5, 1.0, 1);
  doc.SetPoint(0, 1, 0.5, 2.0, 1);
  doc.SetPoint(0, 2, 0.5, 3.0, 1);  // beyond the curve count

  doc.ConvertUnit(4);
  EXPECT_EQ(doc.unit, "FT");
  EXPECT_EQ(doc.unit_index, 4);
  EXPECT_EQ(doc.gravity, 32.2);
  EXPECT_EQ(doc.store().Value(0, 1), 3.2809998989105225);
  EXPECT_EQ(doc.store().Value(0, 3), 2.0 * 3.2809998989105225);
  EXPECT_EQ(doc.store().Value(0, 5), 3.0);
  EXPECT_EQ(doc.store().Value(0, 0), 0.5);  // x values stay
  EXPECT_EQ(doc.AxisTitle(1), "Relative Displacement (ft)");

  doc.ConvertUnit(2);  // back to m: not exactly where it started
  EXPECT_EQ(doc.store().Value(0, 1), 3.2809998989105225 * 0.3048);
  EXPECT_NE(doc.store().Value(0, 1), 1.0);
  EXPECT_EQ(doc.gravity, 9.815);

  doc.ConvertUnit(2);  // to the current unit: unchanged
  EXPECT_EQ(doc.store().Value(0, 1), 3.2809998989105225 * 0.3048);
}

TEST(CurveDocumentTest, LogTogglesSetTheLogRangeAndLabelsDropCarriageReturns) {
  CZELwDoc doc;
  doc.chart.log_min_x = 5;
  doc.ToggleLogX();
  EXPECT_TRUE(doc.chart.log_range);
  EXPECT_EQ(doc.chart.log_min_x, 0.01);
  EXPECT_EQ(doc.chart.log_min_y, 0.01);
  doc.ToggleLogY();
  doc.ToggleLogX();
  EXPECT_TRUE(doc.chart.log_range);
  doc.ToggleLogY();
  EXPECT_FALSE(doc.chart.log_range);

  doc.AddLabel({"Peak", "line 1\r\nline 2\r", 12.5, 40.0, ChartLabel::kBoxed});
  ASSERT_EQ(doc.chart.labels.size(), 1u);
  EXPECT_EQ(doc.chart.labels[0].content, "line 1\nline 2");
  EXPECT_EQ(doc.chart.labels[0].x_percent, 12.5);
}

}  // namespace
}  // namespace zel
