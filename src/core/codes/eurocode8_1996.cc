#include "core/codes/eurocode8_1996.h"

#include <cmath>
#include <limits>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

// The four branches shared by both spectra: a rise from alpha S at T = 0 to
// alpha S peak at TB, the plateau up to TC, (TC / T)^k1 up to TD and
// (TD / T)^k2 beyond, the last two bounded below by `floor`.
struct Ec8Shape {
  Ec8SoilClass soil;
  double alpha;
  double peak;     // beta0 / q (design) or eta beta0 (elastic)
  double plateau;  // alpha S times peak, in the code's own order
  double k1;
  double k2;
  double floor;

  double Bounded(double sa) const { return sa < floor ? floor : sa; }
  double At(double t) const {
    if (t < soil.tb)
      return alpha * soil.s * (1.0 + (t / soil.tb) * (peak - 1.0));
    if (t < soil.tc) return plateau;
    if (t < soil.td) return Bounded(plateau * std::pow(soil.tc / t, k1));
    return Bounded(plateau * std::pow(soil.tc / soil.td, k1) *
                   std::pow(soil.td / t, k2));
  }
};

const char* SoilLetter(int soil) {
  return IsChoiceIndex(kEc8SoilClasses, soil) ? kEc8SoilClasses[soil].letter
                                              : "";
}

std::vector<SpectrumPoint> Sample(const PeriodGrid& grid,
                                  const Ec8Shape& shape) {
  const SpectrumPoint corners[] = {{shape.soil.tb, shape.plateau},
                                   {shape.soil.tc, shape.plateau},
                                   {shape.soil.td, shape.At(shape.soil.td)}};
  return SampleSpectrum(grid, corners, CornerRule::kPastPreviousPeriod,
                        [&shape](double t) {
                          return SpectrumPoint{t, shape.At(t)};
                        });
}

}  // namespace

double Ec8BehaviourFactor(const Ec8DesignParams& p) {
  const double q = p.qo * ChoiceValue(kEc8DuctilityFactors, p.ductility) *
                   ChoiceValue(kEc8RegularityFactors, p.regularity) * p.kw;
  return q < 1.5 ? 1.5 : q;
}

double Ec8DampingCorrection(double damping_percent) {
  const double eta = std::sqrt(7.0 / (2.0 + damping_percent));
  return eta > 0.7 ? eta : 0.7;
}

std::vector<SpectrumPoint> Ec8DesignSpectrum(const Ec8DesignParams& p) {
  if (!IsChoiceIndex(kEc8SoilClasses, p.soil)) return {};
  const Ec8SoilClass& soil = kEc8SoilClasses[p.soil];
  const double q = Ec8BehaviourFactor(p);
  const Ec8Shape shape = {soil,           p.alpha,
                          soil.beta0 / q, p.alpha * soil.s * soil.beta0 / q,
                          kEc8DesignK1,   kEc8DesignK2,
                          0.2 * p.alpha};
  return Sample(p.grid, shape);
}

std::vector<SpectrumPoint> Ec8ElasticSpectrum(const Ec8ElasticParams& p) {
  if (!IsChoiceIndex(kEc8SoilClasses, p.soil)) return {};
  const Ec8SoilClass& soil = kEc8SoilClasses[p.soil];
  const double eta = Ec8DampingCorrection(p.damping);
  const Ec8Shape shape = {soil,
                          p.alpha,
                          eta * soil.beta0,
                          p.alpha * soil.s * eta * soil.beta0,
                          kEc8ElasticK1,
                          kEc8ElasticK2,
                          -std::numeric_limits<double>::infinity()};
  return Sample(p.grid, shape);
}

std::string Ec8DesignLabel(const Ec8DesignParams& p) {
  return CFormat(
      "Soil = %s  qo = %3.1f  Kd = %4.2f  Kr = %4.2f  Kw = %4.2f  Alpha = "
      "%5.3f",
      SoilLetter(p.soil), p.qo, ChoiceValue(kEc8DuctilityFactors, p.ductility),
      ChoiceValue(kEc8RegularityFactors, p.regularity), p.kw, p.alpha);
}

std::string Ec8ElasticLabel(const Ec8ElasticParams& p) {
  return CFormat("Soil = %s  Acc. = %5.3fg  Damping = %5.3f",
                 SoilLetter(p.soil), p.alpha, p.damping);
}

bool GenerateEc8Design(CZELwDoc& doc, const Ec8DesignParams& p,
                       MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kEc8SoilClasses, p.soil, kEc8SoilLabel, messages) ||
      !CheckChoice(kEc8DuctilityFactors, p.ductility, kEc8DuctilityLabel,
                   messages) ||
      !CheckChoice(kEc8RegularityFactors, p.regularity, kEc8RegularityLabel,
                   messages) ||
      !CheckPrintableParameters(
          {{"qo", p.qo}, {"Kw", p.kw}, {"Alpha", p.alpha}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kEc8DesignTitle, Ec8DesignLabel(p),
                              Ec8DesignSpectrum(p), messages);
}

bool GenerateEc8Elastic(CZELwDoc& doc, const Ec8ElasticParams& p,
                        MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (p.damping < 0.0) {
    messages.Show(kEc8DampingMessage);
    return false;
  }
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kEc8SoilClasses, p.soil, kEc8SoilLabel, messages) ||
      !CheckPrintableParameters({{"Alpha", p.alpha}, {"Damping", p.damping}},
                                messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kEc8ElasticTitle, Ec8ElasticLabel(p),
                              Ec8ElasticSpectrum(p), messages);
}

}  // namespace zel
