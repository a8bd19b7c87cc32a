#include "core/codes/newmark_hall.h"

#include <array>
#include <cmath>
#include <cstddef>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {
namespace {

constexpr std::array<double, 8> kDampingColumns = {0.0, 0.5, 1.0,  2.0,
                                                   5.0, 7.0, 10.0, 20.0};
constexpr std::array<double, 8> kDisplacementFactors = {2.5, 2.2, 2.0, 1.8,
                                                        1.4, 1.2, 1.1, 1.0};
constexpr std::array<double, 8> kVelocityFactors = {4.0, 3.6, 3.2, 2.8,
                                                    1.9, 1.5, 1.3, 1.1};
constexpr std::array<double, 8> kAccelerationFactors = {6.4, 5.8, 5.2, 4.3,
                                                        2.6, 1.9, 1.5, 1.2};

// Ground-motion maxima: 1.0 g, and 48 in/s and 36 in in millimetres.
constexpr double kGroundAcceleration = 1.0;
constexpr double kGroundVelocity = 48.0 * 25.4;
constexpr double kGroundDisplacement = 36.0 * 25.4;
// End of the acceleration ramp: 0.167 s held in single precision.
constexpr double kRampEnd = 0.16699999570846558;
// Slope of the ramp from the ground acceleration up to the amplified one,
// in log pseudo velocity per log period.
constexpr double kRampSlope = 1.87;

constexpr const char* kTypeWords[] = {"ACCEL", "VELO", "DISP"};

// The regions of the spectrum, by increasing period.
enum Region {
  kGround = 1,  // T <= Ta: the ground acceleration
  kRamp,        // Ta < T <= T1: the transition line
  kAmplifiedAcceleration,
  kAmplifiedVelocity,
  kAmplifiedDisplacement,
};

struct Limits {
  double sd = 0.0;  // amplified maxima
  double sv = 0.0;
  double sa = 0.0;
  double ramp_intercept = 0.0;  // b of log10 PSV = 1.87 log10 T + b
  // Ta, T1, T_VA, T_DV: where regions 2 to 5 begin.
  std::array<double, 4> starts{};
};

TripartitePoint PointAt(double t, int region, const Limits& l, double g,
                        double two_pi) {
  TripartitePoint p;
  p.period = t;
  switch (region) {
    case kGround:
      p.psa = kGroundAcceleration;
      p.psv = kGroundAcceleration * g * t / two_pi;
      break;
    case kRamp:
      p.psv = std::pow(10.0, kRampSlope * std::log10(t) + l.ramp_intercept);
      break;
    case kAmplifiedAcceleration:
      p.psa = l.sa;
      p.psv = l.sa * g * t / two_pi;
      break;
    case kAmplifiedVelocity:
      p.psv = l.sv;
      break;
    default:
      p.sd = l.sd;
      p.psv = two_pi * l.sd / t;
      break;
  }
  if (region != kGround && region != kAmplifiedAcceleration) {
    p.psa = p.psv * two_pi / (t * g);
  }
  if (region != kAmplifiedDisplacement) p.sd = p.psv * t / two_pi;
  return p;
}

// The 28 periods: 0.01 to 0.09, 0.1 to 0.9 and 1 to 10 s, from single
// precision starts and spans in the first two decades.
std::array<double, 28> Periods() {
  std::array<double, 28> periods{};
  std::size_t n = 0;
  for (int k = 1; k <= 9; ++k) {
    periods[n++] =
        0.009999999776482582 + (0.10000000149011612 / 10.0) * (k - 1);
  }
  for (int k = 1; k <= 9; ++k) {
    periods[n++] = 0.10000000149011612 + (1.0 / 10.0) * (k - 1);
  }
  for (int k = 1; k <= 10; ++k) periods[n++] = 1.0 + (10.0 / 10.0) * (k - 1);
  return periods;
}

}  // namespace

AmplificationFactors NewmarkHallFactors(double damping_percent) {
  const std::size_t last = kDampingColumns.size() - 1;
  std::size_t upper = 0;
  while (upper < last && !(damping_percent <= kDampingColumns[upper])) {
    ++upper;
  }
  auto factor = [&](const std::array<double, 8>& f) {
    if (upper == 0 || damping_percent == kDampingColumns[upper] ||
        damping_percent > kDampingColumns[last]) {
      return f[upper];
    }
    const std::size_t lower = upper - 1;
    const double r = (damping_percent - kDampingColumns[lower]) /
                     (kDampingColumns[upper] - kDampingColumns[lower]);
    return f[lower] - (f[lower] - f[upper]) * r;
  };
  return {factor(kDisplacementFactors), factor(kVelocityFactors),
          factor(kAccelerationFactors)};
}

std::vector<TripartitePoint> NewmarkHallCurve(double damping_ratio,
                                              double gravity, double pi) {
  const double g = gravity;
  const double two_pi = 2.0 * pi;
  const AmplificationFactors f = NewmarkHallFactors(damping_ratio * 100.0);
  Limits l;
  l.sd = f.displacement * kGroundDisplacement;
  l.sv = f.velocity * kGroundVelocity;
  l.sa = f.acceleration * kGroundAcceleration;
  const double ramp_end_psv = kRampEnd * l.sa * g / two_pi;
  l.ramp_intercept =
      std::log10(ramp_end_psv) - kRampSlope * std::log10(kRampEnd);
  // Where the ramp meets the ground acceleration's line.
  const double ramp_start =
      std::pow(10.0, (std::log10(g / two_pi) - l.ramp_intercept) / 0.87);
  l.starts = {ramp_start, kRampEnd, two_pi * l.sv / (l.sa * g),
              two_pi * l.sd / l.sv};

  std::vector<TripartitePoint> curve;
  int region = kGround;
  for (const double t : Periods()) {
    // The first period beyond a region's start brings the point at that
    // start with it.
    while (region < kAmplifiedDisplacement && t > l.starts[region - 1]) {
      ++region;
      curve.push_back(PointAt(l.starts[region - 2], region, l, g, two_pi));
    }
    curve.push_back(PointAt(t, region, l, g, two_pi));
  }
  return curve;
}

std::string NewmarkHallLabel(const NewmarkHallParams& params) {
  return CFormat("Scale factor = %4.2f", params.scale);
}

bool CheckNewmarkDamping(double ratio, MessageSink& messages) {
  // In percent, as the table is read; NaN fails too.
  const double percent = ratio * 100.0;
  if (percent >= 0.0 && percent <= 20.0) return true;
  messages.Show(
      CFormat("The damping ratio %g must be between 0 and 0.2 (20 %%)", ratio));
  return false;
}

bool GenerateNewmarkHall(CZELwDoc& doc, const NewmarkHallParams& params,
                         MessageSink& messages) {
  if (!CheckFiniteParameters({{"Scale Factor", params.scale}}, messages)) {
    return false;
  }
  if (!(params.scale > 0.0)) {
    messages.Show(kScaleMessage);
    return false;
  }
  const int count = static_cast<int>(params.damping.size());
  if (count == 0) {
    messages.Show(kNoDampingMessage);
    return false;
  }
  if (count > kNewmarkDampingCapacity) {
    messages.Show(kNoMoreDampingMessage);
    return false;
  }
  for (const double ratio : params.damping) {
    if (!CheckNewmarkDamping(ratio, messages)) return false;
  }
  const int type = params.type;
  if (type < NewmarkHallParams::kAccel || type > NewmarkHallParams::kDisp) {
    messages.Show("Unknown spectrum type!");
    return false;
  }

  doc.spectrum_kind = type + 2;
  doc.type = kTypeWords[type];
  if (type != NewmarkHallParams::kAccel) {
    doc.length_unit = 1;
    doc.unit = "MM";
  }
  // Periods over three decades: both axes logarithmic. Only on a velocity
  // chart do the diagonal lines read displacement and acceleration.
  if (doc.log_x == 0) doc.ToggleLogX();
  if (doc.log_y == 0) doc.ToggleLogY();
  doc.tripartite = type == NewmarkHallParams::kVelo ? 1 : 0;
  doc.diagonal_grid = doc.tripartite;
  doc.curve_count = count;
  doc.damping_flag = 1;
  for (int c = 0; c < count; ++c) {
    doc.damping[c] = params.damping[c];
    const std::vector<TripartitePoint> curve =
        NewmarkHallCurve(params.damping[c], doc.gravity, doc.pi);
    for (std::size_t i = 0; i < curve.size(); ++i) {
      const TripartitePoint& p = curve[i];
      const double value = type == NewmarkHallParams::kAccel  ? p.psa
                           : type == NewmarkHallParams::kVelo ? p.psv
                                                              : p.sd;
      doc.SetPoint(static_cast<int>(i), c, p.period, value * params.scale, 0);
    }
  }

  doc.title = kNewmarkHallTitle;
  doc.subtitle = NewmarkHallLabel(params);
  doc.RefreshChartTitle();
  doc.SetAxisTitle(1, doc.BuildYAxisTitle());
  doc.SetAxisTitle(0, kPeriodAxisTitle);
  doc.SetDampingLegend();
  doc.ApplySeriesStyles();
  doc.SetTitle(doc.title);
  doc.UpdateAllViews();
  return true;
}

}  // namespace zel
