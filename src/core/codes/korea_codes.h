// Korean classic code spectra: the building codes of 1992 and 2000 and the
// bridge code (Csm / R). Each scales a soil-dependent shape by the seismic
// coefficient A, the importance factor I and the response modification
// factor R.
#ifndef ZEL_CORE_CODES_KOREA_CODES_H_
#define ZEL_CORE_CODES_KOREA_CODES_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// Soil factor S by radio button; the 1992 code offers only S1 to S3. The
// 1992 and bridge dialogs keep S2 as the single-precision 1.2, the 2000
// dialog as the exact double.
inline constexpr char kKoreaSoilLabel[] = "Soil Profile Type";
inline constexpr std::array<const char*, 4> kKoreaSoilTexts = {
    "S1 (1.0)", "S2 (1.2)", "S3 (1.5)", "S4 (2.0)"};
inline constexpr std::array<double, 3> kKorea1992SoilFactors = {
    1.0, 1.2000000476837158, 1.5};
inline constexpr std::array<double, 4> kKorea2000SoilFactors = {1.0, 1.2, 1.5,
                                                                2.0};
inline constexpr std::array<double, 4> kKoreaBridgeSoilFactors = {
    1.0, 1.2000000476837158, 1.5, 2.0};

// Seismic coefficient of the 2000 code's earthquake areas.
inline constexpr char kKorea2000AreaLabel[] = "Earthquake Area";
inline constexpr std::array<const char*, 2> kKorea2000AreaTexts = {
    "Area 1 (0.11)", "Area 2 (0.07)"};
inline constexpr std::array<double, 2> kKorea2000AreaCoefficients = {0.11,
                                                                     0.07};

// On S1 the 1992 plateau 1.5 ends where 1 / (1.2 sqrt(T)) falls to 1.5,
// at 1 / 3.24 s, kept in single precision.
inline constexpr double kKorea1992S1Corner = 0.3086400032043457;

inline constexpr char kKorea1992Title[] = "Korea(Arch.1992) Design Spectrum";
inline constexpr char kKorea2000Title[] = "Korea(Arch.2000) Design Spectrum";
inline constexpr char kKoreaBridgeTitle[] = "Korea(Bridge) Design Spectrum";
// The bridge spectrum is the elastic seismic coefficient divided by R.
inline constexpr char kKoreaBridgeAxisTitle[] = "Csm/R";

struct Korea1992Params {
  int soil = 0;  // index into kKorea1992SoilFactors
  double epa = 1.0;
  double importance = 1.0;  // OIF
  double r = 1.0;           // RMC
  PeriodGrid grid;
};

struct Korea2000Params {
  int soil = 0;  // index into kKorea2000SoilFactors
  int area = 0;  // index into kKorea2000AreaCoefficients
  double importance = 1.0;
  double r = 1.0;
  PeriodGrid grid;
};

struct KoreaBridgeParams {
  int soil = 0;                       // index into kKoreaBridgeSoilFactors
  double area = 0.10999999940395355;  // Ar, 0.11 in single precision
  double r = 1.0;
  double importance = 1.0;
  PeriodGrid grid;
};

// The curves over a grid already checked, corners included; empty for a
// choice index out of range.
std::vector<SpectrumPoint> Korea1992Spectrum(const Korea1992Params& params);
std::vector<SpectrumPoint> Korea2000Spectrum(const Korea2000Params& params);
std::vector<SpectrumPoint> KoreaBridgeSpectrum(const KoreaBridgeParams& params);

std::string Korea1992Label(const Korea1992Params& params);
std::string Korea2000Label(const Korea2000Params& params);
std::string KoreaBridgeLabel(const KoreaBridgeParams& params);

// The grid checks (these codes have none of their own), then the curve into
// `doc`; false after the first failure's message, `doc` left empty.
bool GenerateKorea1992(CZELwDoc& doc, const Korea1992Params& params,
                       MessageSink& messages);
bool GenerateKorea2000(CZELwDoc& doc, const Korea2000Params& params,
                       MessageSink& messages);
bool GenerateKoreaBridge(CZELwDoc& doc, const KoreaBridgeParams& params,
                         MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_KOREA_CODES_H_
