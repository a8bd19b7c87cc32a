// The Japanese building code of 2000 (zone factor Z, base shear factor Co
// and the soil class's corner period Tc) and the Canadian NBC 1995 (zonal
// velocity ratio v and the seismic response factor S from the acceleration
// and velocity zones).
#ifndef ZEL_CORE_CODES_JAPAN_NBC_CODES_H_
#define ZEL_CORE_CODES_JAPAN_NBC_CODES_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kJapanZoneLabel[] = "Seismic Zone Factor (Z)";
inline constexpr std::array<const char*, 4> kJapanZoneTexts = {
    "1 (1.0)", "2 (0.9)", "3 (0.8)", "4 (0.7)"};
// As the chart's label names the zone.
inline constexpr std::array<const char*, 4> kJapanZoneLabelTexts = {
    "1(1.0)", "2(0.9)", "3(0.8)", "4(0.7)"};
inline constexpr std::array<double, 4> kJapanZoneFactors = {1.0, 0.9, 0.8, 0.7};

inline constexpr char kJapanSoilLabel[] = "Soil Class";
inline constexpr std::array<const char*, 3> kJapanSoilTexts = {"I", "II",
                                                               "III"};
// Corner period Tc of each soil class, and 12 Tc as the code tabulates it.
inline constexpr std::array<double, 3> kJapanCornerPeriods = {0.576, 0.864,
                                                              1.152};
inline constexpr std::array<double, 3> kJapanTwelveTc = {6.912, 10.368, 13.824};
// The end of the rising branch.
inline constexpr double kJapanRiseEnd = 0.16;
// Gravity in m/s^2 as the code divides by it (not 9.80665).
inline constexpr double kJapanGravity = 9.806;

inline constexpr char kJapan2000Title[] = "Japan(Arch.2000) Design Spectrum";

// The zonal velocity ratios offered; any other may be typed.
inline constexpr std::array<const char*, 7> kNbcVelocityRatioItems = {
    "0.00", "0.05", "0.10", "0.15", "0.20", "0.30", "0.40"};
inline constexpr char kNbcGroup[] = "Response Spectrum Parameters";
inline constexpr char kNbcZaLabel[] = "Acceleration Zone (Za) :";
inline constexpr char kNbcZvLabel[] = "Velocity Zone (Zv) :";
// Acceleration and velocity zones 0 to 6.
inline constexpr std::array<const char*, 7> kNbcZoneTexts = {"0", "1", "2", "3",
                                                             "4", "5", "6"};
// The descending branch is 1.2814 / T.
inline constexpr double kNbcDecay = 1.2814;

inline constexpr char kNbc1995Title[] = "NBC(1995) Design Spectrum";

struct Japan2000Params {
  int zone = 0;  // index into kJapanZoneFactors
  int soil = 1;  // index into kJapanCornerPeriods
  double co = 0.2;
  PeriodGrid grid;
};

// The defaults are Vancouver's: Za = Zv = 4, v = 0.20.
struct Nbc1995Params {
  double v = 0.2;
  int za = 4;  // position in kNbcZoneTexts
  int zv = 4;
  PeriodGrid grid;
};

// S: 4.2 when Za > Zv, 3.0 when they are equal, 2.1 when Za < Zv.
double NbcPlateauFactor(int za, int zv);

// The curves over a grid already checked, corners included; empty for a
// choice index out of range.
std::vector<SpectrumPoint> Japan2000Spectrum(const Japan2000Params& params);
std::vector<SpectrumPoint> Nbc1995Spectrum(const Nbc1995Params& params);

std::string Japan2000Label(const Japan2000Params& params);
std::string Nbc1995Label(const Nbc1995Params& params);

// The grid checks (neither code has its own), then the curve into `doc`;
// false after the first failure's message, `doc` left empty.
bool GenerateJapan2000(CZELwDoc& doc, const Japan2000Params& params,
                       MessageSink& messages);
bool GenerateNbc1995(CZELwDoc& doc, const Nbc1995Params& params,
                     MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_JAPAN_NBC_CODES_H_
