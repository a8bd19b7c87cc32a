#include "core/records/ground_motion.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace zel {
namespace {

using ::testing::HasSubstr;

std::vector<RecordSample> Samples(int n, double dt, double (*a)(double)) {
  std::vector<RecordSample> record;
  for (int i = 0; i < n; ++i) record.push_back({i * dt, a(i * dt)});
  return record;
}

TEST(GroundMotionTest, SinePulseConstantAndWeakRecords) {
  // One period of 0.2 sin(2 pi t) g at 1000 samples a second, the sampling
  // costing 1e-5: Arias pi g / 2 * 0.2^2 / 2, CAV 0.4 / pi
  // g s, PGV 0.2 g / pi (at 0.5 s), PGA -0.2 g at 0.75 s: the last of equal
  // peaks, as the chart's label.
  constexpr double g = 9.815, pi = std::numbers::pi;
  const auto sine = Samples(1001, 0.001, [](double t) {
    return 0.2 * std::sin(2 * std::numbers::pi * t);
  });
  const GroundMotionParameters p = ComputeGroundMotionParameters(sine, 0.001);
  EXPECT_NEAR(p.arias, pi / 2 * g * 0.04 / 2, 1e-5 * p.arias);
  EXPECT_NEAR(p.cav, 0.4 / pi, 1e-5 * p.cav);
  EXPECT_NEAR(p.pgv, 20 * g / pi, 1e-5 * p.pgv);
  EXPECT_EQ(p.pga, -0.2);
  EXPECT_EQ(p.pga_time, 0.75);
  // Bracket from |a| = 0.05 g at asin(1/4) / (2 pi) to 1 s less that.
  EXPECT_NEAR(p.bracketed, 1 - std::asin(0.25) / pi, 1e-6);

  // 0.1 g held for 10 s: the Arias intensity grows evenly, so the durations
  // are 70 % and 90 % of it; the bracket is all of it. PGV vanishes once the
  // mean is removed.
  const auto steady = Samples(1001, 0.01, [](double) { return -0.1; });
  const GroundMotionParameters c = ComputeGroundMotionParameters(steady, 0.01);
  EXPECT_NEAR(c.d5_75, 7.0, 1e-12);
  EXPECT_NEAR(c.d5_95, 9.0, 1e-12);
  EXPECT_NEAR(c.bracketed, 10.0, 1e-12);
  EXPECT_NEAR(c.cav, 1.0, 1e-12);
  EXPECT_NEAR(c.pgv, 0.0, 1e-9);
  EXPECT_EQ(c.pga, -0.1);
  EXPECT_EQ(c.pga_time, 10.0);

  // Never above 0.05 g: no bracket, and the text says so. A 2 Hz sine for
  // 20 s peaks near 0.5 s in the 5 % pseudo acceleration.
  const auto weak = Samples(4001, 0.005, [](double t) {
    return 0.04 * std::sin(4 * std::numbers::pi * t);
  });
  const GroundMotionParameters w = ComputeGroundMotionParameters(weak, 0.005);
  EXPECT_FALSE(w.exceeds_bracket);
  EXPECT_NEAR(w.predominant_period, 0.5, 0.01);
  EXPECT_NEAR(w.predominant_psa, 0.04 * 10, 0.04);  // about 1 / (2 zeta)
  const std::string text = GroundMotionText("Weak", w);
  EXPECT_THAT(text, HasSubstr("Bracketed duration above 0.05 g : none: never "
                              "above 0.05 g\n"));
  EXPECT_THAT(text, HasSubstr("\nPGA : -0.0400 g\n"));
  EXPECT_THAT(GroundMotionCsvRow("A \"q\"", w),
              ::testing::StartsWith("\"A \"\"q\"\"\",-0.04,"));
}

}  // namespace
}  // namespace zel
