// The plain scalar step loop of one oscillator over a record: the reference
// that the fast integrator must reproduce.
#ifndef ZEL_CORE_RECORDS_SPECTRUM_REFERENCE_H_
#define ZEL_CORE_RECORDS_SPECTRUM_REFERENCE_H_

#include <span>

#include "core/records/oscillator.h"

namespace zel {

struct OscillatorPeaks {
  double displacement = 0.0;           // peak |d|, Sd
  double velocity = 0.0;               // peak |v|
  double absolute_acceleration = 0.0;  // peak |x'' + ground acceleration|
  double relative_acceleration = 0.0;  // peak |x''|, kept but never shown
};

// Integrates the oscillator, starting at rest, over the ground accelerations
// `accel`. When the record starts at time 0.0 (`starts_at_zero`), its first
// sample is the start of the first step; otherwise the ground is at rest one
// step before the first sample. The loop makes exactly accel.size() steps;
// a value needed beyond the record is 0.0.
OscillatorPeaks IntegrateOscillator(std::span<const double> accel,
                                    bool starts_at_zero,
                                    const OscillatorCoefficients& k);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_SPECTRUM_REFERENCE_H_
