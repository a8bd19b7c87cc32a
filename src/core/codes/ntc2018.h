// NTC 2018 (Italian building code) response spectra: horizontal and vertical,
// elastic and design. The soil factor S and the corner periods Tb, Tc and Td
// follow from the ground type, the topographic category and the site's
// hazard values ag, Fo and Tc*, unless the user defines them.
#ifndef ZEL_CORE_CODES_NTC2018_H_
#define ZEL_CORE_CODES_NTC2018_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kNtc2018Caption[] = "NTC2018";
inline constexpr std::array<const char*, 4> kNtc2018Types = {
    "Horizontal Elastic Spectrum", "Vertical Elastic Spectrum",
    "Horizontal Design Spectrum", "Vertical Design Spectrum"};
inline constexpr std::array<const char*, 4> kNtc2018Titles = {
    "NTC2018 H-ELASTIC", "NTC2018 V-ELASTIC", "NTC2018 H-DESIGN",
    "NTC2018 V-DESIGN"};
inline constexpr std::array<const char*, 5> kNtc2018GroundTypes = {
    "A", "B", "C", "D", "E"};
inline constexpr std::array<const char*, 5> kNtc2018Topographies = {
    "T1", "T2", "T3", "T4", "User Defined"};

struct Ntc2018Params {
  static constexpr int kUserDefined = 4;  // topography: S, Tb, Tc, Td typed
  int type = 0;                           // index into kNtc2018Types
  int ground = 1;                         // 0..4: A..E
  int topography = 0;                     // 0..3: T1..T4, or kUserDefined
  double s = 1.2;
  double tb = 0.15;  // s
  double tc = 0.5;   // s
  double td = 2.0;   // s
  double ag = 0.08;  // g
  double fo = 2.5;
  double tc_star = 0.3;  // s
  double xi = 5.0;       // damping ratio, percent
  double q = 1.5;
  PeriodGrid grid;
};

bool Ntc2018IsElastic(int type);
bool Ntc2018IsVertical(int type);

// The dialog's parameter refresh: S, Tb, Tc and Td of the vertical table,
// or from the ground type, topography, ag, Fo and Tc* for the horizontal
// spectra. False, changing nothing, when the user defines them (or a
// selection is out of range).
bool Ntc2018Refresh(Ntc2018Params& params);

std::vector<SpectrumPoint> Ntc2018Spectrum(const Ntc2018Params& params);
std::string Ntc2018Label(const Ntc2018Params& params);

// Validates the code's fields, then the grid, in the code's order, and hands
// the curve over to `doc`; false after the first failure's message.
bool GenerateNtc2018(CZELwDoc& doc, const Ntc2018Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_NTC2018_H_
