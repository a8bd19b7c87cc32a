#include "core/scaling/spectrum_scaling.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/design_document.h"
#include "core/document/c_format.h"
#include "core/scaling/record_scaling.h"

namespace zel {
namespace {

ScalingSettings Settings(ScaleRule rule, double fraction = 0.9) {
  ScalingSettings settings;
  settings.rule = rule;
  settings.fraction = fraction;
  return settings;
}

TEST(ScaleFactorTest, RulesWorkedByHandOnThreePeriods) {
  // The record is 1/2, 1 and 1/4 of a flat code spectrum.
  const std::vector<double> record = {0.5, 1.0, 0.25};
  const std::vector<double> code = {1.0, 1.0, 1.0};
  MessageLog log;
  ScaleResult lsq;
  ASSERT_TRUE(ComputeScaleFactor(record, code,
                                 Settings(ScaleRule::kLeastSquares), lsq, log));
  // ln f = (ln 2 + 0 + ln 4) / 3 = ln 2; the residuals are 0, ln 2, -ln 2.
  EXPECT_NEAR(lsq.factor, 2.0, 1e-14);
  EXPECT_NEAR(lsq.misfit, std::log(2.0) * std::sqrt(2.0 / 3.0), 1e-14);

  // The record is lowest against the code at the third period: 0.9 x 4.
  ScaleResult min;
  ASSERT_TRUE(ComputeScaleFactor(record, code, Settings(ScaleRule::kMinimum),
                                 min, log));
  EXPECT_EQ(min.governing, 2);
  EXPECT_DOUBLE_EQ(min.factor, 3.6);
  EXPECT_TRUE(log.texts().empty());

  // A record at exactly half the code: factor 2 by both rules, no misfit.
  const std::vector<double> half = {0.3, 0.2, 0.05};
  const std::vector<double> target = {0.6, 0.4, 0.1};
  ASSERT_TRUE(ComputeScaleFactor(half, target,
                                 Settings(ScaleRule::kLeastSquares), lsq, log));
  EXPECT_NEAR(lsq.factor, 2.0, 1e-14);
  EXPECT_NEAR(lsq.misfit, 0.0, 1e-14);
  ASSERT_TRUE(ComputeScaleFactor(half, target,
                                 Settings(ScaleRule::kMinimum, 1.0), min, log));
  EXPECT_DOUBLE_EQ(min.factor, 2.0);

  // No factor lifts a zero ordinate.
  const std::vector<double> dead = {0.3, 0.0, 0.05};
  EXPECT_FALSE(ComputeScaleFactor(
      dead, target, Settings(ScaleRule::kLeastSquares), lsq, log));
  ASSERT_EQ(log.texts().size(), 1u);
}

TEST(ScaleFactorTest, RangesPeriodsAndInterpolation) {
  const PeriodRange range = RangeOfT1(1.2, 0.2, 1.5);
  EXPECT_DOUBLE_EQ(range.low, 0.24);
  EXPECT_DOUBLE_EQ(range.high, 1.8);

  const std::vector<double> periods = MatchingPeriods({0.1, 10.0}, 3);
  ASSERT_EQ(periods.size(), 3u);
  EXPECT_EQ(periods[0], 0.1);
  EXPECT_NEAR(periods[1], 1.0, 1e-15);
  EXPECT_EQ(periods[2], 10.0);

  const std::vector<SpectrumPoint> curve = {{0.0, 1.0}, {1.0, 3.0}, {2.0, 2.0}};
  double value = 0.0;
  ASSERT_TRUE(InterpolateCurve(curve, 0.5, value));
  EXPECT_DOUBLE_EQ(value, 2.0);
  ASSERT_TRUE(InterpolateCurve(curve, 2.0, value));
  EXPECT_DOUBLE_EQ(value, 2.0);
  EXPECT_FALSE(InterpolateCurve(curve, 2.5, value));

  MessageLog log;
  ScalingSettings settings;
  settings.range = {0.0, 3.0};
  EXPECT_FALSE(CheckScalingSettings(settings, log));
  settings.range = {0.2, 3.0};
  settings.damping = 1.0;
  EXPECT_FALSE(CheckScalingSettings(settings, log));
  EXPECT_EQ(log.texts().size(), 2u);
}

// A record sampled every 0.01 sec: two decaying sines.
std::vector<RecordSample> Record(double amplitude) {
  std::vector<RecordSample> samples;
  for (int i = 0; i < 1500; ++i) {
    const double t = 0.01 * i;
    samples.push_back({t, amplitude * std::exp(-0.2 * t) *
                              (0.3 * std::sin(2 * M_PI * t / 0.4) +
                               0.2 * std::sin(2 * M_PI * t / 1.3))});
  }
  return samples;
}

// A "code" whose spectrum is the pseudo acceleration of Record(1) at the
// matching periods of the grid it is given.
CodeEntry OwnSpectrumCode() {
  CodeEntry code;
  code.id = "own";
  for (const char* name : {"from", "to", "steps"}) {
    ParamDescriptor param;
    param.name = name;
    code.params.push_back(param);
  }
  code.generate = [](const ParamValues& values, CZELwDoc& doc, MessageSink&) {
    const std::vector<double> periods =
        MatchingPeriods({AtoF(values.at("from")), AtoF(values.at("to"))}, 100);
    const std::vector<RecordSample> record = Record(1.0);
    HandOverSpectrum(doc, periods,
                     PseudoAccelerations(record, 0.01, periods, 0.05), "Own",
                     "");
    return true;
  };
  return code;
}

TEST(RecordScalingTest, OwnSpectrumHalvedRecordAndSuite) {
  const CodeEntry code = OwnSpectrumCode();
  const ParamValues values = {{"from", "0.1"}, {"to", "4"}, {"steps", "1"}};
  MessageLog log;
  ScalingTarget target;
  ASSERT_TRUE(MakeScalingTarget(code, values, ScalingSettings(), target, log));

  const std::vector<RecordSample> own = Record(1.0);
  const std::vector<RecordSample> half = Record(0.5);
  const std::vector<RecordSample> more = Record(3.5);
  for (ScaleRule rule : {ScaleRule::kLeastSquares, ScaleRule::kMinimum}) {
    const ScalingSettings settings = Settings(rule, 1.0);
    ScaleResult result;
    ASSERT_TRUE(ScaleRecord({"own", own, 0.01}, target, settings, result, log));
    EXPECT_NEAR(result.factor, 1.0, 1e-12);
    ASSERT_TRUE(
        ScaleRecord({"half", half, 0.01}, target, settings, result, log));
    EXPECT_NEAR(result.factor, 2.0, 1e-12);
    EXPECT_NEAR(result.misfit, 0.0, 1e-12);

    // The mean of 0.5 and 3.5 times the record is twice the record.
    const std::vector<RecordInput> suite = {{"half", half, 0.01},
                                            {"more", more, 0.01}};
    std::vector<std::vector<double>> spectra;
    ASSERT_TRUE(ScaleSuite(suite, target, settings, spectra, result, log));
    EXPECT_NEAR(result.factor, 0.5, 1e-12);
  }
  EXPECT_TRUE(log.texts().empty());
}

TEST(RecordScalingTest, EveryCodeGivesATargetAndAFactor) {
  // Codes added to the registry join here by themselves.
  const std::vector<RecordSample> record = Record(1.0);
  for (const CodeEntry& code : DesignCodes()) {
    SCOPED_TRACE(code.id);
    MessageLog log;
    ScalingTarget target;
    ScalingSettings settings;
    settings.range = {0.2, 3.0};
    ASSERT_TRUE(
        MakeScalingTarget(code, DefaultValues(code), settings, target, log))
        << (log.texts().empty() ? "" : log.texts()[0]);
    ScaleResult result;
    ASSERT_TRUE(
        ScaleRecord({"r", record, 0.01}, target, settings, result, log));
    EXPECT_GT(result.factor, 0.0);
    EXPECT_TRUE(std::isfinite(result.misfit));
  }
}

}  // namespace
}  // namespace zel
