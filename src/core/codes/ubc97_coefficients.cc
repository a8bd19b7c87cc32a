#include "core/codes/ubc97_coefficients.h"

#include "core/document/c_format.h"

namespace zel {

namespace {

// Rows: soil profile Sa..Se; columns: Zone1, Zone2A, Zone2B, Zone3, Zone4.
constexpr double kCa[5][5] = {
    {0.06, 0.12, 0.16, 0.24, 0.32}, {0.08, 0.15, 0.20, 0.30, 0.40},
    {0.09, 0.18, 0.24, 0.33, 0.40}, {0.12, 0.22, 0.28, 0.36, 0.44},
    {0.19, 0.30, 0.34, 0.36, 0.36},
};
constexpr double kCv[5][5] = {
    {0.06, 0.12, 0.16, 0.24, 0.32}, {0.08, 0.15, 0.20, 0.30, 0.40},
    {0.13, 0.25, 0.32, 0.45, 0.56}, {0.18, 0.32, 0.40, 0.54, 0.64},
    {0.26, 0.50, 0.64, 0.84, 0.96},
};
// Rows: source type A, B, C. Na at 2, 5, 10 km; Nv at 2, 5, 10, 15 km.
constexpr double kNa[3][3] = {
    {1.5, 1.2, 1.0}, {1.3, 1.0, 1.0}, {1.0, 1.0, 1.0}};
constexpr double kNv[3][4] = {
    {2.0, 1.6, 1.2, 1.0}, {1.6, 1.2, 1.0, 1.0}, {1.0, 1.0, 1.0, 1.0}};

bool InRange(int index, int count) { return index >= 0 && index < count; }

}  // namespace

double NearSourceNa(int source, double d) {
  if (!InRange(source, 3)) return 1.0;
  const double* na = kNa[source];
  if (d <= 2.0) return na[0];
  if (d >= 10.0) return na[2];
  if (d <= 5.0) return na[0] + (na[1] - na[0]) * (d - 2.0) / 3.0;
  return na[1] + (na[2] - na[1]) * (d - 5.0) / 5.0;
}

double NearSourceNv(int source, double d) {
  if (!InRange(source, 3)) return 1.0;
  const double* nv = kNv[source];
  if (d <= 2.0) return nv[0];
  if (d >= 15.0) return nv[3];
  if (d <= 5.0) return nv[0] + (nv[1] - nv[0]) * (d - 2.0) / 3.0;
  if (d <= 10.0) return nv[1] + (nv[2] - nv[1]) * (d - 5.0) / 5.0;
  return nv[2] + (nv[3] - nv[2]) * (d - 10.0) / 5.0;
}

bool Ubc97Coefficients(int zone, int soil, int source, double distance,
                       SeismicCoefficients& result) {
  if (!InRange(zone, 5) || !InRange(soil, 5)) return false;
  SeismicCoefficients c{kCa[soil][zone], kCv[soil][zone]};
  if (zone == kUbc97Zone4) {
    if (!InRange(source, 3) || !(distance >= 0.0)) return false;
    c.ca *= NearSourceNa(source, distance);
    c.cv *= NearSourceNv(source, distance);
  }
  result = c;
  return true;
}

bool Ubc97CoefficientTexts(int zone, int soil, int source, double distance,
                           std::string& ca_text, std::string& cv_text,
                           MessageSink& messages) {
  if (zone == kUbc97Zone4 && !(distance >= 0.0)) {
    messages.Show(kDistanceMessage);
    return false;
  }
  SeismicCoefficients c;
  if (!Ubc97Coefficients(zone, soil, source, distance, c)) {
    messages.Show(
        "The selection of zone, soil profile or source type is not valid");
    return false;
  }
  ca_text = CFormat("%g", c.ca);
  cv_text = CFormat("%g", c.cv);
  return true;
}

bool RefreshUbc97Coefficients(Ubc97Params& p, MessageSink& messages) {
  std::string ca_text;
  std::string cv_text;
  if (!Ubc97CoefficientTexts(p.zone, p.soil, p.source, p.distance, ca_text,
                             cv_text, messages)) {
    return false;
  }
  p.ca = AtoF(ca_text);
  p.cv = AtoF(cv_text);
  return true;
}

}  // namespace zel
