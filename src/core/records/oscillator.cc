#include "core/records/oscillator.h"

#include <cmath>

namespace zel {
namespace {

double Square(double x) { return x * x; }

}  // namespace

double GridPeriod(double from, double to, int count, int j) {
  const double period = from + j * (to - from) / count;
  return period == 0.0 ? kZeroPeriod : period;
}

double LogGridPeriod(double from, double to, int count, int j) {
  if (count < 2 || j == 0) return from;
  if (j == count - 1) return to;
  return from * std::pow(to / from, static_cast<double>(j) / (count - 1));
}

OscillatorCoefficients ComputeOscillatorCoefficients(double omega, double zeta,
                                                     double dt,
                                                     DampingRate rate) {
  const double root = std::sqrt(1.0 - Square(zeta));
  const double omega_d = omega * root;
  const double sigma =
      rate == DampingRate::kExact ? zeta * omega : omega_d * zeta;
  const double r = zeta / root;

  // Forcing constants of the linear interpolation of the load.
  const double c1 = 2.0 * zeta / (omega * dt);
  const double c2 = 1.0 + c1;
  const double c3 = -1.0 / dt;
  const double c4 = -r * c2 - c3 / omega_d;
  const double c5 = -c2;
  const double c6 = -c1;
  const double c7 = -c3;
  const double c8 = -r * c6 - c7 / omega_d;
  const double c9 = -c6;

  // The free decaying oscillation es, ec and its first (ds, dc) and second
  // (dds, ddc) derivatives over one step.
  const double e = std::exp(-zeta * omega * dt);
  const double es = e * std::sin(omega_d * dt);
  const double ec = e * std::cos(omega_d * dt);
  const double ds = -sigma * es + omega_d * ec;
  const double dc = -sigma * ec - omega_d * es;
  const double q2 = Square(omega_d) - Square(sigma);
  const double q3 = 2.0 * sigma * omega_d;
  const double dds = -q2 * es - q3 * ec;
  const double ddc = -q2 * ec + q3 * es;
  const double w2 = Square(omega);

  OscillatorCoefficients k;
  k.d_from_d = ec + r * es;
  k.d_from_v = es / omega_d;
  k.d_from_start = (c2 + c3 * dt + c4 * es + c5 * ec) / w2;
  k.d_from_end = (c6 + c7 * dt + c8 * es + c9 * ec) / w2;
  k.v_from_d = dc + r * ds;
  k.v_from_v = ds / omega_d;
  k.v_from_start = (c3 + c4 * ds + c5 * dc) / w2;
  k.v_from_end = (c7 + c8 * ds + c9 * dc) / w2;
  k.a_from_d = ddc + r * dds;
  k.a_from_v = dds / omega_d;
  k.a_from_start = (c4 * dds + c5 * ddc) / w2;
  k.a_from_end = (c8 * dds + c9 * ddc) / w2;
  return k;
}

}  // namespace zel
