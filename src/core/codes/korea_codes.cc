#include "core/codes/korea_codes.h"

#include <cmath>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

double Square(double x) { return x * x; }

// The three codes' labels differ only in the name of the second value: the
// acceleration (EPA) or the earthquake area's coefficient (Area).
std::string KoreaLabel(double soil, const char* name, double value,
                       double importance, double r) {
  return CFormat("Soil = %3.1f  %s = %4.2f  OIF = %4.2f  RMC = %4.2f", soil,
                 name, value, importance, r);
}

}  // namespace

std::vector<SpectrumPoint> Korea1992Spectrum(const Korea1992Params& p) {
  if (!IsChoiceIndex(kKorea1992SoilFactors, p.soil)) return {};
  const double s = kKorea1992SoilFactors[p.soil];
  // On S1 the 1.5 cap of C ends the plateau; on softer soils the 1.75 cap
  // of C S does.
  const SpectrumPoint corner =
      s != 1.0 ? SpectrumPoint{Square(s / 1.75 / 1.2),
                               1.75 * p.epa * p.importance / p.r}
               : SpectrumPoint{kKorea1992S1Corner,
                               1.5 * s * p.epa * p.importance / p.r};
  return SampleSpectrum(
      p.grid, {&corner, 1}, CornerRule::kPastPreviousPeriod, [&](double t) {
        t = MoveAwayFromZero(t);
        double c = 1.0 / (1.2 * std::sqrt(t));
        if (c > 1.5) c = 1.5;
        double sc = c * s;
        if (sc > 1.75) sc = 1.75;
        return SpectrumPoint{t, sc * p.epa * p.importance / p.r};
      });
}

std::vector<SpectrumPoint> Korea2000Spectrum(const Korea2000Params& p) {
  if (!IsChoiceIndex(kKorea2000SoilFactors, p.soil) ||
      !IsChoiceIndex(kKorea2000AreaCoefficients, p.area)) {
    return {};
  }
  const double s = kKorea2000SoilFactors[p.soil];
  const double a = kKorea2000AreaCoefficients[p.area];
  const SpectrumPoint corner = {Square(s / 1.75 / 1.2),
                                1.75 * a * p.importance / p.r};
  return SampleSpectrum(p.grid, {&corner, 1}, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          t = MoveAwayFromZero(t);
                          double c = s / (1.2 * std::sqrt(t));
                          if (c > 1.75) c = 1.75;
                          return SpectrumPoint{t, c * a * p.importance / p.r};
                        });
}

std::vector<SpectrumPoint> KoreaBridgeSpectrum(const KoreaBridgeParams& p) {
  if (!IsChoiceIndex(kKoreaBridgeSoilFactors, p.soil)) return {};
  const double s = kKoreaBridgeSoilFactors[p.soil];
  // The cap 2.5 A I is not divided by R: R lowers the descending branch
  // only and so moves the corner.
  const double cap = 2.5 * p.area * p.importance;
  const double tc = std::pow(1.2 * s / (2.5 * p.r), 1.5);
  const SpectrumPoint corner = {
      tc, 1.2 * p.area * p.importance * s / (p.r * std::pow(tc, 2.0 / 3.0))};
  return SampleSpectrum(
      p.grid, {&corner, 1}, CornerRule::kPastPreviousPeriod, [&](double t) {
        double csm;
        if (t <= 0.0) {
          // The branch is infinite at T = 0 and capped there, whatever the
          // signs of the parameters.
          csm = cap;
        } else if (t <= 4.0) {
          csm =
              1.2 * p.area * p.importance * s / (p.r * std::pow(t, 2.0 / 3.0));
          // Negated so that the 0 / 0 of a zero coefficient and R is capped.
          if (!(csm <= cap)) csm = cap;
        } else {
          csm =
              3.0 * p.area * p.importance * s / (p.r * std::pow(t, 4.0 / 3.0));
        }
        return SpectrumPoint{t, csm};
      });
}

std::string Korea1992Label(const Korea1992Params& p) {
  return KoreaLabel(ChoiceValue(kKorea1992SoilFactors, p.soil), "EPA", p.epa,
                    p.importance, p.r);
}

std::string Korea2000Label(const Korea2000Params& p) {
  return KoreaLabel(ChoiceValue(kKorea2000SoilFactors, p.soil), "Area",
                    ChoiceValue(kKorea2000AreaCoefficients, p.area),
                    p.importance, p.r);
}

std::string KoreaBridgeLabel(const KoreaBridgeParams& p) {
  return KoreaLabel(ChoiceValue(kKoreaBridgeSoilFactors, p.soil), "Area",
                    p.area, p.importance, p.r);
}

bool GenerateKorea1992(CZELwDoc& doc, const Korea1992Params& p,
                       MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kKorea1992SoilFactors, p.soil, kKoreaSoilLabel, messages) ||
      !CheckPrintableParameters(
          {{"EPA", p.epa}, {"OIF", p.importance}, {"RMC", p.r}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kKorea1992Title, Korea1992Label(p),
                              Korea1992Spectrum(p), messages);
}

bool GenerateKorea2000(CZELwDoc& doc, const Korea2000Params& p,
                       MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kKorea2000SoilFactors, p.soil, kKoreaSoilLabel, messages) ||
      !CheckChoice(kKorea2000AreaCoefficients, p.area, kKorea2000AreaLabel,
                   messages) ||
      !CheckPrintableParameters({{"I", p.importance}, {"R", p.r}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kKorea2000Title, Korea2000Label(p),
                              Korea2000Spectrum(p), messages);
}

bool GenerateKoreaBridge(CZELwDoc& doc, const KoreaBridgeParams& p,
                         MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kKoreaBridgeSoilFactors, p.soil, kKoreaSoilLabel,
                   messages) ||
      !CheckPrintableParameters(
          {{"Ar", p.area}, {"R", p.r}, {"I", p.importance}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kKoreaBridgeTitle, KoreaBridgeLabel(p),
                              KoreaBridgeSpectrum(p), messages,
                              kKoreaBridgeAxisTitle);
}

}  // namespace zel
