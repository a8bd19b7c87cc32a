#include "core/codes/design_document.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

namespace zel {
namespace {

TEST(DesignDocumentTest, ClassicHandOverSavesOnePointShortOfTheChart) {
  const std::vector<SpectrumPoint> points = {
      {0.0, 0.4}, {0.5, 1.0}, {1.0, 0.5}};
  CZELwDoc doc;
  int updates = 0;
  doc.on_update = [&] { ++updates; };
  StoreDesignSpectrum(doc, "UBC(1997) Design Spectrum", "Ca=0.4  Cv=0.56",
                      points);
  EXPECT_EQ(doc.spectrum_kind, kAbsoluteAcceleration);
  EXPECT_EQ(doc.window_title, "UBC(1997) Design Spectrum");
  EXPECT_EQ(doc.subtitle, "Ca=0.4  Cv=0.56");
  EXPECT_EQ(doc.chart.title_lines.size(), 2u);
  EXPECT_EQ(doc.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(doc.AxisTitle(1), "Absolute Acceleration (g)");
  EXPECT_EQ(doc.thick_lines, 1);  // the style command toggles it
  EXPECT_EQ(updates, 1);
  // Three points on the chart, stored without the last mark: two counted.
  EXPECT_EQ(doc.StoredPoints(0), 3u);
  EXPECT_EQ(doc.point_count[0], 2);
}

TEST(DesignDocumentTest, ClassicHandOverWithTheCodesOwnYAxisTitle) {
  const std::vector<SpectrumPoint> points = {{0.0, 0.275}, {1.0, 0.1}};
  CZELwDoc doc;
  StoreDesignSpectrum(doc, "Korea(Bridge) Design Spectrum", "label", points,
                      "Csm/R");
  EXPECT_EQ(doc.spectrum_kind, kAbsoluteAcceleration);
  EXPECT_EQ(doc.AxisTitle(1), "Csm/R");
  EXPECT_EQ(doc.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(doc.point_count[0], 1);
}

TEST(DesignDocumentTest, ArrayHandOverCountsEveryPointAndTitlesSa) {
  CZELwDoc doc;
  HandOverSpectrum(doc, std::vector<double>{0.0, 0.1, 0.2},
                   std::vector<double>{1.0, 2.0, 3.0, 4.0}, "KBC2005", "label");
  EXPECT_EQ(doc.spectrum_kind, kAbsoluteAcceleration);
  EXPECT_EQ(doc.window_title, "KBC2005");
  EXPECT_EQ(doc.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(doc.AxisTitle(1), "Sa (g)");
  // The shorter array decides; every pair carries the last mark.
  EXPECT_EQ(doc.StoredPoints(0), 3u);
  EXPECT_EQ(doc.point_count[0], 3);
}

TEST(DesignDocumentTest, NonFiniteParametersAreNamed) {
  MessageLog log;
  EXPECT_TRUE(CheckFiniteParameters({{"Ca", 0.4}, {"R", 0.0}}, log));
  EXPECT_FALSE(CheckFiniteParameters(
      {{"Ca", 0.4}, {"R", INFINITY}, {"I", std::nan("")}}, log));
  EXPECT_EQ(log.texts(),
            std::vector<std::string>{"The value R must be a finite number"});
  // Printed in a title with "%f", 1e16 would outgrow the reader's tokens.
  EXPECT_TRUE(CheckPrintableParameters({{"Tg", -1e15}}, log));
  EXPECT_FALSE(CheckPrintableParameters({{"Ie", 1.2}, {"Tg", 1e16}}, log));
  const SpectrumPoint points[] = {{0.0, INFINITY}, {0.1, std::nan("")}};
  EXPECT_TRUE(CheckDefinedSpectrum(std::span(points, 1), log));
  EXPECT_FALSE(CheckDefinedSpectrum(points, log));
  EXPECT_EQ(log.texts().back(), kUndefinedSpectrumMessage);
  EXPECT_EQ(log.texts()[1], "The value Tg is too large");
  EXPECT_TRUE(CheckChoice(2, 3, "Soil Class (S)", log));
  EXPECT_FALSE(CheckChoice(3, 3, "Soil Class (S)", log));
  EXPECT_EQ(log.texts().back(),
            "The selection in 'Soil Class (S)' is not valid");
}

}  // namespace
}  // namespace zel
