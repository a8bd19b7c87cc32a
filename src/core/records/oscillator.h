// The damped single-degree-of-freedom oscillator of the response spectrum:
// its period grid and the coefficients of its exact step over a ground
// acceleration that varies linearly between samples.
#ifndef ZEL_CORE_RECORDS_OSCILLATOR_H_
#define ZEL_CORE_RECORDS_OSCILLATOR_H_

namespace zel {

// 2 pi truncated to eight significant digits. Every stored ordinate depends
// on it, so it stays as it is.
inline constexpr double kSpectrumTwoPi = 6.2831852;
// A period of exactly 0 is replaced by 1.0E-10 held in single precision.
inline constexpr double kZeroPeriod = static_cast<double>(1.0E-10f);

// Period j of the half-open linear grid from..to with `count` periods:
// from + j (to - from) / count; "to" itself is never reached.
double GridPeriod(double from, double to, int count, int j);

// Response at the end of a step from the state (d, v) at its start and the
// forcing at its start and end: x = from_d d + from_v v + from_start p0 +
// from_end p1, for displacement, velocity and relative acceleration.
struct OscillatorCoefficients {
  double d_from_d, d_from_v, d_from_start, d_from_end;
  double v_from_d, v_from_v, v_from_start, v_from_end;
  double a_from_d, a_from_v, a_from_start, a_from_end;
};

// Period j of the geometric grid of `count` periods from `from` to `to`, both
// included (from and to greater than 0): from (to / from)^(j / (count - 1)).
// One period is `from`.
double LogGridPeriod(double from, double to, int count, int j);

// The decay rate of the free oscillation in the velocity and acceleration
// terms of the step.
enum class DampingRate {
  // zeta * omega_d: ZEL's established rule, the default, kept as it is.
  kDampedFrequency,
  // zeta * omega: the textbook solution of the damped oscillator.
  kExact,
};

// Coefficients for circular frequency `omega`, damping ratio `zeta` (fraction
// of critical) and time step `dt`. The exponential decay is zeta * omega in
// both rules; `rate` chooses the decay in the derivative terms. Both rules
// agree at zero damping. A ratio of 1 or more gives non-finite coefficients.
OscillatorCoefficients ComputeOscillatorCoefficients(
    double omega, double zeta, double dt,
    DampingRate rate = DampingRate::kDampedFrequency);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_OSCILLATOR_H_
