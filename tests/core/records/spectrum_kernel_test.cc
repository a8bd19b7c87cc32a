#include "core/records/spectrum_kernel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "core/records/oscillator.h"
#include "core/records/spectrum_reference.h"

namespace zel {
namespace {

double Chosen(const OscillatorPeaks& peaks, PeakResponse response) {
  switch (response) {
    case PeakResponse::kDisplacement:
      return peaks.displacement;
    case PeakResponse::kVelocity:
      return peaks.velocity;
    case PeakResponse::kAbsoluteAcceleration:
      return peaks.absolute_acceleration;
  }
  return 0.0;
}

// The fast integrator, with every response, one to three threads and both
// code paths, against the scalar step loop.
void ExpectAgreement(const std::vector<double>& accel, bool at_zero,
                     const std::vector<OscillatorCoefficients>& oscillators) {
  const std::vector<double> forcing = BuildForcing(accel, at_zero);
  ASSERT_EQ(forcing.size(), accel.size() + 1);
  std::vector<OscillatorPeaks> reference;
  for (const auto& k : oscillators) {
    reference.push_back(IntegrateOscillator(accel, at_zero, k));
  }
  for (PeakResponse response :
       {PeakResponse::kDisplacement, PeakResponse::kVelocity,
        PeakResponse::kAbsoluteAcceleration}) {
    for (int threads : {1, 2, 3}) {
      std::vector<double> peaks(oscillators.size(), -1.0);
      // The portable code and the processor's best, on alternate runs.
      IntegratePeaks(forcing, oscillators, response, peaks, threads,
                     threads == 2 ? KernelCode::kPortable : KernelCode::kBest);
      for (std::size_t o = 0; o < oscillators.size(); ++o) {
        const double expected = Chosen(reference[o], response);
        if (std::isfinite(expected)) {
          EXPECT_NEAR(peaks[o], expected, 1e-12 * std::fabs(expected)) << o;
        } else {
          EXPECT_EQ(peaks[o], expected) << o;
        }
      }
    }
  }
}

TEST(SpectrumKernelTest, FastIntegratorAgreesWithTheScalarStepLoop) {
  std::mt19937_64 random(20240611);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int trial = 0; trial < 8; ++trial) {
    SCOPED_TRACE(trial);
    // Random records of random length, starting at 0.0 or not.
    std::vector<double> accel(1 + static_cast<int>(unit(random) * 3000));
    for (double& a : accel) a = (unit(random) - 0.5) * 1000.0;
    const double dt = trial < 4 ? 0.01 : 0.005;
    // Random periods and dampings, 0 and 0.999 among them, in a count that
    // leaves a partly filled last block.
    const int count = 1 + static_cast<int>(unit(random) * 60);
    std::vector<OscillatorCoefficients> oscillators;
    for (int o = 0; o < count; ++o) {
      const double period = o == 0 ? kZeroPeriod : 0.02 + unit(random) * 12;
      const double zeta =
          o % 5 == 1 ? 0.0 : (o % 5 == 2 ? 0.999 : unit(random) * 0.6);
      oscillators.push_back(
          ComputeOscillatorCoefficients(kSpectrumTwoPi / period, zeta, dt));
    }
    ExpectAgreement(accel, trial % 2 == 0, oscillators);
  }
  // A job large enough to be shared among threads.
  std::vector<double> accel(20000);
  for (double& a : accel) a = (unit(random) - 0.5) * 6000.0;
  std::vector<OscillatorCoefficients> oscillators;
  for (int o = 0; o < 123; ++o) {
    oscillators.push_back(ComputeOscillatorCoefficients(
        kSpectrumTwoPi / (0.05 + o * 0.04), (o % 6) * 0.04, 0.005));
  }
  ExpectAgreement(accel, false, oscillators);
}

TEST(SpectrumKernelTest, EdgeCasesOfTheInputs) {
  const OscillatorCoefficients k =
      ComputeOscillatorCoefficients(kSpectrumTwoPi / 0.5, 0.05, 0.01);
  std::vector<OscillatorCoefficients> one = {k};
  std::vector<double> peaks(1, -1.0);
  // An empty record leaves every peak at 0.
  IntegratePeaks(BuildForcing({}, false), one, PeakResponse::kDisplacement,
                 peaks);
  EXPECT_EQ(peaks[0], 0.0);
  // NaN in the record never replaces a peak; the reference agrees.
  const std::vector<double> accel = {1.0, NAN, 2.0, -3.0};
  IntegratePeaks(BuildForcing(accel, true), one, PeakResponse::kVelocity,
                 peaks);
  EXPECT_EQ(peaks[0], IntegrateOscillator(accel, true, k).velocity);
  // No oscillators: nothing to do.
  IntegratePeaks(BuildForcing(accel, true), {}, PeakResponse::kVelocity, {});
  // With a record starting at 0.0 the last step ends past the record, on
  // 0.0; otherwise the forcing starts at rest.
  EXPECT_EQ(BuildForcing(accel, true).back(), -0.0);
  EXPECT_EQ(BuildForcing(accel, false).front(), 0.0);
  EXPECT_EQ(BuildForcing(accel, false).back(), 3.0);
}

}  // namespace
}  // namespace zel
