// The Newmark & Hall design spectrum: ground-motion maxima of 1.0 g,
// 48 in/s and 36 in amplified by damping-dependent factors, one tripartite
// curve per damping ratio on fixed periods from 0.01 s to 10 s.
#ifndef ZEL_CORE_CODES_NEWMARK_HALL_H_
#define ZEL_CORE_CODES_NEWMARK_HALL_H_

#include <string>
#include <vector>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kNewmarkHallTitle[] = "Newmark & Hall Design Spectrum";
// One curve per damping ratio, as many as a document holds.
inline constexpr int kNewmarkDampingCapacity = kMaxCurves;
inline constexpr char kNoMoreDampingMessage[] = "No more damping!";
inline constexpr char kNoDampingMessage[] =
    "Insert at least one damping ratio!";
inline constexpr char kScaleMessage[] =
    "The value Scale Factor must be greater than zero";

struct NewmarkHallParams {
  enum Type { kAccel = 0, kVelo = 1, kDisp = 2 };
  // The maxima are those of 1.0 g: the factor is the design ground
  // acceleration in g.
  double scale = 1.0;
  int type = kVelo;  // the tripartite chart
  std::vector<double> damping = {0.02, 0.05, 0.1};
};

struct AmplificationFactors {
  double displacement = 0.0;
  double velocity = 0.0;
  double acceleration = 0.0;
};

// The factors for a damping in percent of critical, 0 to 20, interpolated
// linearly between the columns of the table; outside 0..20 the nearest
// column (the generator refuses such a damping).
AmplificationFactors NewmarkHallFactors(double damping_percent);

// One point of a curve before the scale factor: period (s), displacement
// (mm), pseudo velocity (mm/s) and pseudo acceleration (g).
struct TripartitePoint {
  double period = 0.0;
  double sd = 0.0;
  double psv = 0.0;
  double psa = 0.0;
};

// The curve of one damping ratio: 28 periods, three decades from 0.01 s,
// with a point inserted at each region boundary the periods step over (at
// most four). `gravity` in mm/s^2, `pi` the document's.
std::vector<TripartitePoint> NewmarkHallCurve(double damping_ratio,
                                              double gravity, double pi);

std::string NewmarkHallLabel(const NewmarkHallParams& params);

// Refuses a damping ratio outside 0..0.2, where the table gives no factors,
// with "The damping ratio %g must be between 0 and 0.2 (20 %)".
bool CheckNewmarkDamping(double ratio, MessageSink& messages);

// Validates (scale factor, then the damping list) and fills the new
// document: kind type + 2, one curve per damping ratio, both axes
// logarithmic; a velocity chart is tripartite.
bool GenerateNewmarkHall(CZELwDoc& doc, const NewmarkHallParams& params,
                         MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_NEWMARK_HALL_H_
