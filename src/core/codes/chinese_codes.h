// Chinese code spectra: the seismic influence coefficient of GB50011-2001
// (buildings) and the dynamic coefficient times the horizontal seismic
// coefficient of the bridge codes JTJ004-89 (highway) and GBJ111-87
// (railway).
#ifndef ZEL_CORE_CODES_CHINESE_CODES_H_
#define ZEL_CORE_CODES_CHINESE_CODES_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

inline constexpr char kGb50011Title[] = "Ch2001";
inline constexpr char kJtj004Title[] = "China(JTJ004-89)";
inline constexpr char kGbj111Title[] = "China(GBJ111-87) Design Spectrum";

inline constexpr std::array<const char*, 4> kChineseSiteClasses = {"I", "II",
                                                                   "III", "IV"};

// GB50011-2001: fortification intensity (with its design basic
// acceleration), earthquake class, near source category and site class.
inline constexpr std::array<const char*, 6> kGb50011Intensities = {
    "6(0.05g)", "7(0.10g)", "7(0.15g)", "8(0.20g)", "8(0.30g)", "9(0.40g)"};
inline constexpr std::array<const char*, 2> kGb50011EarthquakeClasses = {
    "Frequent E.Q.", "Scarce E.Q."};
inline constexpr std::array<const char*, 3> kGb50011Categories = {"1", "2",
                                                                  "3"};

// JTJ004-89 and GBJ111-87: basic intensity 7, 8 or 9.
inline constexpr std::array<const char*, 3> kBridgeIntensities = {"7", "8",
                                                                  "9"};
// JTJ004-89 importance factor Ci and general effect factor Cz, as listed.
inline constexpr std::array<const char*, 4> kJtj004CiTexts = {"0.6", "1.0",
                                                              "1.3", "1.7"};
inline constexpr std::array<const char*, 5> kJtj004CzTexts = {
    "0.20", "0.25", "0.30", "0.33", "0.35"};

struct Gb50011Params {
  enum EarthquakeClass { kFrequent = 0, kScarce = 1 };
  int intensity = 0;  // index into kGb50011Intensities
  int earthquake = kFrequent;
  int category = 0;       // near source category - 1
  int site = 0;           // I..IV
  double tg = 0.25;       // design characteristic period (s)
  double damping = 0.05;  // ratio of critical
  PeriodGrid grid;
};

struct Jtj004Params {
  int intensity = 0;  // index into kBridgeIntensities
  double kh = 0.1;    // horizontal seismic coefficient
  int site = 0;       // I..IV
  double tg = 0.2;    // design characteristic period (s)
  int ci = 1;         // index into kJtj004CiTexts
  int cz = 2;         // index into kJtj004CzTexts
  double mu = 0.8;    // site estimation coefficient
  double k = 0.98;    // decay exponent as the dialog shows it: 0.9 + 0.1 mu
  PeriodGrid grid;
};

struct Gbj111Params {
  int intensity = 0;  // index into kBridgeIntensities
  double kh = 0.1;    // horizontal seismic coefficient
  int site = 0;       // I..IV
  double tg1 = 0.2;   // end of the plateau (s)
  double tg2 = 1.0;   // start of the 0.45 floor as the dialog shows it: 5 Tg1
  double cz = 1.0;    // general effect factor
  PeriodGrid grid;
};

// The damping adjustments of GB50011-2001 for a damping ratio zeta: decay
// exponent gamma, slope eta1 of the linear tail, and plateau factor eta2.
struct Gb50011Damping {
  double gamma;
  double eta1;
  double eta2;
};
Gb50011Damping Gb50011DampingFor(double zeta);

// Maximum influence coefficient by intensity index and earthquake class.
double Gb50011AlphaMax(int intensity, int earthquake);
// The Tg the dialog suggests: by near source category and site class, 0.05
// more for scarce earthquakes of intensity 8 and above.
double Gb50011SuggestedTg(int intensity, int earthquake, int category,
                          int site);
// Kh suggested for basic intensity 7, 8, 9 (index 0..2).
double BridgeSuggestedKh(int intensity);
// JTJ004-89: the Tg and the site estimation coefficient suggested by site
// class (I..IV).
double Jtj004SuggestedTg(int site);
double Jtj004SuggestedMu(int site);
// GBJ111-87: the Tg1 suggested by site class (I..IV).
double Gbj111SuggestedTg1(int site);

// The curves alone, over a grid already checked, corners included.
std::vector<SpectrumPoint> Gb50011Spectrum(const Gb50011Params& params);
std::vector<SpectrumPoint> Jtj004Spectrum(const Jtj004Params& params);
std::vector<SpectrumPoint> Gbj111Spectrum(const Gbj111Params& params);

std::string Gb50011Label(const Gb50011Params& params);
std::string Jtj004Label(const Jtj004Params& params);
std::string Gbj111Label(const Gbj111Params& params);

// Copy the grid into `doc`, validate (the code's own checks, then the grid)
// and fill the new document. On failure show the first message only, leave
// `doc` empty and return false.
bool GenerateGb50011(CZELwDoc& doc, const Gb50011Params& params,
                     MessageSink& messages);
bool GenerateJtj004(CZELwDoc& doc, const Jtj004Params& params,
                    MessageSink& messages);
bool GenerateGbj111(CZELwDoc& doc, const Gbj111Params& params,
                    MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_CHINESE_CODES_H_
