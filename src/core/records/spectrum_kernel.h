// The fast response-spectrum integrator: many oscillators over one record at
// once, vectorised across oscillators and spread over the cores. Its results
// are those of IntegrateOscillator (spectrum_reference.h), bit for bit on
// the same machine.
#ifndef ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_
#define ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_

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

// Which instructions the integrator may use: the best the processor offers,
// or the portable code every processor runs (the same results).
enum class KernelCode {
  kBest,
  kPortable,
};

// peaks[o] = the chosen peak of oscillator o over the record whose forcing
// is `forcing`. `threads` <= 0 uses every core; small jobs run on the
// calling thread. Oscillators beyond peaks.size() are left out.
void IntegratePeaks(std::span<const double> forcing,
                    std::span<const OscillatorCoefficients> oscillators,
                    PeakResponse response, std::span<double> peaks,
                    int threads = 0, KernelCode code = KernelCode::kBest);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_SPECTRUM_KERNEL_H_
