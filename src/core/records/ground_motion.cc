#include "core/records/ground_motion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "core/document/c_format.h"
#include "core/document/csv_export.h"
#include "core/records/oscillator.h"
#include "core/records/response_spectrum.h"

namespace zel {
namespace {

constexpr double kPredominantDamping = 0.05;
constexpr double kPredominantFrom = 0.01;
constexpr double kPredominantTo = 10.0;
constexpr int kPredominantPeriods = 500;

// Integral over one step of |a| for a varying linearly from a0 to a1.
double AbsoluteArea(double a0, double a1, double dt) {
  if ((a0 >= 0.0) == (a1 >= 0.0) || a0 == 0.0 || a1 == 0.0) {
    return 0.5 * (std::fabs(a0) + std::fabs(a1)) * dt;
  }
  // The line crosses zero inside the step: two triangles.
  return 0.5 * (a0 * a0 + a1 * a1) / (std::fabs(a0) + std::fabs(a1)) * dt;
}

// The time within the step t0..t1 where the line a0..a1 reaches `level`.
double CrossingTime(double t0, double t1, double a0, double a1, double level) {
  return t0 + (level - a0) / (a1 - a0) * (t1 - t0);
}

// When the cumulative values `husid` (rising from 0) first reach `level`,
// interpolated linearly between samples.
double HusidTime(std::span<const RecordSample> record,
                 const std::vector<double>& husid, double level) {
  for (std::size_t i = 1; i < husid.size(); ++i) {
    if (husid[i] >= level) {
      if (husid[i] == husid[i - 1]) return record[i].time;
      return CrossingTime(record[i - 1].time, record[i].time, husid[i - 1],
                          husid[i], level);
    }
  }
  return record.empty() ? 0.0 : record.back().time;
}

void FindBracket(std::span<const RecordSample> record,
                 GroundMotionParameters& p) {
  const auto above = [](double a) { return std::fabs(a) > kBracketThreshold; };
  std::size_t first = record.size();
  std::size_t last = 0;
  for (std::size_t i = 0; i < record.size(); ++i) {
    if (above(record[i].value)) {
      if (first == record.size()) first = i;
      last = i;
    }
  }
  if (first == record.size()) return;
  p.exceeds_bracket = true;
  // Where the line from the sample before reaches the threshold with the
  // sign of the exceeding sample; likewise after the last one.
  double start = record[first].time;
  if (first > 0) {
    const RecordSample& b = record[first - 1];
    const RecordSample& a = record[first];
    start = CrossingTime(b.time, a.time, b.value, a.value,
                         std::copysign(kBracketThreshold, a.value));
  }
  double end = record[last].time;
  if (last + 1 < record.size()) {
    const RecordSample& a = record[last];
    const RecordSample& b = record[last + 1];
    end = CrossingTime(a.time, b.time, a.value, b.value,
                       std::copysign(kBracketThreshold, a.value));
  }
  p.bracketed = end - start;
}

void FindPredominantPeriod(std::span<const RecordSample> record,
                           double time_step, GroundMotionParameters& p) {
  if (!(time_step > 0.0) || record.empty()) return;
  std::vector<double> omegas(kPredominantPeriods);
  for (int j = 0; j < kPredominantPeriods; ++j) {
    omegas[j] =
        2.0 * std::numbers::pi /
        LogGridPeriod(kPredominantFrom, kPredominantTo, kPredominantPeriods, j);
  }
  const std::vector<double> peaks = PeakDisplacements(
      record, time_step, omegas, kPredominantDamping, DampingRate::kExact);
  for (int j = 0; j < kPredominantPeriods; ++j) {
    const double psa = peaks[j] * omegas[j] * omegas[j];
    if (psa > p.predominant_psa) {
      p.predominant_psa = psa;
      p.predominant_period = 2.0 * std::numbers::pi / omegas[j];
    }
  }
}

struct RowFormat {
  const char* label;
  const char* unit;
  const char* format;
};

constexpr RowFormat kRows[] = {
    {"PGA", "g", "%.4f"},
    {"Time of PGA", "s", "%.3f"},
    {"PGV (trapezoid rule, mean removed)", "cm/s", "%.3f"},
    {"PGD (trapezoid rule, mean removed)", "cm", "%.3f"},
    {"Arias intensity", "m/s", "%.4f"},
    {"Significant duration D5-75", "s", "%.3f"},
    {"Significant duration D5-95", "s", "%.3f"},
    {"Cumulative absolute velocity", "g s", "%.4f"},
    {"Bracketed duration above 0.05 g", "s", "%.3f"},
    {"Predominant period (5 % pseudo acceleration peak)", "s", "%.3f"},
    {"Pseudo acceleration at the predominant period", "g", "%.4f"},
};
// The rows whose text says when there is no value.
constexpr std::size_t kBracketRow = 8;
constexpr std::size_t kPredominantRow = 9;

}  // namespace

GroundMotionParameters ComputeGroundMotionParameters(
    std::span<const RecordSample> record, double time_step, double gravity) {
  GroundMotionParameters p;
  if (record.empty()) return p;
  const std::size_t n = record.size();
  const double cm = gravity * 100.0;  // 1 g in cm/s^2

  double mean = 0.0;
  for (const RecordSample& s : record) mean += s.value;
  mean /= static_cast<double>(n);

  std::vector<double> husid(n, 0.0);  // integral of a^2, g^2 s
  double velocity = 0.0;              // cm/s
  double displacement = 0.0;          // cm
  for (std::size_t i = 0; i < n; ++i) {
    const double a1 = record[i].value;
    if (std::fabs(a1) >= std::fabs(p.pga)) {
      p.pga = a1;
      p.pga_time = record[i].time;
    }
    if (i == 0) continue;
    const double a0 = record[i - 1].value;
    const double dt = record[i].time - record[i - 1].time;
    husid[i] = husid[i - 1] + (a0 * a0 + a0 * a1 + a1 * a1) / 3.0 * dt;
    p.cav += AbsoluteArea(a0, a1, dt);
    const double next = velocity + 0.5 * ((a0 - mean) + (a1 - mean)) * cm * dt;
    displacement += 0.5 * (velocity + next) * dt;
    velocity = next;
    p.pgv = std::max(p.pgv, std::fabs(velocity));
    p.pgd = std::max(p.pgd, std::fabs(displacement));
  }

  const double energy = husid.back();
  p.arias = std::numbers::pi / 2.0 * gravity * energy;
  if (energy > 0.0) {
    const double t5 = HusidTime(record, husid, 0.05 * energy);
    p.d5_75 = HusidTime(record, husid, 0.75 * energy) - t5;
    p.d5_95 = HusidTime(record, husid, 0.95 * energy) - t5;
  }
  FindBracket(record, p);
  FindPredominantPeriod(record, time_step, p);
  return p;
}

std::vector<ParameterRow> GroundMotionRows(const GroundMotionParameters& p) {
  const double values[] = {p.pga,
                           p.pga_time,
                           p.pgv,
                           p.pgd,
                           p.arias,
                           p.d5_75,
                           p.d5_95,
                           p.cav,
                           p.bracketed,
                           p.predominant_period,
                           p.predominant_psa};
  std::vector<ParameterRow> rows;
  for (std::size_t i = 0; i < std::size(kRows); ++i) {
    const RowFormat& f = kRows[i];
    std::string text = CFormat(f.format, values[i]) + " " + f.unit;
    if (i == kBracketRow && !p.exceeds_bracket) {
      text = "none: never above 0.05 g";
    }
    if (i >= kPredominantRow && p.predominant_period == 0.0) {
      text = "no time step";
    }
    rows.push_back({f.label, text, values[i]});
  }
  return rows;
}

std::string GroundMotionText(const std::string& record_name,
                             const GroundMotionParameters& p) {
  std::string text = "Record : " + record_name + "\n";
  for (const ParameterRow& row : GroundMotionRows(p)) {
    text += row.label + " : " + row.text + "\n";
  }
  return text;
}

std::string GroundMotionCsvHeader() {
  std::string header = "\"Record\"";
  for (const RowFormat& f : kRows) {
    header += CFormat(",\"%s (%s)\"", f.label, f.unit);
  }
  return header + "\n";
}

std::string GroundMotionCsvRow(const std::string& record_name,
                               const GroundMotionParameters& p) {
  std::string row = CsvField(record_name);
  for (const ParameterRow& r : GroundMotionRows(p)) {
    row += CFormat(",%.10g", r.value);
  }
  return row + "\n";
}

}  // namespace zel
