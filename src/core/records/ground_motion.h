// The ground-motion parameters engineers read off a record before any
// spectrum: peaks, energy, durations and the predominant period.
#ifndef ZEL_CORE_RECORDS_GROUND_MOTION_H_
#define ZEL_CORE_RECORDS_GROUND_MOTION_H_

#include <span>
#include <string>
#include <vector>

#include "core/document/curve_document.h"

namespace zel {

// The threshold of the bracketed duration, g.
inline constexpr double kBracketThreshold = 0.05;

// Parameters of a record whose values are in g. The record is taken as
// varying linearly between its samples, from its first sample to its last;
// velocity and displacement start at rest at the first sample.
struct GroundMotionParameters {
  double pga = 0.0;       // g, signed; among equal peaks the last one
  double pga_time = 0.0;  // s
  // The samples' mean is removed from the acceleration, which is then
  // integrated by the trapezoid rule to velocity and again to displacement.
  double pgv = 0.0;    // cm/s
  double pgd = 0.0;    // cm
  double arias = 0.0;  // m/s, pi / (2 g) times the integral of a^2
  double d5_75 = 0.0;  // s, between 5 % and 75 % of the Arias intensity
  double d5_95 = 0.0;  // s, between 5 % and 95 %
  double cav = 0.0;    // g s, integral of |a|
  // s, from the first to the last time |a| exceeds kBracketThreshold; 0 when
  // it never does.
  double bracketed = 0.0;
  bool exceeds_bracket = false;
  // s and g: the period of the peak of the 5 % damped pseudo acceleration
  // (textbook oscillator, 0.01 to 10 s, log-spaced), and that peak. Both 0
  // when the record has no time step.
  double predominant_period = 0.0;
  double predominant_psa = 0.0;
};

// `gravity` is 1 g in m/s^2 (ZEL's 9.815 by default); `time_step` is the
// record's step for the oscillators, 0 when unknown.
GroundMotionParameters ComputeGroundMotionParameters(
    std::span<const RecordSample> record, double time_step,
    double gravity = 9.815);

// One parameter as shown: a label, its value as text and its number.
struct ParameterRow {
  std::string label;
  std::string text;
  double value;
};
std::vector<ParameterRow> GroundMotionRows(const GroundMotionParameters& p);

// "label : text" lines, the record name first.
std::string GroundMotionText(const std::string& record_name,
                             const GroundMotionParameters& p);
// CSV: the header of labels and a row of full-precision numbers.
std::string GroundMotionCsvHeader();
std::string GroundMotionCsvRow(const std::string& record_name,
                               const GroundMotionParameters& p);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_GROUND_MOTION_H_
