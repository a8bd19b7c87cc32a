// KBC 2005 (Korean Building Code) design spectrum: SDS and SD1 from the zone
// and site class tables ("Per Code") or typed ("User Defined"), the optional
// relief of the short-period branch for soft sites Sd and Se, and the
// spectrum without a long-period corner.
#ifndef ZEL_CORE_CODES_KBC2005_H_
#define ZEL_CORE_CODES_KBC2005_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kKbc2005Title[] = "KBC2005";
inline constexpr char kKbc2005Caption[] = "KBC(2005)";
inline constexpr std::array<const char*, 2> kKbc2005Modes = {"Per Code",
                                                             "User Defined"};
inline constexpr std::array<const char*, 2> kKbc2005ZoneItems = {"Zone1(0.11)",
                                                                 "Zone2(0.07)"};
inline constexpr std::array<const char*, 5> kKbc2005SiteClasses = {
    "Sa", "Sb", "Sc", "Sd", "Se"};
inline constexpr std::array<const char*, 4> kKbc2005ImportanceItems = {
    "0.8", "1.0", "1.2", "1.5"};
inline constexpr std::array<const char*, 11> kKbc2005RItems = {
    "1.25", "1.5", "2.5", "3", "4.5", "5", "5.5", "6", "6.5", "7", "8"};
// The relief check box is offered from site class Sd on.
inline constexpr int kKbc2005FirstRelievedSite = 3;

// The dialog's fields; Sds and Sd1 are what zone 1 on Sd computes.
struct Kbc2005Params {
  static constexpr int kPerCode = 0;
  static constexpr int kUserDefined = 1;
  int mode = kPerCode;
  int zone = 0;  // 0: zone 1 (Z = 0.11), 1: zone 2 (Z = 0.07)
  int site = 3;  // 0..4: Sa..Se
  double sds = 0.52668;
  double sd1 = 0.33649;
  double ie = 1.2;
  double r = 4.5;
  int relieve = 0;  // the check box: 1 checked
  PeriodGrid grid;
};

// The Per Code values factor x 1.33 x Z, each rounded to five significant
// digits as "%-10.5g" writes them. False, leaving both as they were, for a
// zone or site class out of range.
bool Kbc2005Refresh(int zone, int site, double& sds, double& sd1);

std::vector<SpectrumPoint> Kbc2005Spectrum(const Kbc2005Params& params);
std::string Kbc2005Label(const Kbc2005Params& params);

// Validates the grid (the code's only checks, besides refusing numbers that
// are not finite) and hands the curve over to `doc`.
bool GenerateKbc2005(CZELwDoc& doc, const Kbc2005Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_KBC2005_H_
