#include "core/records/spectrum_kernel.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <cstdint>
#include <cstring>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

// Every product and sum here is rounded on its own, as in the reference step
// loop: the build turns contraction into fused multiply-adds off for this
// file, and clang is told so here as well.
#if defined(__clang__)
#pragma STDC FP_CONTRACT OFF
#endif

namespace zel {
namespace {

#define ZEL_ALWAYS_INLINE inline __attribute__((always_inline))

template <int kLanes>
struct Vector;
template <>
struct Vector<2> {
  typedef double Type __attribute__((vector_size(16)));
  typedef std::int64_t Bits __attribute__((vector_size(16)));
};
template <>
struct Vector<4> {
  typedef double Type __attribute__((vector_size(32)));
  typedef std::int64_t Bits __attribute__((vector_size(32)));
};
template <>
struct Vector<8> {
  typedef double Type __attribute__((vector_size(64)));
  typedef std::int64_t Bits __attribute__((vector_size(64)));
};

// The running peak of |x|. Same as "replace when |x| >= peak": both are
// never negative zero, so equal values are equal bits, and a NaN replaces
// neither way. The strict form maps onto the processor's max instruction.
template <int kLanes>
ZEL_ALWAYS_INLINE void KeepPeak(typename Vector<kLanes>::Type& peak,
                                const typename Vector<kLanes>::Type& x) {
  using V = typename Vector<kLanes>::Type;
  using B = typename Vector<kLanes>::Bits;
  const V magnitude = (V)((B)x & INT64_MAX);
  peak = magnitude > peak ? magnitude : peak;
}

// Gathers the values `values` gives for each oscillator into lanes; a short
// last block repeats its last oscillator in the spare lanes.
template <int kLanes, int kVectors, std::size_t kCount>
ZEL_ALWAYS_INLINE void GatherLanes(
    const OscillatorCoefficients* osc, std::size_t count,
    std::array<double, kCount> (*values)(const OscillatorCoefficients&),
    typename Vector<kLanes>::Type (*out)[kVectors]) {
  double lanes[kCount][kVectors][kLanes];
  for (int b = 0; b < kVectors; ++b) {
    for (int l = 0; l < kLanes; ++l) {
      const std::size_t o = std::min<std::size_t>(b * kLanes + l, count - 1);
      const std::array<double, kCount> v = values(osc[o]);
      for (std::size_t c = 0; c < kCount; ++c) lanes[c][b][l] = v[c];
    }
  }
  for (std::size_t c = 0; c < kCount; ++c) {
    std::memcpy(out[c], lanes[c], sizeof lanes[c]);
  }
}

// The state step's coefficients, in the order the step takes them.
std::array<double, 12> StateValues(const OscillatorCoefficients& c) {
  return {c.d_from_d, c.d_from_v, c.d_from_start, c.d_from_end,
          c.v_from_d, c.v_from_v, c.v_from_start, c.v_from_end,
          c.a_from_d, c.a_from_v, c.a_from_start, c.a_from_end};
}

// The displacement recurrence of one oscillator. With the state step
// x(i+1) = A x(i) + b p(i) + e p(i+1), x = (d, v), the Cayley-Hamilton
// theorem A^2 = tr(A) A - det(A) I gives
//   d(i+2) = tr d(i+1) - det d(i) + c0 p(i) + c1 p(i+1) + c2 p(i+2)
// with c0 = a12 b2 - a22 b1, c1 = b1 + a12 e2 - a22 e1, c2 = e1. The values:
// tr, -det, c0, c1, c2, then the first step's a11, a12, b1, e1.
std::array<double, 9> RecurrenceValues(const OscillatorCoefficients& k) {
  return {
      k.d_from_d + k.v_from_v,
      k.d_from_v * k.v_from_d - k.d_from_d * k.v_from_v,
      k.d_from_v * k.v_from_start - k.v_from_v * k.d_from_start,
      k.d_from_start + k.d_from_v * k.v_from_end - k.v_from_v * k.d_from_end,
      k.d_from_end,
      k.d_from_d,
      k.d_from_v,
      k.d_from_start,
      k.d_from_end};
}

template <int kLanes, int kVectors>
ZEL_ALWAYS_INLINE void ScatterPeaks(
    const typename Vector<kLanes>::Type (&peak)[kVectors], std::size_t count,
    double* peaks) {
  for (int b = 0; b < kVectors; ++b) {
    for (int l = 0; l < kLanes; ++l) {
      const std::size_t o = static_cast<std::size_t>(b * kLanes + l);
      if (o < count) peaks[o] = peak[b][l];
    }
  }
}

// The state step of kLanes x kVectors oscillators whose state (displacement,
// velocity, peak) stays in registers for the whole record.
template <int kLanes, int kVectors, PeakResponse kResponse>
ZEL_ALWAYS_INLINE void StateStepBlock(const double* forcing, std::size_t n,
                                      const OscillatorCoefficients* osc,
                                      std::size_t count, double* peaks) {
  using V = typename Vector<kLanes>::Type;
  V k[12][kVectors];
  GatherLanes<kLanes, kVectors>(osc, count, StateValues, k);
  V d[kVectors]{}, v[kVectors]{}, peak[kVectors]{};
  for (std::size_t i = 0; i < n; ++i) {
    const double p0 = forcing[i];
    const double p1 = forcing[i + 1];
#pragma GCC unroll 8
    for (int b = 0; b < kVectors; ++b) {
      // The same sums in the same order as the reference step loop.
      const V d1 =
          k[0][b] * d[b] + k[1][b] * v[b] + k[2][b] * p0 + k[3][b] * p1;
      const V v1 =
          k[4][b] * d[b] + k[5][b] * v[b] + k[6][b] * p0 + k[7][b] * p1;
      V x;
      if constexpr (kResponse == PeakResponse::kDisplacement) {
        x = d1;
      } else if constexpr (kResponse == PeakResponse::kVelocity) {
        x = v1;
      } else {
        // x'' + ground acceleration, with the ground acceleration = -p1.
        x = k[8][b] * d[b] + k[9][b] * v[b] + k[10][b] * p0 + k[11][b] * p1 -
            p1;
      }
      d[b] = d1;
      v[b] = v1;
      KeepPeak<kLanes>(peak[b], x);
    }
  }
  ScatterPeaks<kLanes, kVectors>(peak, count, peaks);
}

// Peak displacement by the recurrence. The first step, from rest, is the
// state step's; every later one takes five products and four sums.
template <int kLanes, int kVectors>
ZEL_ALWAYS_INLINE void RecurrenceBlock(const double* forcing, std::size_t n,
                                       const OscillatorCoefficients* osc,
                                       std::size_t count, double* peaks) {
  using V = typename Vector<kLanes>::Type;
  V k[9][kVectors];
  GatherLanes<kLanes, kVectors>(osc, count, RecurrenceValues, k);
  V before[kVectors]{}, d[kVectors]{}, peak[kVectors]{};
  if (n == 0) {
    ScatterPeaks<kLanes, kVectors>(peak, count, peaks);
    return;
  }
  double pa = forcing[0];
  double pb = forcing[1];
  for (int b = 0; b < kVectors; ++b) {
    const V zero{};
    d[b] = k[5][b] * zero + k[6][b] * zero + k[7][b] * pa + k[8][b] * pb;
    KeepPeak<kLanes>(peak[b], d[b]);
  }
  for (std::size_t i = 2; i <= n; ++i) {
    const double pc = forcing[i];
#pragma GCC unroll 8
    for (int b = 0; b < kVectors; ++b) {
      const V load = k[2][b] * pa + k[3][b] * pb + k[4][b] * pc;
      const V next = k[0][b] * d[b] + (k[1][b] * before[b] + load);
      before[b] = d[b];
      d[b] = next;
      KeepPeak<kLanes>(peak[b], next);
    }
    pa = pb;
    pb = pc;
  }
  ScatterPeaks<kLanes, kVectors>(peak, count, peaks);
}

// Whether the recurrence holds the reference's results to 1e-8 over a record
// of n steps. Where its two roots nearly coincide (the free oscillation
// turns by nearly a multiple of half a turn in one step, or decays and grows
// at nearly the same rate, as heavily damped long periods do under ZEL's
// rotation rate), it loses the velocity: rounding errors grow like
// n eps / |root1 - root2|, against n eps for the state step. The recurrence
// is kept for separations of at least n / 1e7, for errors below 2e-9.
bool SuitsRecurrence(const OscillatorCoefficients& k, std::size_t n) {
  const std::array<double, 9> r = RecurrenceValues(k);
  const double separation = std::sqrt(std::fabs(r[0] * r[0] + 4.0 * r[1]));
  return separation >= static_cast<double>(n) * 1e-7;
}

// Beyond this the recurrence may overflow a step before or after the state
// step does; blocks that reach it are integrated again by the state step.
constexpr double kRecurrenceCeiling = 1e300;

using BlockFunction = void (*)(const double* forcing, std::size_t n,
                               const OscillatorCoefficients* osc,
                               std::size_t count, double* peaks);

// The largest block of any path.
constexpr std::size_t kMaxBlock = 32;

// The block functions of one instruction path, each for up to `block`
// oscillators.
struct PathFunctions {
  std::size_t block;
  BlockFunction state[3];  // by PeakResponse
  BlockFunction recurrence;
};

#define ZEL_BLOCK_FUNCTIONS(NAME, TARGET, LANES, VECTORS)                      \
  static_assert(LANES * VECTORS <= kMaxBlock);                                 \
  TARGET void NAME##Displacement(const double* f, std::size_t n,               \
                                 const OscillatorCoefficients* o,              \
                                 std::size_t c, double* p) {                   \
    StateStepBlock<LANES, VECTORS, PeakResponse::kDisplacement>(f, n, o, c,    \
                                                                p);            \
  }                                                                            \
  TARGET void NAME##Velocity(const double* f, std::size_t n,                   \
                             const OscillatorCoefficients* o, std::size_t c,   \
                             double* p) {                                      \
    StateStepBlock<LANES, VECTORS, PeakResponse::kVelocity>(f, n, o, c, p);    \
  }                                                                            \
  TARGET void NAME##Absolute(const double* f, std::size_t n,                   \
                             const OscillatorCoefficients* o, std::size_t c,   \
                             double* p) {                                      \
    StateStepBlock<LANES, VECTORS, PeakResponse::kAbsoluteAcceleration>(       \
        f, n, o, c, p);                                                        \
  }                                                                            \
  TARGET void NAME##Recurrence(const double* f, std::size_t n,                 \
                               const OscillatorCoefficients* o, std::size_t c, \
                               double* p) {                                    \
    RecurrenceBlock<LANES, VECTORS>(f, n, o, c, p);                            \
  }                                                                            \
  constexpr PathFunctions k##NAME = {                                          \
      LANES * VECTORS,                                                         \
      {NAME##Displacement, NAME##Velocity, NAME##Absolute},                    \
      NAME##Recurrence};

ZEL_BLOCK_FUNCTIONS(Portable, , 2, 4)
#if defined(__x86_64__) || defined(__i386__)
ZEL_BLOCK_FUNCTIONS(Avx2, __attribute__((target("avx2"))), 4, 4)
ZEL_BLOCK_FUNCTIONS(Avx512, __attribute__((target("avx512f"))), 8, 4)
#endif

const PathFunctions& FunctionsOf(KernelPath path) {
  switch (ResolvePath(path)) {
#if defined(__x86_64__) || defined(__i386__)
    case KernelPath::kAvx512:
      return kAvx512;
    case KernelPath::kAvx2:
      return kAvx2;
#endif
    default:
      return kPortable;
  }
}

// Below this many oscillator steps a second thread costs more than it gives.
constexpr double kThreadedWork = 2.0e6;
constexpr auto kReportInterval = std::chrono::milliseconds(20);

// One job shared by the threads that integrate it: blocks are taken in
// order from `next`; `done` marks each finished one.
class SharedJob {
 public:
  SharedJob(const PeakJob& job, const KernelOptions& options)
      : job_(job), n_(job.forcing.empty() ? 0 : job.forcing.size() - 1) {
    const PathFunctions& f = FunctionsOf(options.path);
    block_ = f.block;
    function_ = f.state[static_cast<int>(job.response)];
    if (job.response == PeakResponse::kDisplacement &&
        options.displacement_recurrence) {
      recurrence_ = f.recurrence;
    }
    blocks_ = (job.count + block_ - 1) / block_;
    done_ = std::make_unique<std::atomic<bool>[]>(blocks_);
  }

  std::size_t blocks() const { return blocks_; }
  double work() const {
    return static_cast<double>(n_) * static_cast<double>(job_.count);
  }

  // Integrates blocks until none is left; after each, `after_block` runs.
  template <typename AfterBlock>
  void Work(AfterBlock after_block) {
    OscillatorCoefficients osc[kMaxBlock];
    for (;;) {
      const std::size_t b = next_.fetch_add(1);
      if (b >= blocks_) return;
      const std::size_t first = b * block_;
      const std::size_t size = std::min(block_, job_.count - first);
      for (std::size_t o = 0; o < size; ++o)
        osc[o] = job_.oscillator(first + o);
      double* peaks = job_.peaks + first;
      // Oscillators the recurrence does not suit take the state step's
      // peaks, whatever else shares their block.
      bool keep[kMaxBlock];
      bool any = false;
      for (std::size_t o = 0; o < size; ++o) {
        keep[o] = recurrence_ != nullptr && SuitsRecurrence(osc[o], n_);
        any = any || keep[o];
      }
      if (!any) {
        function_(job_.forcing.data(), n_, osc, size, peaks);
      } else {
        recurrence_(job_.forcing.data(), n_, osc, size, peaks);
        bool all = true;
        for (std::size_t o = 0; o < size; ++o) {
          keep[o] = keep[o] && peaks[o] < kRecurrenceCeiling;
          all = all && keep[o];
        }
        if (!all) {
          double state[kMaxBlock];
          function_(job_.forcing.data(), n_, osc, size, state);
          for (std::size_t o = 0; o < size; ++o) {
            if (!keep[o]) peaks[o] = state[o];
          }
        }
      }
      done_[b].store(true, std::memory_order_release);
      after_block();
    }
  }

  // Oscillators whose peaks are final, counted from the first.
  std::size_t Done() {
    while (finished_ < blocks_ &&
           done_[finished_].load(std::memory_order_acquire)) {
      ++finished_;
    }
    return std::min(finished_ * block_, job_.count);
  }

 private:
  const PeakJob& job_;
  std::size_t n_;
  std::size_t block_ = 1;
  BlockFunction function_ = nullptr;
  BlockFunction recurrence_ = nullptr;  // for the oscillators that suit it
  std::size_t blocks_ = 0;
  std::unique_ptr<std::atomic<bool>[]> done_;
  std::atomic<std::size_t> next_{0};
  std::size_t finished_ = 0;  // read by the reporting thread only
};

}  // namespace

KernelPath ResolvePath(KernelPath path) {
#if defined(__x86_64__) || defined(__i386__)
  static const bool has_avx512 = __builtin_cpu_supports("avx512f");
  static const bool has_avx2 = __builtin_cpu_supports("avx2");
  if (path == KernelPath::kBest) path = KernelPath::kAvx512;
  if (path == KernelPath::kAvx512 && !has_avx512) path = KernelPath::kAvx2;
  if (path == KernelPath::kAvx2 && !has_avx2) path = KernelPath::kPortable;
  return path;
#else
  return KernelPath::kPortable;
#endif
}

std::vector<double> BuildForcing(std::span<const double> accel,
                                 bool starts_at_zero) {
  const std::size_t n = accel.size();
  std::vector<double> forcing(n + 1);
  const std::size_t offset = starts_at_zero ? 1 : 0;
  forcing[0] = starts_at_zero && n > 0 ? -accel[0] : 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    forcing[i + 1] = -(i + offset < n ? accel[i + offset] : 0.0);
  }
  return forcing;
}

void IntegratePeaks(const PeakJob& job, const KernelOptions& options,
                    const PeakProgress& progress) {
  if (job.count == 0) {
    if (progress) progress(0);
    return;
  }
  SharedJob shared(job, options);
  std::size_t threads = options.threads > 0
                            ? static_cast<std::size_t>(options.threads)
                            : std::thread::hardware_concurrency();
  if (shared.work() < kThreadedWork) threads = 1;
  threads = std::clamp<std::size_t>(threads, 1, shared.blocks());

  // Reports from the calling thread, after each of its own blocks or while
  // it waits for the workers.
  std::size_t reported = 0;
  const auto report = [&](bool last) {
    if (!progress) return;
    const std::size_t done = shared.Done();
    if (last || done != reported) progress(done);
    reported = done;
  };

  if (threads == 1) {
    shared.Work([&] { report(false); });
    report(true);
    return;
  }

  std::mutex mutex;
  std::condition_variable finished;
  std::size_t running = 0;
  const auto worker = [&] {
    shared.Work([] {});
    std::lock_guard<std::mutex> lock(mutex);
    --running;
    finished.notify_one();
  };
  // With a progress report to give, the calling thread only reports.
  const std::size_t helpers = progress ? threads : threads - 1;
  std::vector<std::thread> pool;
  for (std::size_t t = 0; t < helpers; ++t) {
    {
      std::lock_guard<std::mutex> lock(mutex);
      ++running;
    }
    try {
      pool.emplace_back(worker);
    } catch (const std::system_error&) {
      std::lock_guard<std::mutex> lock(mutex);
      --running;
      break;  // fewer threads: the blocks are shared by those that started
    }
  }
  if (!progress || pool.empty()) {
    shared.Work([&] { report(false); });
  } else {
    std::unique_lock<std::mutex> lock(mutex);
    while (!finished.wait_for(lock, kReportInterval,
                              [&] { return running == 0; })) {
      lock.unlock();
      report(false);
      lock.lock();
    }
  }
  for (std::thread& t : pool) t.join();
  report(true);
}

void IntegratePeaks(std::span<const double> forcing,
                    std::span<const OscillatorCoefficients> oscillators,
                    PeakResponse response, std::span<double> peaks,
                    const KernelOptions& options) {
  PeakJob job;
  job.forcing = forcing;
  job.count = std::min(oscillators.size(), peaks.size());
  job.oscillator = [&](std::size_t o) { return oscillators[o]; };
  job.response = response;
  job.peaks = peaks.data();
  IntegratePeaks(job, options);
}

}  // namespace zel
