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

  // Only curves 0 to 5 exist, and the store has its bounds.
  EXPECT_FALSE(doc.SetPoint(0, 6, 1.0, 1.0, 1));
  EXPECT_FALSE(doc.SetPoint(0, -1, 1.0, 1.0, 1));
  EXPECT_FALSE(doc.SetPoint(-1, 0, 1.0, 1.0, 1));
  EXPECT_FALSE(doc.store().SetValue(DataStore::kMaxItems, 0, 1.0));
  EXPECT_FALSE(doc.store().SetValue(0, kGroupCount, 1.0));
}

// The titles of the spectrum kinds are checked with the spectra and through
// the Unit command; a file with a length unit keeps its own words before
// the unit.
TEST(CurveDocumentTest, YAxisTitleOfAFileWithALengthUnit) {
  CZELwDoc doc;
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

// The values and titles of a conversion are checked through the Unit
// command; gravity follows the unit.
TEST(CurveDocumentTest, GravityFollowsTheUnit) {
  CZELwDoc doc;
  doc.length_unit = 1;
  doc.ConvertUnit(4);
  EXPECT_EQ(doc.unit, "FT");
  EXPECT_EQ(doc.gravity, 32.2);
  doc.ConvertUnit(2);
  EXPECT_EQ(doc.gravity, 9.815);
}

}  // namespace
}  // namespace zel
