#include "core/records/frequency_switch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "core/records/chart_setup.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::IsEmpty;
using zel::testing::EvenRecord;
using zel::testing::ShowRecord;
using zel::testing::Sine;

// A record document of `n` samples of a sine of `hz` at step `dt`.
CZELwDoc SineRecord(int n, double hz, double dt, double time_scale = 1.0) {
  CZELwDoc doc;
  const std::string text = EvenRecord(Sine(n, hz, dt), dt);
  EXPECT_EQ(ShowRecord(doc, text, 1.0, time_scale).result, 1);
  return doc;
}

TEST(FrequencySwitchTest, SpectrumOfTheLargestPowerOfTwoPrefix) {
  // 1000 samples: the first 512 are transformed; df = 1 / (512 dt).
  CZELwDoc doc = SineRecord(1000, 5.0, 0.01);
  MessageLog log;
  ASSERT_TRUE(SwitchTimeFrequency(doc, log));
  EXPECT_THAT(log.texts(), IsEmpty());
  const double df = 1.0 / (512 * 0.01);
  EXPECT_DOUBLE_EQ(doc.x_axis_step, df);
  EXPECT_EQ(doc.frequency_mode, 1);
  EXPECT_EQ(doc.point_count[0], 256);
  EXPECT_EQ(doc.StoredPoints(0), 257u);  // point 0, the mean, is not stored
  EXPECT_DOUBLE_EQ(doc.store().Value(1, 0), df);
  EXPECT_DOUBLE_EQ(doc.store().Value(256, 0), 256 * df);
  // Normalised to the largest magnitude, which lies at the bin nearest 5 Hz.
  std::size_t at = 1;
  for (std::size_t k = 1; k <= 256; ++k) {
    if (doc.store().Value(k, 1) > doc.store().Value(at, 1)) at = k;
  }
  EXPECT_EQ(doc.store().Value(at, 1), 1.0);
  EXPECT_EQ(at, 26u);  // 5 Hz / df = 25.6
  EXPECT_EQ(ContextLabel(doc), "Maximum at 5.08 Hz");
  EXPECT_EQ(doc.title, "Frequency Spectrum");
  EXPECT_EQ(doc.window_title, "Frequency Spectrum");
  EXPECT_EQ(doc.subtitle, "Sine");
  EXPECT_EQ(doc.AxisTitle(0), "Frequency (Hz)");
  EXPECT_EQ(doc.AxisTitle(1), "Normalized value");
  EXPECT_EQ(doc.axis_display, 0);

  // Switching back gives the time history with the second label form.
  ASSERT_TRUE(SwitchTimeFrequency(doc, log));
  EXPECT_EQ(doc.frequency_mode, 0);
  EXPECT_EQ(doc.x_axis_step, 0.0);
  EXPECT_EQ(doc.StoredPoints(0), 1000u);
  EXPECT_EQ(doc.point_count[0], 999);
  EXPECT_EQ(doc.AxisTitle(1), "Ground Accel.(g)");
  EXPECT_EQ(doc.AxisTitle(0), "Time (sec)");
  EXPECT_EQ(doc.title, "Earthquake Record");
  EXPECT_EQ(ContextLabel(doc), "Max = 0.2500(g) at 9.95 sec");
  // One context label, replaced at each switch.
  EXPECT_EQ(doc.chart.labels.size(), 1u);
}

TEST(FrequencySwitchTest, WholePowersTimeScaleAndLongRecords) {
  // 1024 samples are transformed whole; a time scale of 2 acts twice in df.
  CZELwDoc doc = SineRecord(1024, 4.0, 0.01, 2.0);
  MessageLog log;
  ASSERT_TRUE(SwitchTimeFrequency(doc, log));
  EXPECT_EQ(doc.point_count[0], 512);
  EXPECT_DOUBLE_EQ(doc.x_axis_step, 1.0 / (0.02 * 2.0) / 1024);

  // A record of 40000 samples: 32768 of them, beyond the old 20000-point
  // buffers, which grow.
  CZELwDoc longer = SineRecord(40000, 1.0, 0.005);
  ASSERT_TRUE(SwitchTimeFrequency(longer, log));
  EXPECT_EQ(longer.point_count[0], 16384);
  EXPECT_EQ(ContextLabel(longer), "Maximum at 1.00 Hz");

  // Not a record document: nothing happens.
  CZELwDoc spectrum;
  EXPECT_FALSE(SwitchTimeFrequency(spectrum, log));
  EXPECT_EQ(spectrum.frequency_mode, 0);
  EXPECT_THAT(log.texts(), IsEmpty());

  // One sample has no spectrum: a message, the document stays as it is.
  CZELwDoc single = SineRecord(1, 1.0, 0.01);
  EXPECT_FALSE(SwitchTimeFrequency(single, log));
  EXPECT_EQ(single.frequency_mode, 0);
  EXPECT_EQ(log.texts().size(), 1u);

  // A silent record divides 0 by 0: NaN ordinates, no failure.
  CZELwDoc silent = SineRecord(64, 0.0, 0.01);
  EXPECT_TRUE(SwitchTimeFrequency(silent, log));
  EXPECT_TRUE(std::isnan(silent.store().Value(1, 1)));
}

}  // namespace
}  // namespace zel
