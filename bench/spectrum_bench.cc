// Response-spectrum integration: the fast integrator against the scalar
// reference step loop, on a typical request (4000 samples, 200 periods,
// 6 damping ratios) and the heaviest the dialog allows (50000 samples, 5000
// periods, 6 damping ratios).
#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "core/records/oscillator.h"
#include "core/records/spectrum_kernel.h"
#include "core/records/spectrum_reference.h"

namespace zel {
namespace {

constexpr double kDampings[] = {0.0, 0.01, 0.02, 0.05, 0.1, 0.2};

struct Workload {
  std::vector<double> accel;
  std::vector<double> forcing;
  std::vector<OscillatorCoefficients> oscillators;  // periods x dampings
};

Workload MakeWorkload(int samples, int periods) {
  Workload w;
  w.accel.resize(static_cast<std::size_t>(samples));
  for (int i = 0; i < samples; ++i) {
    const double t = i * 0.01;
    w.accel[i] = 3000.0 * std::sin(7.1 * t) * std::exp(-0.05 * t) +
                 900.0 * std::cos(23.0 * t + 0.4);
  }
  w.forcing = BuildForcing(w.accel, true);
  for (double zeta : kDampings) {
    for (int j = 0; j < periods; ++j) {
      const double period = GridPeriod(0.0, 3.0, periods, j);
      w.oscillators.push_back(
          ComputeOscillatorCoefficients(kSpectrumTwoPi / period, zeta, 0.01));
    }
  }
  return w;
}

void Report(benchmark::State& state, const Workload& w) {
  state.counters["oscillator_steps/s"] = benchmark::Counter(
      static_cast<double>(w.accel.size()) * w.oscillators.size(),
      benchmark::Counter::kIsIterationInvariantRate);
}

void BM_Fast(benchmark::State& state, int samples, int periods,
             PeakResponse response) {
  const Workload w = MakeWorkload(samples, periods);
  std::vector<double> peaks(w.oscillators.size());
  for (auto _ : state) {
    IntegratePeaks(w.forcing, w.oscillators, response, peaks);
    benchmark::DoNotOptimize(peaks.data());
  }
  Report(state, w);
}

void BM_Scalar(benchmark::State& state, int samples, int periods) {
  const Workload w = MakeWorkload(samples, periods);
  std::vector<double> peaks(w.oscillators.size());
  for (auto _ : state) {
    for (std::size_t o = 0; o < w.oscillators.size(); ++o) {
      peaks[o] =
          IntegrateOscillator(w.accel, true, w.oscillators[o]).displacement;
    }
    benchmark::DoNotOptimize(peaks.data());
  }
  Report(state, w);
}

BENCHMARK_CAPTURE(BM_Fast, typical_pseudo_accel, 4000, 200,
                  PeakResponse::kDisplacement)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_Fast, typical_abs_accel, 4000, 200,
                  PeakResponse::kAbsoluteAcceleration)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_Scalar, typical, 4000, 200)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();
BENCHMARK_CAPTURE(BM_Fast, heavy_pseudo_accel, 50000, 5000,
                  PeakResponse::kDisplacement)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(3);
BENCHMARK_CAPTURE(BM_Fast, heavy_abs_accel, 50000, 5000,
                  PeakResponse::kAbsoluteAcceleration)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(2);
BENCHMARK_CAPTURE(BM_Scalar, heavy, 50000, 5000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Iterations(1);

}  // namespace
}  // namespace zel
