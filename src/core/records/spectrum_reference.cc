#include "core/records/spectrum_reference.h"

#include <cmath>

namespace zel {
namespace {

void KeepPeak(double& peak, double value) {
  const double magnitude = std::fabs(value);
  if (magnitude >= peak) peak = magnitude;
}

}  // namespace

OscillatorPeaks IntegrateOscillator(std::span<const double> accel,
                                    bool starts_at_zero,
                                    const OscillatorCoefficients& k) {
  const std::size_t n = accel.size();
  const std::size_t offset = starts_at_zero ? 1 : 0;
  double p = starts_at_zero && n > 0 ? -accel[0] : 0.0;
  double d = 0.0;
  double v = 0.0;
  OscillatorPeaks peaks;
  for (std::size_t i = 0; i < n; ++i) {
    const double ground = i + offset < n ? accel[i + offset] : 0.0;
    const double p_end = -ground;
    const double d_next = k.d_from_d * d + k.d_from_v * v + k.d_from_start * p +
                          k.d_from_end * p_end;
    const double v_next = k.v_from_d * d + k.v_from_v * v + k.v_from_start * p +
                          k.v_from_end * p_end;
    const double relative = k.a_from_d * d + k.a_from_v * v +
                            k.a_from_start * p + k.a_from_end * p_end;
    d = d_next;
    v = v_next;
    p = p_end;
    KeepPeak(peaks.displacement, d);
    KeepPeak(peaks.velocity, v);
    KeepPeak(peaks.absolute_acceleration, relative + ground);
    KeepPeak(peaks.relative_acceleration, relative);
  }
  return peaks;
}

}  // namespace zel
