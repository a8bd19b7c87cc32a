#include "core/codes/us_codes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "core/codes/design_document.h"

namespace zel {
namespace {

TEST(Atc306Test, StiffSoilInHighAccelerationHasTheLowerPlateau) {
  Atc306Params p{.soil = 2, .aa = 0.3, .av = 0.2, .grid = {}};  // S3
  // Cap 2.0 Aa / R = 0.6; corner Tc = (1.2 Av S / (2 Aa))^1.5 = 0.6^1.5.
  auto points = Atc306Spectrum(p);
  ASSERT_EQ(points.size(), 102u);
  EXPECT_EQ(points[0].period, 9.999999974752427e-7);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.6);
  EXPECT_DOUBLE_EQ(points[7].period, 0.42);
  EXPECT_NEAR(points[8].period, 0.464758, 1e-6);
  EXPECT_DOUBLE_EQ(points[8].sa, 0.6);
  EXPECT_DOUBLE_EQ(points[9].period, 0.48);
  // T = 0.6 lies past the corner: 1.2 Av S / T^(2/3) = 0.36 / 0.711379.
  EXPECT_NEAR(points[11].sa, 0.50606, 1e-5);
  // T = 3.96 still on the T^(-2/3) branch, T = 4.02 on the T^(-4/3) one.
  EXPECT_NEAR(points[67].sa, 0.36 / std::pow(3.96, 2.0 / 3.0), 1e-12);
  EXPECT_NEAR(points[68].sa, 0.9 / std::pow(4.02, 4.0 / 3.0), 1e-12);
  EXPECT_NEAR(points.back().sa, 0.082548, 1e-6);

  // Just below Aa = 0.3 the 2.5 plateau applies, 2.5 * 0.29 = 0.725, and the
  // corner value follows the descending branch (equal to the cap).
  p.aa = 0.29;
  points = Atc306Spectrum(p);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.725);
  EXPECT_NEAR(points[6].period, 0.349902, 1e-6);
  EXPECT_NEAR(points[6].sa, 0.725, 1e-12);

  // S1 has the 2.5 plateau whatever Aa; R divides everything.
  p.soil = 0;
  p.aa = 0.4;
  p.r = 2.0;
  EXPECT_DOUBLE_EQ(Atc306Spectrum(p)[0].sa, 0.5);
  EXPECT_EQ(Atc306Label(p), "Soil = 1.0  Aa = 0.40  Av = 0.20  RMF = 2.00");
}

TEST(Ubc88Test, ShapeIsChosenByTheSinglePrecisionSoilFactor) {
  EXPECT_EQ(kSoilFactors[1], 1.2000000476837158);
  Ubc88Params p{
      .soil = 1, .z = 0.4, .grid = {}};  // S2: T1 0.15, T2 0.585, 1.463 / T
  auto points = Ubc88Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_EQ(points[0].period, 9.999999974752427e-7);
  EXPECT_DOUBLE_EQ(points[0].sa, (1.0 + 10.0 * 9.999999974752427e-7) * 0.4);
  EXPECT_DOUBLE_EQ(points[2].sa, (1.0 + 10.0 * 0.12) * 0.4);
  EXPECT_EQ(points[3].period, 0.15);
  EXPECT_DOUBLE_EQ(points[3].sa, 1.0);
  EXPECT_EQ(points[11].period, 0.585);
  EXPECT_DOUBLE_EQ(points[11].sa, 1.0);
  // T = 0.6 starts the descending branch slightly above the plateau.
  EXPECT_NEAR(points[12].sa, 1.463 / 0.6 * 0.4, 1e-12);
  EXPECT_GT(points[12].sa, 0.975);
  EXPECT_NEAR(points.back().sa, 1.463 / 6.0 * 0.4, 1e-12);
  EXPECT_EQ(Ubc88Label(p), "Soil = 1.2  Z = 0.400");

  p.soil = 2;  // S3: 1 + 7.5 T up to 0.2, 2.288 / T beyond 0.915
  p.importance = 1.25;
  p.rw = 5.0;
  points = Ubc88Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_DOUBLE_EQ(points[3].sa, (1.0 + 7.5 * 0.18) * 0.4 * 1.25 / 5.0);
  EXPECT_EQ(points[4].period, 0.2);
  EXPECT_DOUBLE_EQ(points[4].sa, 2.5 * 0.4 * 1.25 / 5.0);
  EXPECT_NEAR(points.back().sa, 2.288 / 6.0 * 0.1, 1e-12);
}

TEST(Ubc97Test, WorkedExampleCa04Cv056) {
  Ubc97Params p{.ca = 0.4, .cv = 0.56, .grid = {}};
  // Ts = 0.56, T0 = 0.112, plateau 2.5 Ca = 1.0.
  auto points = Ubc97Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_EQ(points[0].period, 0.0);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.4);
  EXPECT_NEAR(points[1].sa, 0.4 + 1.5 * 0.4 / 0.112 * 0.06, 1e-12);
  EXPECT_NEAR(points[2].period, 0.112, 1e-12);
  EXPECT_DOUBLE_EQ(points[2].sa, 1.0);
  EXPECT_DOUBLE_EQ(points[3].sa, 1.0);
  EXPECT_NEAR(points[11].period, 0.56, 1e-12);
  EXPECT_DOUBLE_EQ(points[11].sa, 1.0);
  EXPECT_NEAR(points[12].sa, 0.56 / 0.6, 1e-12);
  EXPECT_NEAR(points.back().sa, 0.56 / 6.0, 1e-12);
  p.grid = {0.0, 1.0, 1};
  EXPECT_DOUBLE_EQ(Ubc97Spectrum(p).back().sa, 0.56);
  // I / R scales every value written, corner points included.
  p.grid = {};
  p.importance = 1.5;
  p.r = 3.0;
  points = Ubc97Spectrum(p);
  EXPECT_DOUBLE_EQ(points[2].sa, 0.5);
  EXPECT_NEAR(points.back().sa, 0.56 / 6.0 * 0.5, 1e-12);
  EXPECT_EQ(Ubc97Label(p), "Ca=0.4  Cv=0.56");
}

TEST(Ubc97Test, ChecksInOrderLeaveTheDocumentEmpty) {
  const auto first_message = [](Ubc97Params p) {
    CZELwDoc doc;
    MessageLog log;
    EXPECT_FALSE(GenerateUbc97(doc, p, log));
    EXPECT_EQ(doc.StoredPoints(0), 0u);
    EXPECT_EQ(doc.title, "");
    EXPECT_EQ(log.texts().size(), 1u);
    return log.texts().empty() ? std::string() : log.texts()[0];
  };
  Ubc97Params p{.ca = 0.0, .cv = 0.0, .grid = {0.0, 6.0, 0}};
  EXPECT_EQ(first_message(p), kStepMessage);
  p.grid.steps = 100;
  p.distance = -1.0;  // automatic, zone 4: the coefficients are not valid
  EXPECT_EQ(first_message(p), "Error! Distance must not be negative value.");
  p.option = Ubc97Params::kUserDefined;
  EXPECT_EQ(first_message(p), "The value Ca must be greater than zero");
  p.ca = 0.4;
  EXPECT_EQ(first_message(p), "The value Cv must be greater than zero");
  p.cv = std::nan("");
  EXPECT_EQ(first_message(p), "The value Cv must be greater than zero");
  p.cv = 0.56;
  p.r = std::numeric_limits<double>::infinity();
  EXPECT_EQ(first_message(p), "The value R must be a finite number");
  p.r = 0.0;  // accepted: an infinite curve is stored as it is
  CZELwDoc doc;
  MessageLog log;
  EXPECT_TRUE(GenerateUbc97(doc, p, log));
  EXPECT_TRUE(log.texts().empty());
  EXPECT_TRUE(std::isinf(doc.store().Value(0, 1)));
}

}  // namespace
}  // namespace zel
