// Response spectra: every path of the fast integrator beside the scalar
// reference step loop, on a typical request (4000 samples, 200 periods,
// 6 damping ratios) and the heaviest the dialog allows (50000 samples, 5000
// periods, 6 damping ratios); the whole computation into a document; and a
// batch of 200 typical records spread over the cores.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <string>
#include <thread>
#include <vector>

#include "core/document/curve_document.h"
#include "core/document/messages.h"
#include "core/records/oscillator.h"
#include "core/records/response_spectrum.h"
#include "core/records/spectrum_kernel.h"
#include "core/records/spectrum_reference.h"

namespace zel {
namespace {

constexpr double kDampings[] = {0.0, 0.01, 0.02, 0.05, 0.1, 0.2};
constexpr double kDt = 0.01;

struct Workload {
  const char* name;
  int samples;
  int periods;
};
constexpr Workload kTypical = {"typical", 4000, 200};
constexpr Workload kHeavy = {"heavy", 50000, 5000};

// A decaying record in mm/s^2, different for every `seed`.
std::vector<RecordSample> Record(int samples, int seed = 0) {
  std::vector<RecordSample> record(static_cast<std::size_t>(samples));
  for (int i = 0; i < samples; ++i) {
    const double t = i * kDt;
    record[i] = {
        t, 3000.0 * std::sin((7.1 + 0.01 * seed) * t) * std::exp(-0.05 * t) +
               900.0 * std::cos(23.0 * t + 0.4)};
  }
  return record;
}

SpectrumSettings SettingsOf(const Workload& w, int kind) {
  SpectrumSettings s;
  std::copy(std::begin(kDampings), std::end(kDampings), s.damping.begin());
  s.damping_count = 6;
  s.period_from = 0.0;
  s.period_to = 3.0;
  s.period_count = w.periods;
  s.kind = kind;
  return s;
}

struct Prepared {
  std::vector<double> accel;
  std::vector<double> forcing;
  std::vector<OscillatorCoefficients> oscillators;  // dampings x periods
};

Prepared Prepare(const Workload& w) {
  Prepared p;
  for (const RecordSample& s : Record(w.samples)) p.accel.push_back(s.value);
  p.forcing = BuildForcing(p.accel, true);
  for (double zeta : kDampings) {
    for (int j = 0; j < w.periods; ++j) {
      const double period = GridPeriod(0.0, 3.0, w.periods, j);
      p.oscillators.push_back(
          ComputeOscillatorCoefficients(kSpectrumTwoPi / period, zeta, kDt));
    }
  }
  return p;
}

void CountSteps(benchmark::State& state, const Workload& w) {
  state.counters["steps/s"] = benchmark::Counter(
      static_cast<double>(w.samples) * w.periods * std::size(kDampings),
      benchmark::Counter::kIsIterationInvariantRate);
}

void Kernel(benchmark::State& state, Workload w, KernelPath path,
            PeakResponse response, bool recurrence) {
  if (ResolvePath(path) != path) {
    state.SkipWithError("not on this processor");
    return;
  }
  const Prepared p = Prepare(w);
  std::vector<double> peaks(p.oscillators.size());
  KernelOptions options;
  options.path = path;
  options.displacement_recurrence = recurrence;
  for (auto _ : state) {
    IntegratePeaks(p.forcing, p.oscillators, response, peaks, options);
    benchmark::DoNotOptimize(peaks.data());
  }
  CountSteps(state, w);
}

void Scalar(benchmark::State& state, Workload w) {
  const Prepared p = Prepare(w);
  std::vector<double> peaks(p.oscillators.size());
  for (auto _ : state) {
    for (std::size_t o = 0; o < p.oscillators.size(); ++o) {
      peaks[o] =
          IntegrateOscillator(p.accel, true, p.oscillators[o]).displacement;
    }
    benchmark::DoNotOptimize(peaks.data());
  }
  CountSteps(state, w);
}

// The whole computation into a new document: coefficients, integration and
// the points, titles and legend.
void Spectrum(benchmark::State& state, Workload w, int kind) {
  const std::vector<RecordSample> record = Record(w.samples);
  const SpectrumSettings settings = SettingsOf(w, kind);
  for (auto _ : state) {
    CZELwDoc doc;
    PrepareSpectrumDocument(doc, settings);
    MessageLog log;
    ComputeResponseSpectrum(doc, settings, record, kDt, log);
    benchmark::DoNotOptimize(doc.store().Size(1));
  }
  CountSteps(state, w);
}

// 200 typical records, one per core at a time.
void Batch(benchmark::State& state) {
  std::vector<std::vector<RecordSample>> records;
  for (int r = 0; r < 200; ++r) records.push_back(Record(kTypical.samples, r));
  const SpectrumSettings settings = SettingsOf(kTypical, kPseudoAcceleration);
  for (auto _ : state) {
    std::atomic<std::size_t> next{0};
    const auto worker = [&] {
      for (std::size_t r; (r = next.fetch_add(1)) < records.size();) {
        CZELwDoc doc;
        PrepareSpectrumDocument(doc, settings);
        MessageLog log;
        SpectrumRun run;
        run.kernel.threads = 1;
        ComputeResponseSpectrum(doc, settings, records[r], kDt, log, run);
      }
    };
    std::vector<std::thread> pool;
    for (unsigned t = 1; t < std::thread::hardware_concurrency(); ++t) {
      pool.emplace_back(worker);
    }
    worker();
    for (std::thread& t : pool) t.join();
  }
}

// Milliseconds of wall time; with --benchmark_repetitions the quietest run
// is reported as "_min" beside the mean, for machines shared with others.
void Configure(benchmark::internal::Benchmark* b) {
  b->Unit(benchmark::kMillisecond)
      ->UseRealTime()
      ->ComputeStatistics("min", [](const std::vector<double>& v) {
        return *std::min_element(v.begin(), v.end());
      });
}

void Register() {
  const struct {
    const char* name;
    KernelPath path;
  } paths[] = {{"portable", KernelPath::kPortable},
               {"avx2", KernelPath::kAvx2},
               {"avx512", KernelPath::kAvx512}};
  const struct {
    const char* name;
    PeakResponse response;
    bool recurrence;
  } forms[] = {{"psa_displacement_only", PeakResponse::kDisplacement, true},
               {"psa_state_step", PeakResponse::kDisplacement, false},
               {"abs_accel", PeakResponse::kAbsoluteAcceleration, false}};
  for (const Workload& w : {kTypical, kHeavy}) {
    const bool heavy = w.samples == kHeavy.samples;
    const auto configure = [heavy](benchmark::internal::Benchmark* b) {
      Configure(b);
      if (heavy) b->Iterations(3);
    };
    for (const auto& path : paths) {
      for (const auto& form : forms) {
        configure(benchmark::RegisterBenchmark(
            (std::string("kernel/") + w.name + "/" + path.name + "/" +
             form.name)
                .c_str(),
            Kernel, w, path.path, form.response, form.recurrence));
      }
    }
    configure(benchmark::RegisterBenchmark(
        (std::string("spectrum/") + w.name + "/psa").c_str(), Spectrum, w,
        kPseudoAcceleration));
    configure(benchmark::RegisterBenchmark(
        (std::string("spectrum/") + w.name + "/abs_accel").c_str(), Spectrum, w,
        kAbsoluteAcceleration));
    auto* scalar = benchmark::RegisterBenchmark(
        (std::string("scalar_reference/") + w.name).c_str(), Scalar, w);
    Configure(scalar);
    if (heavy) scalar->Iterations(1)->Repetitions(1);
  }
  Configure(benchmark::RegisterBenchmark("batch/200_typical_psa", Batch));
}

const int kRegistered = (Register(), 0);

}  // namespace
}  // namespace zel
