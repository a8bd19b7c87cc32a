#include "core/records/spectrum_kernel.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "core/records/oscillator.h"
#include "core/records/spectrum_reference.h"

namespace zel {
namespace {

constexpr KernelPath kPaths[] = {KernelPath::kPortable, KernelPath::kAvx2,
                                 KernelPath::kAvx512};

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

// Within 1e-8 relative, or the same (infinite) value.
bool Agrees(double value, double expected) {
  return value == expected ||
         std::fabs(value - expected) <= 1e-8 * std::fabs(expected);
}

std::vector<double> Peaks(const std::vector<double>& accel, bool at_zero,
                          const std::vector<OscillatorCoefficients>& osc,
                          PeakResponse response, KernelOptions options) {
  std::vector<double> peaks(osc.size(), -1.0);
  IntegratePeaks(BuildForcing(accel, at_zero), osc, response, peaks, options);
  return peaks;
}

// Every path, with one and two threads: the state step gives the scalar
// step loop's bits; the displacement recurrence agrees with it to 1e-8
// relative and gives the same bits on every path.
void ExpectAgreement(const std::vector<double>& accel, bool at_zero,
                     const std::vector<OscillatorCoefficients>& osc) {
  std::vector<OscillatorPeaks> reference;
  for (const auto& k : osc) {
    reference.push_back(IntegrateOscillator(accel, at_zero, k));
  }
  std::vector<double> first_recurrence;
  for (KernelPath path : kPaths) {
    for (int threads : {1, 2}) {
      SCOPED_TRACE(::testing::Message() << "path " << static_cast<int>(path)
                                        << " threads " << threads);
      KernelOptions options{threads, path, false};
      for (PeakResponse response :
           {PeakResponse::kDisplacement, PeakResponse::kVelocity,
            PeakResponse::kAbsoluteAcceleration}) {
        const auto peaks = Peaks(accel, at_zero, osc, response, options);
        for (std::size_t o = 0; o < osc.size(); ++o) {
          EXPECT_EQ(peaks[o], Chosen(reference[o], response)) << o;
        }
      }
      options.displacement_recurrence = true;
      const auto peaks =
          Peaks(accel, at_zero, osc, PeakResponse::kDisplacement, options);
      for (std::size_t o = 0; o < osc.size(); ++o) {
        EXPECT_PRED2(Agrees, peaks[o], reference[o].displacement) << o;
      }
      if (first_recurrence.empty()) first_recurrence = peaks;
      EXPECT_EQ(peaks, first_recurrence);
    }
  }
}

TEST(SpectrumKernelTest, EveryPathAgreesWithTheScalarStepLoop) {
  std::mt19937_64 random(20240611);
  std::uniform_real_distribution<double> unit(0.0, 1.0);
  for (int trial = 0; trial < 6; ++trial) {
    SCOPED_TRACE(trial);
    // Random records of random length, with an offset in the baseline as
    // recorded motions have, starting at 0.0 or not.
    std::vector<double> accel(1 + static_cast<int>(unit(random) * 3000));
    const double offset = trial * 40.0;
    for (double& a : accel) a = offset + (unit(random) - 0.5) * 1000.0;
    const double dt = trial < 3 ? 0.01 : 0.005;
    // Periods from 0 to 12 s and dampings 0 to 0.999, in a count that
    // leaves a partly filled last block.
    const int count = 1 + static_cast<int>(unit(random) * 70);
    std::vector<OscillatorCoefficients> osc;
    for (int o = 0; o < count; ++o) {
      const double period = o == 0 ? kZeroPeriod : 0.01 + unit(random) * 12;
      const double zeta =
          o % 5 == 1 ? 0.0 : (o % 5 == 2 ? 0.999 : unit(random) * 0.999);
      osc.push_back(
          ComputeOscillatorCoefficients(kSpectrumTwoPi / period, zeta, dt));
    }
    ExpectAgreement(accel, trial % 2 == 0, osc);
  }
}

TEST(SpectrumKernelTest, RecurrenceHoldsOverTheLongestRecords) {
  // 50000 samples, every 50th period of a 5000-period grid to 10 s and
  // long periods to 100 s, dampings 0 to 0.999. Under ZEL's rotation rate
  // the long, heavily damped oscillators grow without bound; near 0.135 they
  // barely grow, where the recurrence's roots nearly coincide.
  std::mt19937_64 random(7);
  std::normal_distribution<double> noise(0.0, 800.0);
  std::vector<double> accel(50000);
  for (double& a : accel) a = 300.0 + noise(random);
  std::vector<OscillatorCoefficients> osc;
  for (double zeta : {0.0, 0.05, 0.135, 0.2, 0.5, 0.999}) {
    for (int j = 0; j < 5000; j += 50) {
      osc.push_back(ComputeOscillatorCoefficients(
          kSpectrumTwoPi / GridPeriod(0.0, 10.0, 5000, j), zeta, 0.005));
    }
    for (double period = 20.0; period <= 100.0; period += 20.0) {
      osc.push_back(
          ComputeOscillatorCoefficients(kSpectrumTwoPi / period, zeta, 0.005));
    }
  }
  const auto peaks =
      Peaks(accel, true, osc, PeakResponse::kDisplacement, KernelOptions{});
  int grown = 0;
  for (std::size_t o = 0; o < osc.size(); ++o) {
    const double expected =
        IntegrateOscillator(accel, true, osc[o]).displacement;
    if (expected > 1e30) ++grown;
    EXPECT_PRED2(Agrees, peaks[o], expected) << o;
  }
  EXPECT_GT(grown, 20);
}

TEST(SpectrumKernelTest, EdgeCasesOfTheInputs) {
  const OscillatorCoefficients k =
      ComputeOscillatorCoefficients(kSpectrumTwoPi / 0.5, 0.05, 0.01);
  // An empty record leaves every peak at 0; no oscillators is no work.
  EXPECT_EQ(Peaks({}, false, {k}, PeakResponse::kDisplacement, {})[0], 0.0);
  EXPECT_TRUE(Peaks({1.0}, true, {}, PeakResponse::kVelocity, {}).empty());
  // NaN in the record never replaces a peak; the reference agrees.
  const std::vector<double> odd = {1.0, NAN, 2.0, -3.0};
  EXPECT_EQ(Peaks(odd, true, {k}, PeakResponse::kVelocity, {})[0],
            IntegrateOscillator(odd, true, k).velocity);
}

}  // namespace
}  // namespace zel
