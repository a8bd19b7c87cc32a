// IBC2000 (ASCE 7-98) design spectrum: site coefficients Fa and Fv from the
// mapped accelerations Ss and S1 (IBC 2000 Tables 1615.1.2(1) and (2)), the
// design accelerations SDS and SD1, and the three-branch spectrum.
#ifndef ZEL_CORE_CODES_IBC2000_H_
#define ZEL_CORE_CODES_IBC2000_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kIbc2000Title[] = "IBC2000(ASCE7-98)";
inline constexpr char kSiteClassENote[] =
    "Note! In case of Site Class 'E' and Ss > 1.0 or S1 > 0.4, Site Specific "
    "geotechnical investigation and dynamic site response analyses shall be "
    "performed to determine appropriate values";
inline constexpr std::array<const char*, 5> kIbc2000SiteClasses = {
    "A", "B", "C", "D", "E"};
inline constexpr int kIbc2000SiteE = 4;
inline constexpr std::array<const char*, 6> kIbc2000DesignCategories = {
    "A", "B", "C", "D", "E", "F"};

// The IBC2000 dialog's fields. Site class D is the class to use when the
// soil properties are not known in enough detail; the design category is
// recorded only.
struct Ibc2000Params {
  double ss = 0.25;
  double s1 = 0.1;
  double importance = 1.0;
  double r = 1.0;
  int site = 3;      // 0..4: A..E
  int category = 3;  // 0..5: A..F
  PeriodGrid grid;
};

struct Ibc2000Coefficients {
  double fa = 0.0;
  double fv = 0.0;
  double sds = 0.0;
  double sd1 = 0.0;
  double t0 = 0.0;
  double ts = 0.0;
};

// Site coefficients of site class 0..4, interpolated between the tabulated
// accelerations and held at the table ends; 0 for a class out of range.
double Ibc2000Fa(int site, double ss);
double Ibc2000Fv(int site, double s1);
// Fa, Fv, SDS = 2/3 Fa Ss, SD1 = 2/3 Fv S1, Ts = SD1 / SDS, T0 = 0.2 Ts.
Ibc2000Coefficients ComputeIbc2000Coefficients(const Ibc2000Params& params);

// Checked before the document is made: site class E with Ss > 1.0 or
// S1 > 0.4 needs a site-specific study; shows kSiteClassENote and returns
// false.
bool CheckIbc2000SiteClass(const Ibc2000Params& params, MessageSink& messages);

std::vector<SpectrumPoint> Ibc2000Spectrum(const Ibc2000Params& params);
std::string Ibc2000Label(const Ibc2000Params& params);

// Validates (site class note, grid, finite parameters) and fills `doc`;
// returns false after the first failure's message.
bool GenerateIbc2000(CZELwDoc& doc, const Ibc2000Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_IBC2000_H_
