// The fast response-spectrum integrator: many oscillators over one record at
// once, vectorised across oscillators and spread over the cores.
//
// Two forms of the step:
// - the state step of IntegrateOscillator (spectrum_reference.h), displacement
//   and velocity from the previous ones, which gives the reference's peaks
//   bit for bit on every instruction path;
// - for displacement alone, the second-order recurrence the state step
//   reduces to by the Cayley-Hamilton theorem (d(i+2) from d(i+1), d(i) and
//   three forcing values), which takes five multiply-adds a step instead of
//   eight multiplications and six additions and agrees with the state step
//   to 1e-8 relative. It gives the same bits on every instruction path.
#ifndef ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_
#define ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_

#include <cstddef>
#include <functional>
#include <span>
#include <vector>

#include "core/records/oscillator.h"

namespace zel {

// The forcing of the step loop: element 0 is the forcing at the start of the
// first step, element i + 1 the forcing at the end of step i (minus the
// ground acceleration, 0.0 beyond the record). accel.size() + 1 values.
std::vector<double> BuildForcing(std::span<const double> accel,
                                 bool starts_at_zero);

// The one peak a spectrum kind reports; the others are not computed.
enum class PeakResponse {
  kDisplacement,
  kVelocity,
  kAbsoluteAcceleration,
};

// The instructions the integrator runs on. A path the processor lacks falls
// back to the next narrower one it has.
enum class KernelPath {
  kBest,      // the widest vectors the processor offers
  kPortable,  // plain code every processor runs
  kAvx2,      // 256-bit vectors
  kAvx512,    // 512-bit vectors
};

struct KernelOptions {
  // Threads that integrate; 0 or less uses every core. Small jobs run on the
  // calling thread whatever is asked.
  int threads = 0;
  KernelPath path = KernelPath::kBest;
  // Displacement peaks by the second-order recurrence; false keeps the state
  // step and so the reference's bits.
  bool displacement_recurrence = true;
};

// The path that runs for `path` on this processor: never kBest.
KernelPath ResolvePath(KernelPath path);

// Coefficients of oscillator `index`; called on the integrating threads, so
// it must be safe to call concurrently.
using OscillatorSource =
    std::function<OscillatorCoefficients(std::size_t index)>;

struct PeakJob {
  // BuildForcing of the record.
  std::span<const double> forcing;
  // Oscillators 0 to count - 1, and where their peaks go.
  std::size_t count = 0;
  OscillatorSource oscillator;
  PeakResponse response = PeakResponse::kDisplacement;
  double* peaks = nullptr;
};

// Called on the calling thread about fifty times a second while the workers
// integrate, and once at the end: the peaks of oscillators 0 to done - 1 are
// final.
using PeakProgress = std::function<void(std::size_t done)>;

// Integrates every oscillator of `job`. The worker threads are started once
// for the whole job; with `progress`, the calling thread only reports.
void IntegratePeaks(const PeakJob& job, const KernelOptions& options = {},
                    const PeakProgress& progress = {});

// The same over coefficients computed beforehand; oscillators beyond
// peaks.size() are left out.
void IntegratePeaks(std::span<const double> forcing,
                    std::span<const OscillatorCoefficients> oscillators,
                    PeakResponse response, std::span<double> peaks,
                    const KernelOptions& options = {});

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_
