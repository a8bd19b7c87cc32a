// Eurocode 8 (ENV 1998, 1996) spectra: the design spectrum, divided by the
// behaviour factor q and bounded below by 0.2 alpha, and the elastic
// spectrum with its damping correction eta. Both share the four-branch shape
// with the soil class's S, beta0 and corner periods TB, TC and TD.
#ifndef ZEL_CORE_CODES_EUROCODE8_1996_H_
#define ZEL_CORE_CODES_EUROCODE8_1996_H_

#include <array>
#include <string>
#include <vector>

#include "core/codes/period_grid.h"
#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

struct Ec8SoilClass {
  const char* letter;  // as the label prints it
  double s;
  double beta0;
  double tb;
  double tc;
  double td;
};

inline constexpr std::array<Ec8SoilClass, 3> kEc8SoilClasses = {{
    {"A", 1.0, 2.5, 0.1, 0.4, 3.0},
    {"B", 1.0, 2.5, 0.15, 0.6, 3.0},
    {"C", 0.9, 2.5, 0.2, 0.8, 3.0},
}};
inline constexpr char kEc8SoilLabel[] = "Soil Class (S)";
inline constexpr std::array<const char*, 3> kEc8SoilTexts = {"A(1.0)", "B(1.0)",
                                                             "C(0.9)"};

// Exponents of the branches beyond TC (k1) and TD (k2).
inline constexpr double kEc8DesignK1 = 2.0 / 3.0;  // 0.6666666666666666
inline constexpr double kEc8DesignK2 = 5.0 / 3.0;  // 1.6666666666666667
inline constexpr double kEc8ElasticK1 = 1.0;
inline constexpr double kEc8ElasticK2 = 2.0;

// Ductility class factor kD of DC "H", "M" and "L", and the regularity in
// elevation factor kR.
inline constexpr char kEc8DuctilityLabel[] = "Ductility Class (Kd)";
inline constexpr std::array<const char*, 3> kEc8DuctilityTexts = {
    "H (1.0)", "M (0.75)", "L (0.5)"};
inline constexpr std::array<double, 3> kEc8DuctilityFactors = {1.0, 0.75, 0.5};
inline constexpr char kEc8RegularityLabel[] =
    "Structural Regularity in Elevation (Kr)";
inline constexpr std::array<const char*, 2> kEc8RegularityTexts = {
    "Regular(1.0)", "Irregular(0.8)"};
inline constexpr std::array<double, 2> kEc8RegularityFactors = {1.0, 0.8};

inline constexpr char kEc8DesignTitle[] = "EURO1996 DESIGN";
inline constexpr char kEc8ElasticTitle[] = "EURO1996 ELASTIC";
inline constexpr char kEc8DampingMessage[] =
    "Viscous Damping Ratio cannot have negative value";

struct Ec8DesignParams {
  int soil = 0;  // index into kEc8SoilClasses
  double qo = 5.0;
  int ductility = 0;   // index into kEc8DuctilityFactors
  int regularity = 0;  // index into kEc8RegularityFactors
  double kw = 1.0;
  double alpha = 0.2;  // design ground acceleration / g
  PeriodGrid grid;
};

struct Ec8ElasticParams {
  int soil = 0;
  double alpha = 0.2;
  double damping = 5.0;  // viscous damping ratio in percent
  PeriodGrid grid;
};

// q = qo kD kR kW, raised to 1.5 when lower.
double Ec8BehaviourFactor(const Ec8DesignParams& params);
// eta = sqrt(7 / (2 + xi)), raised to 0.7 unless greater.
double Ec8DampingCorrection(double damping_percent);

std::vector<SpectrumPoint> Ec8DesignSpectrum(const Ec8DesignParams& params);
std::vector<SpectrumPoint> Ec8ElasticSpectrum(const Ec8ElasticParams& params);

std::string Ec8DesignLabel(const Ec8DesignParams& params);
std::string Ec8ElasticLabel(const Ec8ElasticParams& params);

// The design spectrum has only the grid checks; the elastic one refuses a
// negative damping ratio before them. False after the first message, `doc`
// left empty.
bool GenerateEc8Design(CZELwDoc& doc, const Ec8DesignParams& params,
                       MessageSink& messages);
bool GenerateEc8Elastic(CZELwDoc& doc, const Ec8ElasticParams& params,
                        MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_CODES_EUROCODE8_1996_H_
