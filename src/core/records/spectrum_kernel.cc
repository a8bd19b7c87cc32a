#include "core/records/spectrum_kernel.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <system_error>
#include <thread>

namespace zel {
namespace {

// Oscillators integrated together: kVectors vectors of kLanes doubles whose
// state (displacement, velocity, peak) stays in registers for the whole
// record. Four 4-wide vectors hide the latency of the recurrence and keep
// the multipliers busy.
constexpr int kLanes = 4;
constexpr int kVectors = 4;
constexpr int kBlock = kLanes * kVectors;

typedef double Lanes __attribute__((vector_size(kLanes * sizeof(double))));
typedef std::int64_t LaneBits
    __attribute__((vector_size(kLanes * sizeof(double))));

// Below this many oscillator steps a second thread costs more than it gives.
constexpr double kThreadedWork = 2.0e6;

#define ZEL_ALWAYS_INLINE inline __attribute__((always_inline))

template <PeakResponse kResponse>
ZEL_ALWAYS_INLINE void IntegrateBlock(const double* forcing, std::size_t n,
                                      const OscillatorCoefficients* osc,
                                      std::size_t count, double* peaks) {
  // The twelve coefficients of every lane, gathered per vector.
  double lanes[12][kVectors][kLanes];
  for (int b = 0; b < kVectors; ++b) {
    for (int l = 0; l < kLanes; ++l) {
      // A short last block repeats its last oscillator in the spare lanes.
      const std::size_t o = std::min<std::size_t>(b * kLanes + l, count - 1);
      const OscillatorCoefficients& k = osc[o];
      const double values[12] = {k.d_from_d,     k.d_from_v,     k.d_from_start,
                                 k.d_from_end,   k.v_from_d,     k.v_from_v,
                                 k.v_from_start, k.v_from_end,   k.a_from_d,
                                 k.a_from_v,     k.a_from_start, k.a_from_end};
      for (int c = 0; c < 12; ++c) lanes[c][b][l] = values[c];
    }
  }
  Lanes dd[kVectors], dv[kVectors], ds[kVectors], de[kVectors];
  Lanes vd[kVectors], vv[kVectors], vs[kVectors], ve[kVectors];
  Lanes ad[kVectors], av[kVectors], as[kVectors], ae[kVectors];
  Lanes* const targets[12] = {dd, dv, ds, de, vd, vv, vs, ve, ad, av, as, ae};
  for (int c = 0; c < 12; ++c) {
    std::memcpy(targets[c], lanes[c], sizeof lanes[c]);
  }
  Lanes d[kVectors]{}, v[kVectors]{}, peak[kVectors]{};
  for (std::size_t i = 0; i < n; ++i) {
    const double p0 = forcing[i];
    const double p1 = forcing[i + 1];
    // Unrolled, so that the state of every vector stays in a register.
#pragma GCC unroll 4
    for (int b = 0; b < kVectors; ++b) {
      // The same sums in the same order as the reference step loop.
      const Lanes d1 = dd[b] * d[b] + dv[b] * v[b] + ds[b] * p0 + de[b] * p1;
      const Lanes v1 = vd[b] * d[b] + vv[b] * v[b] + vs[b] * p0 + ve[b] * p1;
      Lanes x;
      if constexpr (kResponse == PeakResponse::kDisplacement) {
        x = d1;
      } else if constexpr (kResponse == PeakResponse::kVelocity) {
        x = v1;
      } else {
        // x'' + ground acceleration, with the ground acceleration = -p1.
        x = ad[b] * d[b] + av[b] * v[b] + as[b] * p0 + ae[b] * p1 - p1;
      }
      d[b] = d1;
      v[b] = v1;
      const Lanes magnitude = (Lanes)((LaneBits)x & INT64_MAX);
      // Same as "replace when magnitude >= peak": both are never negative
      // zero, so equal values are equal bits, and a NaN replaces neither
      // way. The strict form maps onto the processor's max instruction.
      peak[b] = magnitude > peak[b] ? magnitude : peak[b];
    }
  }
  for (int b = 0; b < kVectors; ++b) {
    for (int l = 0; l < kLanes; ++l) {
      const std::size_t o = static_cast<std::size_t>(b * kLanes + l);
      if (o < count) peaks[o] = peak[b][l];
    }
  }
}

// Takes blocks from `next` until none is left.
template <PeakResponse kResponse>
ZEL_ALWAYS_INLINE void IntegrateBlocksOf(const double* forcing, std::size_t n,
                                         const OscillatorCoefficients* osc,
                                         std::size_t count, double* peaks,
                                         std::atomic<std::size_t>& next) {
  for (;;) {
    const std::size_t first = next.fetch_add(kBlock);
    if (first >= count) return;
    IntegrateBlock<kResponse>(forcing, n, osc + first,
                              std::min<std::size_t>(kBlock, count - first),
                              peaks + first);
  }
}

// One integration, shared by the threads that work on it.
struct BlockJob {
  const double* forcing;
  std::size_t n;
  const OscillatorCoefficients* osc;
  std::size_t count;
  double* peaks;
  PeakResponse response;
  std::atomic<std::size_t>* next;
};

ZEL_ALWAYS_INLINE void RunJob(const BlockJob& job) {
  switch (job.response) {
    case PeakResponse::kDisplacement:
      IntegrateBlocksOf<PeakResponse::kDisplacement>(
          job.forcing, job.n, job.osc, job.count, job.peaks, *job.next);
      break;
    case PeakResponse::kVelocity:
      IntegrateBlocksOf<PeakResponse::kVelocity>(
          job.forcing, job.n, job.osc, job.count, job.peaks, *job.next);
      break;
    case PeakResponse::kAbsoluteAcceleration:
      IntegrateBlocksOf<PeakResponse::kAbsoluteAcceleration>(
          job.forcing, job.n, job.osc, job.count, job.peaks, *job.next);
      break;
  }
}

void RunJobPortable(const BlockJob& job) { RunJob(job); }

#if defined(__x86_64__) || defined(__i386__)
// The same loop with 256-bit vectors, chosen at run time on processors that
// have them. No fused multiply-add: the roundings stay those of the
// reference.
__attribute__((target("avx2"))) void RunJobAvx2(const BlockJob& job) {
  RunJob(job);
}

bool HasAvx2() {
  static const bool has = __builtin_cpu_supports("avx2");
  return has;
}
#endif

void RunJobWith(KernelCode code, const BlockJob& job) {
#if defined(__x86_64__) || defined(__i386__)
  if (code == KernelCode::kBest && HasAvx2()) {
    RunJobAvx2(job);
    return;
  }
#endif
  RunJobPortable(job);
}

}  // namespace

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

void IntegratePeaks(std::span<const double> forcing,
                    std::span<const OscillatorCoefficients> oscillators,
                    PeakResponse response, std::span<double> peaks, int threads,
                    KernelCode code) {
  const std::size_t count = std::min(oscillators.size(), peaks.size());
  if (count == 0) return;
  if (forcing.empty()) {
    std::fill_n(peaks.begin(), count, 0.0);
    return;
  }
  std::atomic<std::size_t> next{0};
  const BlockJob job{forcing.data(), forcing.size() - 1, oscillators.data(),
                     count,          peaks.data(),       response,
                     &next};

  const std::size_t blocks = (count + kBlock - 1) / kBlock;
  std::size_t wanted = threads > 0 ? static_cast<std::size_t>(threads)
                                   : std::thread::hardware_concurrency();
  if (static_cast<double>(job.n) * static_cast<double>(count) < kThreadedWork) {
    wanted = 1;
  }
  wanted = std::clamp<std::size_t>(wanted, 1, blocks);

  std::vector<std::thread> helpers;
  for (std::size_t t = 1; t < wanted; ++t) {
    try {
      helpers.emplace_back(RunJobWith, code, std::cref(job));
    } catch (const std::system_error&) {
      break;  // fewer threads: the blocks are shared by those that started
    }
  }
  RunJobWith(code, job);
  for (std::thread& helper : helpers) helper.join();
}

}  // namespace zel
