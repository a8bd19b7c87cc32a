// US code spectra: ATC 3-06, UBC 88-94 and UBC 1997 (from Ca and Cv). The
// automatic UBC 1997 coefficients are in ubc97_coefficients.h.
#ifndef ZEL_CORE_CODES_US_CODES_H_
#define ZEL_CORE_CODES_US_CODES_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// Soil factor S of ATC 3-06 and UBC 88-94 by radio button. S2 is 1.2 held in
// single precision: the UBC 88-94 shape is chosen by exact comparison with it.
inline constexpr std::array<double, 3> kSoilFactors = {1.0, 1.2000000476837158,
                                                       1.5};
inline constexpr std::array<const char*, 3> kSoilFactorTexts = {
    "S1 (1.0)", "S2 (1.2)", "S3 (1.5)"};

inline constexpr char kAtc306Title[] = "ATC 3-06 Design Spectrum";
inline constexpr char kUbc88Title[] = "UBC 88-94 Design Spectrum";
inline constexpr char kUbc97Title[] = "UBC(1997) Design Spectrum";
inline constexpr char kCaMessage[] = "The value Ca must be greater than zero";
inline constexpr char kCvMessage[] = "The value Cv must be greater than zero";

struct Atc306Params {
  int soil = 0;  // index into kSoilFactors
  double aa = 1.0;
  double av = 1.0;
  double r = 1.0;
  PeriodGrid grid;
};

struct Ubc88Params {
  int soil = 0;  // index into kSoilFactors
  double z = 1.0;
  double importance = 1.0;
  double rw = 1.0;
  PeriodGrid grid;
};

// The UBC(1997) dialog's fields. Ca and Cv are what the spectrum uses; the
// automatic data only decide how the dialog fills them. The defaults are the
// automatic values of zone 4, soil Sd, source type B at 10 km.
struct Ubc97Params {
  enum Option { kAutomatic = 0, kUserDefined = 1 };
  int option = kAutomatic;
  double ca = 0.44;
  double cv = 0.64;
  double importance = 1.0;
  double r = 1.0;
  int zone = 4;            // 0..4: Zone1, Zone2A, Zone2B, Zone3, Zone4
  int soil = 3;            // 0..4: Sa..Se
  int source = 1;          // 0..2: A, B, C
  double distance = 10.0;  // km, to the closest known seismic source
  PeriodGrid grid;
};

// The curves alone, over a grid already checked, corners included.
std::vector<SpectrumPoint> Atc306Spectrum(const Atc306Params& params);
std::vector<SpectrumPoint> Ubc88Spectrum(const Ubc88Params& params);
std::vector<SpectrumPoint> Ubc97Spectrum(const Ubc97Params& params);

std::string Atc306Label(const Atc306Params& params);
std::string Ubc88Label(const Ubc88Params& params);
std::string Ubc97Label(const Ubc97Params& params);

// Copy the grid into `doc`, validate in the fixed order (grid first), and
// fill the new document. On failure show the first message only, leave `doc`
// empty and return false.
bool GenerateAtc306(CZELwDoc& doc, const Atc306Params& params,
                    MessageSink& messages);
bool GenerateUbc88(CZELwDoc& doc, const Ubc88Params& params,
                   MessageSink& messages);
bool GenerateUbc97(CZELwDoc& doc, const Ubc97Params& params,
                   MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_US_CODES_H_
