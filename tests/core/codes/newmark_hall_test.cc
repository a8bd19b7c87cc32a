#include "core/codes/newmark_hall.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zel {
namespace {

using ::testing::ElementsAre;

TEST(NewmarkHallTest, AmplificationFactors) {
  const AmplificationFactors five = NewmarkHallFactors(5.0);
  EXPECT_EQ(five.displacement, 1.4);
  EXPECT_EQ(five.velocity, 1.9);
  EXPECT_EQ(five.acceleration, 2.6);
  // 3.5 % lies halfway between the 2 % and 5 % columns: r = 0.5.
  const AmplificationFactors f = NewmarkHallFactors(0.035 * 100.0);
  EXPECT_DOUBLE_EQ(f.acceleration, 4.3 - (4.3 - 2.6) * 0.5);
  EXPECT_DOUBLE_EQ(f.velocity, 2.35);
  EXPECT_DOUBLE_EQ(f.displacement, 1.6);
}

TEST(NewmarkHallTest, CurveRegionsAndBoundaryPoints) {
  // 5 %: SA = 2.6 g, SV = 1.9 x 1219.2 = 2316.48 mm/s, SD = 1.4 x 914.4 =
  // 1280.16 mm. Boundaries: Ta = 0.05568 s, T1 = 0.167 s, T_VA = 2 pi SV /
  // (SA g) = 0.57035 s, T_DV = 2 pi SD / SV = 3.47229 s.
  const std::vector<TripartitePoint> c =
      NewmarkHallCurve(0.05, 9815.0, 3.141592);
  ASSERT_EQ(c.size(), 28u + 4u);
  EXPECT_EQ(c[0].psa, 1.0);
  EXPECT_NEAR(c[5].period, 0.05568, 1e-5);
  EXPECT_NEAR(c[5].psa, 1.0, 1e-12);  // the ramp starts on the 1 g line
  EXPECT_EQ(c[11].period, 0.16699999570846558);
  EXPECT_DOUBLE_EQ(c[11].psa, 2.6);
  EXPECT_NEAR(c[16].period, 0.57035, 1e-5);
  EXPECT_DOUBLE_EQ(c[21].psv, 2316.48);  // 1 s
  EXPECT_NEAR(c[24].period, 3.47229, 1e-5);
  EXPECT_EQ(c[31].period, 10.0);
  EXPECT_DOUBLE_EQ(c[31].sd, 1280.16);

  // 20 %: Ta = 0.13543 s and T1 both fall between 0.1 s and 0.2 s.
  const std::vector<TripartitePoint> twenty =
      NewmarkHallCurve(0.2, 9815.0, 3.141592);
  ASSERT_EQ(twenty.size(), 32u);
  EXPECT_NEAR(twenty[10].period, 0.13543, 1e-5);
  EXPECT_EQ(twenty[11].period, 0.16699999570846558);
}

TEST(NewmarkHallTest, DocumentOfEachTypeAndRefusals) {
  const char* titles[] = {"Absolute Acceleration (g)",
                          "Relative Velocity (mm/sec)",
                          "Relative Displacement (mm)"};
  for (int type = 0; type < 3; ++type) {
    CZELwDoc doc;
    MessageLog log;
    ASSERT_TRUE(GenerateNewmarkHall(
        doc, {.scale = 0.5, .type = type, .damping = {0.02, 0.05}}, log));
    EXPECT_EQ(doc.spectrum_kind, type + 2);
    EXPECT_EQ(doc.AxisTitle(1), titles[type]);
    EXPECT_EQ(doc.tripartite, type == NewmarkHallParams::kVelo ? 1 : 0);
    EXPECT_EQ(doc.curve_count, 2);
    EXPECT_EQ(doc.StoredPoints(1), 32u);
    EXPECT_EQ(doc.subtitle, "Scale factor = 0.50");
    EXPECT_THAT(doc.chart.legend.entries, ElementsAre(" 0.02", " 0.05"));
    if (type == NewmarkHallParams::kVelo) {
      EXPECT_DOUBLE_EQ(doc.store().Value(21, 3), 0.5 * 2316.48);
    }
  }

  const auto refused = [](NewmarkHallParams params) {
    CZELwDoc doc;
    MessageLog log;
    EXPECT_FALSE(GenerateNewmarkHall(doc, params, log));
    EXPECT_EQ(doc.StoredPoints(0), 0u);
    return log.texts().size() == 1 ? log.texts()[0] : std::string();
  };
  EXPECT_EQ(refused({.scale = 0.0}), kScaleMessage);
  EXPECT_EQ(refused({.damping = {}}), kNoDampingMessage);
  EXPECT_EQ(refused({.damping = std::vector<double>(7, 0.05)}),
            kNoMoreDampingMessage);
  EXPECT_EQ(refused({.damping = {0.05, 0.21}}),
            "The damping ratio 0.21 must be between 0 and 0.2 (20 %)");
  EXPECT_EQ(refused({.damping = {-0.01}}),
            "The damping ratio -0.01 must be between 0 and 0.2 (20 %)");
}

}  // namespace
}  // namespace zel
