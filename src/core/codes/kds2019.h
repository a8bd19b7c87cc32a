// KDS 41 17 00:2019 design spectrum: site coefficients Fa and Fv from the
// effective peak ground acceleration S (Tables 4.2-1 and 4.2-2), design
// accelerations SDS and SD1, and the four-branch spectrum with its fixed
// long-period corner at 5 s.
#ifndef ZEL_CORE_CODES_KDS2019_H_
#define ZEL_CORE_CODES_KDS2019_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kKds2019Title[] = "KDS(41-17-00:2019)";
inline constexpr std::array<const char*, 2> kKds2019Zones = {"1", "2"};
inline constexpr std::array<const char*, 6> kKds2019SiteClasses = {
    "S1", "S2", "S3", "S4", "S5", "S6"};
// S6 has no tabulated coefficients: Fa, Fv, Sds and Sd1 are typed by hand.
inline constexpr int kKds2019SiteS6 = 5;
inline constexpr std::array<const char*, 2> kKds2019EpaItems = {"0.14", "0.22"};
inline constexpr std::array<const char*, 3> kKds2019ImportanceItems = {
    "1.0", "1.2", "1.5"};
inline constexpr std::array<const char*, 15> kKds2019RItems = {
    "1.25", "1.5", "2.5", "3",   "3.25", "3.5", "4", "4.5",
    "5",    "5.5", "6",   "6.5", "7",    "7.5", "8"};
inline constexpr double kKds2019LongPeriod = 5.0;

// The dialog's parameter record; the defaults are mutually consistent
// (S = 0.22 on S2 gives Fa = Fv = 1.38, Sds = 0.506, Sd1 = 0.2024).
struct Kds2019Params {
  int zone = 0;  // 0: zone 1, 1: zone 2
  int site = 1;  // 0..5: S1..S6
  double s = 0.22;
  double fa = 1.38;
  double fv = 1.38;
  double sds = 0.506;
  double sd1 = 0.2024;
  double ie = 1.2;
  double r = 4.0;
  PeriodGrid grid;
};

// Fa or Fv of site class 0..4 at S: the 0.1 column up to 0.1 (tolerantly),
// interpolated above it and held at the 0.3 column. False for any other
// site class.
bool Kds2019Fa(int site, double s, double& fa);
bool Kds2019Fv(int site, double s, double& fv);

struct Kds2019Coefficients {
  double fa = 0.0;
  double fv = 0.0;
  double sds = 0.0;
  double sd1 = 0.0;
};

// The dialog's coefficient refresh: zeros for S6 (to prompt hand entry),
// else the tabulated Fa, Fv and Sds = 2/3 S 2.5 Fa, Sd1 = 2/3 S Fv.
// Returns false, and the fields stay as they were, when a lookup fails.
bool Kds2019Refresh(double s, int site, Kds2019Coefficients& result);

// The EPA text a zone selection writes: "0.22" for zone 1, "0.14" otherwise.
const char* Kds2019EpaForZone(int zone);

std::vector<SpectrumPoint> Kds2019Spectrum(const Kds2019Params& params);
std::string Kds2019Label(const Kds2019Params& params);

// Validates the grid (the only checks of this code, besides refusing
// non-finite numbers) and hands the curve over to `doc`; false after the
// first failure's message.
bool GenerateKds2019(CZELwDoc& doc, const Kds2019Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_KDS2019_H_
