#include "core/codes/kds2019.h"

#include <gtest/gtest.h>

#include <cmath>

namespace zel {
namespace {

TEST(Kds2019Test, SiteCoefficientLookupsAndTheDefaults) {
  double fa = 0.0;
  double fv = 0.0;
  ASSERT_TRUE(Kds2019Fa(2, 0.05, fa) && Kds2019Fv(2, 0.05, fv));  // S3
  EXPECT_EQ(fa, 1.7);
  EXPECT_EQ(fv, 1.7);
  ASSERT_TRUE(Kds2019Fa(2, 0.35, fa) && Kds2019Fv(2, 0.35, fv));
  EXPECT_EQ(fa, 1.3);
  EXPECT_EQ(fv, 1.5);
  ASSERT_TRUE(Kds2019Fa(4, 0.14, fa) && Kds2019Fv(4, 0.14, fv));  // S5
  EXPECT_NEAR(fa, 1.6, 1e-12);
  EXPECT_NEAR(fv, 2.88, 1e-12);
  ASSERT_TRUE(Kds2019Fa(1, 0.22, fa) && Kds2019Fv(1, 0.22, fv));  // S2
  EXPECT_NEAR(fa, 1.38, 1e-12);
  EXPECT_NEAR(fv, 1.38, 1e-12);
  // A value a few bits above 0.1 still reads the 0.1 column.
  ASSERT_TRUE(Kds2019Fa(2, std::nextafter(0.1, 1.0), fa));
  EXPECT_EQ(fa, 1.7);
  EXPECT_FALSE(Kds2019Fa(5, 0.2, fa));
  EXPECT_FALSE(Kds2019Fv(-1, 0.2, fv));

  // The record's defaults are what zone 1 on S2 computes.
  EXPECT_STREQ(Kds2019EpaForZone(0), "0.22");
  Kds2019Coefficients c;
  ASSERT_TRUE(Kds2019Refresh(0.22, 1, c));
  EXPECT_NEAR(c.sds, 0.506, 1e-12);
  EXPECT_NEAR(c.sd1, 0.2024, 1e-12);
}

TEST(Kds2019Test, DefaultSpectrumHas101GridAndTwoCornerPoints) {
  const Kds2019Params p;
  // Ts = 0.2024 / 0.506 = 0.4, T0 = 0.08; plateau 0.506 * 1.2 / 4.
  const auto points = Kds2019Spectrum(p);
  ASSERT_EQ(points.size(), 103u);
  EXPECT_DOUBLE_EQ(points[0].sa, 0.4 * 0.506 * 0.3);
  EXPECT_NEAR(points[2].period, 0.08, 1e-15);
  EXPECT_NEAR(points[2].sa, 0.1518, 1e-15);
  EXPECT_NEAR(points[3].sa, 0.1518, 1e-15);
  EXPECT_NEAR(points[7].period, 0.36, 1e-15);
  EXPECT_NEAR(points[8].period, 0.4, 1e-15);
  EXPECT_NEAR(points[8].sa, 0.1518, 1e-15);
  EXPECT_NEAR(points[9].sa, 0.2024 / 0.42 * 0.3, 1e-15);
  // 4.98 s on the 1/T branch, 5.04 s on the 1/T^2 one beyond 5 s.
  EXPECT_NEAR(points[85].sa, 0.2024 / 4.98 * 0.3, 1e-15);
  EXPECT_NEAR(points[86].sa, 0.2024 * 5.0 / 5.04 / 5.04 * 0.3, 1e-15);
  EXPECT_NEAR(points.back().sa, 0.2024 * 5.0 / 36.0 * 0.3, 1e-15);
  EXPECT_EQ(Kds2019Label(p),
            "KDS(41-17-00:2019): Zone=1,S=0.22,Site=S2,Fa=1.38,Fv=1.38,"
            "Sds=0.51,Sd1=0.20,Ie=1.2,R=4.0");
}

TEST(Kds2019Test, ZeroCoefficientsGiveAZeroCurveAndZeroRAMessage) {
  Kds2019Params p{
      .site = 5, .fa = 0.0, .fv = 0.0, .sds = 0.0, .sd1 = 0.0, .grid = {}};
  auto points = Kds2019Spectrum(p);
  ASSERT_EQ(points.size(), 101u);
  for (const SpectrumPoint& point : points) EXPECT_EQ(point.sa, 0.0);
  p.sds = 0.5;  // Sd1 still 0
  points = Kds2019Spectrum(p);
  ASSERT_EQ(points.size(), 101u);
  EXPECT_EQ(points[0].sa, 0.0);

  // Only the grid is checked: a zero R is accepted and gives an infinite
  // curve, which is stored and saved as it is.
  MessageLog log;
  CZELwDoc doc;
  p.sd1 = 0.2;
  p.r = 0.0;
  EXPECT_TRUE(GenerateKds2019(doc, p, log));
  EXPECT_TRUE(log.texts().empty());
  ASSERT_GT(doc.StoredPoints(0), 0u);
  EXPECT_TRUE(std::isinf(doc.store().Value(0, 1)));
}

}  // namespace
}  // namespace zel
