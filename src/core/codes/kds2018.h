// KDS 17 10 00:2018 design spectrum (the common seismic design standard):
// the effective ground acceleration S = Z I from the zone factor and the
// seismic risk factor, site coefficients Fa and Fv read from the KDS 2019
// tables for S2 to S5 (typed by hand for S6), the fixed spectrum of rock
// site S1, and the long-period corner TL = 3 s.
#ifndef ZEL_CORE_CODES_KDS2018_H_
#define ZEL_CORE_CODES_KDS2018_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kKds2018Title[] = "KDS(17-10-00:2018)";
inline constexpr std::array<const char*, 2> kKds2018ZoneItems = {"Zone1(0.11)",
                                                                 "Zone2(0.07)"};
inline constexpr std::array<const char*, 7> kKds2018RiskItems = {
    "0.4", "0.57", "0.73", "1.0", "1.4", "2.0", "2.6"};
inline constexpr std::array<const char*, 6> kKds2018SiteClasses = {
    "S1", "S2", "S3", "S4", "S5", "S6"};
// S1 (rock) has its own spectrum; S6 takes Fa and Fv as typed.
inline constexpr int kKds2018SiteS1 = 0;
inline constexpr int kKds2018SiteS6 = 5;
inline constexpr double kKds2018LongPeriod = 3.0;

// The dialog's fields. The risk factor opens at the first list item, 0.4
// (the 1 the dialog offers matches no item text); Fa and Fv are 0 until a
// site class other than S1 is chosen.
struct Kds2018Params {
  int zone = 0;  // 0: zone I (Z = 0.11), otherwise zone II (Z = 0.07)
  double risk = 0.4;
  int site = 0;  // 0..5: S1..S6
  double fa = 0.0;
  double fv = 0.0;
  PeriodGrid grid;
};

// S = Z I.
double Kds2018EffectiveAcceleration(const Kds2018Params& params);

// The dialog's coefficient refresh: zeros for S1, the typed values for S6,
// the tabulated ones for S2 to S5. False, leaving fa and fv as they were,
// for a site class out of range.
bool Kds2018Refresh(Kds2018Params& params);

// The checks made on OK before any document: the risk factor, Fa and Fv
// ("Error! %s must be positive value."), then the period grid; non-finite
// numbers and a curve that is not a number are refused as well.
bool CheckKds2018(const Kds2018Params& params, MessageSink& messages);

std::vector<SpectrumPoint> Kds2018Spectrum(const Kds2018Params& params);
std::string Kds2018Label(const Kds2018Params& params);

// CheckKds2018, then the curve handed over to `doc`.
bool GenerateKds2018(CZELwDoc& doc, const Kds2018Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_KDS2018_H_
