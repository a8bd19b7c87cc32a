#include "core/records/frequency_switch.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/records/chart_setup.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::ElementsAre;
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

// Titles and the switch back are checked through the Time<->Frequency
// command.
TEST(FrequencySwitchTest, SpectrumOfTheLargestPowerOfTwoPrefix) {
  // 1000 samples: the first 512 are transformed; df = 1 / (512 dt).
  CZELwDoc doc = SineRecord(1000, 5.0, 0.01);
  MessageLog log;
  ASSERT_TRUE(SwitchTimeFrequency(doc, log));
  const double df = 1.0 / (512 * 0.01);
  EXPECT_DOUBLE_EQ(doc.x_axis_step, df);
  EXPECT_EQ(doc.point_count[0], 256);
  EXPECT_EQ(doc.StoredPoints(0), 257u);  // point 0, the mean, is not stored
  EXPECT_DOUBLE_EQ(doc.store().Value(256, 0), 256 * df);
  // Normalised to the largest magnitude, which lies at the bin nearest 5 Hz.
  std::size_t at = 1;
  for (std::size_t k = 1; k <= 256; ++k) {
    if (doc.store().Value(k, 1) > doc.store().Value(at, 1)) at = k;
  }
  EXPECT_EQ(doc.store().Value(at, 1), 1.0);
  EXPECT_EQ(at, 26u);  // 5 Hz / df = 25.6
  EXPECT_EQ(ContextLabel(doc), "Maximum at 5.08 Hz");

  // 1024 samples are transformed whole; a time scale of 2 acts twice in df.
  CZELwDoc scaled = SineRecord(1024, 4.0, 0.01, 2.0);
  ASSERT_TRUE(SwitchTimeFrequency(scaled, log));
  EXPECT_EQ(scaled.point_count[0], 512);
  EXPECT_DOUBLE_EQ(scaled.x_axis_step, 1.0 / (0.02 * 2.0) / 1024);
  // 40000 samples: 32768 of them, beyond the old 20000-point buffers.
  CZELwDoc longer = SineRecord(40000, 1.0, 0.005);
  ASSERT_TRUE(SwitchTimeFrequency(longer, log));
  EXPECT_EQ(ContextLabel(longer), "Maximum at 1.00 Hz");
  EXPECT_THAT(log.texts(), IsEmpty());
}

TEST(FrequencySwitchTest, NoTimeStepOrNoContentGiveAMessageAndNoChange) {
  MessageLog log;
  CZELwDoc three = SineRecord(3, 1.0, 0.01);
  EXPECT_FALSE(SwitchTimeFrequency(three, log));
  CZELwDoc silent = SineRecord(64, 0.0, 0.01);
  EXPECT_FALSE(SwitchTimeFrequency(silent, log));
  EXPECT_EQ(silent.frequency_mode, 0);
  EXPECT_EQ(silent.StoredPoints(0), 64u);
  EXPECT_THAT(log.texts(),
              ElementsAre("Error : No time step! A frequency spectrum needs at "
                          "least 4 samples and a positive time scale.",
                          "Error : No frequency content! The first 64 samples "
                          "of the record are all equal."));
}

}  // namespace
}  // namespace zel
