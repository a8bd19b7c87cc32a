// The "Automatic" option of the UBC(1997) dialog: seismic coefficients Ca and
// Cv from the zone and soil profile tables (UBC 1997 Tables 16-Q and 16-R),
// times the near-source factors Na and Nv (Tables 16-S and 16-T) in zone 4.
#ifndef ZEL_CORE_CODES_UBC97_COEFFICIENTS_H_
#define ZEL_CORE_CODES_UBC97_COEFFICIENTS_H_

#include <array>
#include <string>

#include "core/codes/us_codes.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr std::array<const char*, 5> kUbc97ZoneTexts = {
    "Zone1 (0.075)", "Zone2A (0.15)", "Zone2B (0.20)", "Zone3 (0.30)",
    "Zone4 (0.40)"};
inline constexpr int kUbc97Zone4 = 4;
inline constexpr std::array<const char*, 5> kUbc97SoilTexts = {"SA", "SB", "SC",
                                                               "SD", "SE"};
inline constexpr std::array<const char*, 3> kUbc97SourceTexts = {"A", "B", "C"};
inline constexpr char kDistanceMessage[] =
    "Error! Distance must not be negative value.";

// Near-source factors of source type 0..2 (A, B, C) at `distance` km,
// interpolated between the tabulated distances. A distance that is negative
// or NaN is the caller's to refuse; the ends of the table apply beyond it.
double NearSourceNa(int source, double distance);
double NearSourceNv(int source, double distance);

struct SeismicCoefficients {
  double ca = 0.0;
  double cv = 0.0;
};

// Ca and Cv for zone 0..4, soil 0..4, source 0..2; the near-source factors
// apply in zone 4 only. Returns false for an index out of range, or for a
// negative or NaN distance in zone 4.
bool Ubc97Coefficients(int zone, int soil, int source, double distance,
                       SeismicCoefficients& result);

// The dialog's refresh after a change of option, zone, soil, source type or
// distance: Ca and Cv as the fields show them, formatted with "%g". In zone
// 4 a negative distance shows kDistanceMessage, leaves both texts unchanged
// and returns false.
bool Ubc97CoefficientTexts(int zone, int soil, int source, double distance,
                           std::string& ca_text, std::string& cv_text,
                           MessageSink& messages);

// The same on the parameter record: Ca and Cv become the values as displayed
// (the "%g" text read back), which is what OK then draws.
bool RefreshUbc97Coefficients(Ubc97Params& params, MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_UBC97_COEFFICIENTS_H_
