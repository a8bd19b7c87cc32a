#include "core/codes/shanghai2003.h"

#include <gtest/gtest.h>

#include <cmath>

#include "core/codes/code_registry.h"

namespace zel {
namespace {

TEST(Shanghai2003Test, DefaultCurveDescendsStraightAndStaysConstant) {
  Shanghai2003Params p;
  const Shanghai2003Coefficients c = ComputeShanghai2003Coefficients(p);
  EXPECT_EQ(c.gamma, 0.9);
  EXPECT_EQ(c.eta1, 0.02);
  EXPECT_EQ(c.eta2, 1.0);
  EXPECT_EQ(c.alpha_max, 0.04);
  const double at_5tg = 0.04 * std::pow(0.2, 0.9);
  auto points = Shanghai2003Spectrum(p);
  // Corners at Tg = 0.65 and 5 Tg = 3.25; 0.1 and 10.0 are grid periods.
  ASSERT_EQ(points.size(), 103u);
  EXPECT_NEAR(points[0].sa, 0.018, 1e-15);
  EXPECT_NEAR(points[1].sa, 0.04, 1e-15);
  EXPECT_NEAR(points[7].period, 0.65, 1e-15);
  EXPECT_NEAR(points[7].sa, 0.04, 1e-15);
  EXPECT_NEAR(points[34].period, 3.25, 1e-15);
  EXPECT_NEAR(points[34].sa, at_5tg, 1e-15);
  // 0.0008 less per second from 3.25 s to 10 s.
  EXPECT_NEAR(points[42].sa - points[52].sa, 0.0008, 1e-15);
  EXPECT_EQ(points.back().period, 10.0);
  EXPECT_NEAR(points.back().sa, at_5tg - 0.0008 * 6.75, 1e-15);
  EXPECT_EQ(Shanghai2003Label(p),
            "ChSh2003: Zone=6(0.05g), Site=III, Frequent, Tg=0.65s, "
            "Damp.=0.05");
  p.grid = {0.0, 12.0, 120};
  points = Shanghai2003Spectrum(p);
  EXPECT_EQ(points.size(), 123u);
  EXPECT_EQ(points.back().sa, points[points.size() - 21].sa);
}

TEST(Shanghai2003Test, TgSuggestionsAndTheScarceIntensitySix) {
  const CodeEntry& code = *FindDesignCode("shanghai2003");
  ParamValues v = DefaultValues(code);
  EXPECT_EQ(v.at("to"), "10");
  MessageLog log;
  v["site"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "site", log));
  EXPECT_EQ(v.at("tg"), "0.9");
  v["effect"] = "1";
  ASSERT_TRUE(NotifyChanged(code, v, "effect", log));
  EXPECT_EQ(v.at("tg"), "1.1");
  v["tg"] = "0.7";  // typed over; the intensity leaves it
  ASSERT_TRUE(NotifyChanged(code, v, "intensity", log));
  EXPECT_EQ(v.at("tg"), "0.7");
  // Scarce earthquakes of intensity 6 have no maximum: a zero curve.
  CZELwDoc doc;
  ASSERT_TRUE(code.generate(v, doc, log));
  for (std::size_t i = 0; i < doc.StoredPoints(0); ++i) {
    EXPECT_EQ(doc.store().Value(i, 1), 0.0);
  }
  EXPECT_TRUE(log.texts().empty());
}

}  // namespace
}  // namespace zel
