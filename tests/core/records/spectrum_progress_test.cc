// Progress of a long response-spectrum computation: reported period by period
// while the record is still being integrated, with unchanged ordinates.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/document/test_files.h"
#include "core/records/oscillator.h"
#include "core/records/record_fixtures.h"
#include "core/records/response_spectrum.h"
#include "core/records/spectrum_reference.h"

namespace zel {
namespace {

TEST(SpectrumProgressTest, LongRecordReportsEveryPeriodInSlices) {
  // 50000 samples: more than one slice of periods per damping ratio.
  std::vector<double> accel(50000);
  for (std::size_t i = 0; i < accel.size(); ++i) {
    const double t = static_cast<double>(i) * 0.005;
    accel[i] = 0.2 * std::sin(6.0 * t) * std::exp(-0.05 * t) +
               0.07 * std::cos(19.0 * t);
  }
  SpectrumSettings settings;
  settings.kind = kRelativeDisplacement;
  settings.damping[0] = 0.05;
  settings.damping[1] = 0.2;
  settings.damping_count = 2;
  settings.period_from = 0.1;
  settings.period_to = 2.1;
  settings.period_count = 200;
  CZELwDoc doc;
  PrepareSpectrumDocument(doc, settings);

  std::vector<int> positions;
  int stored_before_report = 0;
  MessageLog log;
  ASSERT_EQ(
      ComputeResponseSpectrum(
          doc, zel::testing::OpenBytes(zel::testing::EvenRecord(accel, 0.005)),
          log,
          [&](int position, int range) {
            EXPECT_EQ(range, 200);
            const int curve = positions.size() < 200 ? 0 : 1;
            // The period's point is stored before it is reported.
            if (doc.store().Value(position, 2 * curve + 1) > 0.0) {
              ++stored_before_report;
            }
            positions.push_back(position);
          }),
      1);
  ASSERT_EQ(positions.size(), 400u);
  for (int i = 0; i < 400; ++i) EXPECT_EQ(positions[i], i % 200);
  EXPECT_EQ(stored_before_report, 400);

  // Each slice gives the ordinates of the plain step loop, bit for bit.
  std::vector<double> ground;
  for (const RecordSample& s : doc.record_samples) ground.push_back(s.value);
  for (int k = 0; k < 2; ++k) {
    for (int j : {0, 82, 83, 84, 165, 166, 199}) {
      const double period = doc.store().Value(j, 2 * k);
      const OscillatorCoefficients c = ComputeOscillatorCoefficients(
          kSpectrumTwoPi / period, settings.damping[k], doc.record_time_step);
      EXPECT_EQ(doc.store().Value(j, 2 * k + 1),
                IntegrateOscillator(ground, true, c).displacement)
          << "curve " << k << " period " << period;
    }
  }
}

}  // namespace
}  // namespace zel
