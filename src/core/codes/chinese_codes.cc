#include "core/codes/chinese_codes.h"

#include <array>
#include <cmath>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

// Site-class tables of the two bridge codes, I..IV: the characteristic
// periods of the JTJ004-89 beta curves (suggested for GBJ111-87's Tg1 as
// well), and their decay exponents 0.98, 0.95, 0.9, 0.9 written as site
// estimation coefficients.
constexpr double kBridgeSiteTg[] = {0.2, 0.3, 0.45, 0.7};
constexpr double kJtj004SiteMu[] = {0.8, 0.5, 0.0, 0.0};

// The beta curve of JTJ004-89 never falls below 0.3 of its 2.25 plateau.
constexpr double kJtj004Floor = 0.3;
constexpr double kJtj004FloorRatio = 0.13333333333333333;  // 0.3 / 2.25

// A selection the dialog cannot make (only a caller bypassing it can).
bool CheckSelection(bool valid, const char* what, MessageSink& messages) {
  if (!valid) messages.Show(CFormat("The selection of %s is not valid", what));
  return valid;
}

// The dialogs' range checks: "The edit value in 'Tg' must be greater than or
// equal to 0.1". Negated comparisons, so that NaN fails the lower bound and
// infinity the upper one.
enum class Bound { kAtLeast, kAbove, kAtMost };

bool CheckEditValue(const char* name, double value, Bound bound, double limit,
                    MessageSink& messages) {
  const char* relation = "greater than or equal to";
  bool ok = value >= limit;
  if (bound == Bound::kAbove) {
    relation = "greater than";
    ok = value > limit;
  } else if (bound == Bound::kAtMost) {
    relation = "less than or equal to";
    ok = !(value > limit);
  }
  if (!ok) {
    messages.Show(
        CFormat("The edit value in '%s' must be %s %g", name, relation, limit));
  }
  return ok;
}

// Beyond these the numbers mean nothing for a design spectrum, and the
// parameter label would no longer fit a line of the data file.
constexpr double kMaxKh = 10.0;      // g
constexpr double kMaxPeriod = 10.0;  // s
constexpr double kMaxCz = 10.0;

bool CheckBridgeSelections(int intensity, int site, MessageSink& messages) {
  return CheckSelection(IsChoiceIndex(kBridgeIntensities, intensity) &&
                            IsChoiceIndex(kChineseSiteClasses, site),
                        "intensity or site class", messages);
}

}  // namespace

Gb50011Damping Gb50011DampingFor(double zeta) {
  Gb50011Damping d;
  d.gamma = 0.9 + (0.05 - zeta) / (0.5 + 5.0 * zeta);
  d.eta1 = 0.02 + (0.05 - zeta) / 8.0;
  if (d.eta1 < 0.0) d.eta1 = 0.0;
  d.eta2 = 1.0 + (0.05 - zeta) / (0.06 + 1.7 * zeta);
  if (d.eta2 < 0.55) d.eta2 = 0.55;
  return d;
}

double Gb50011AlphaMax(int intensity, int earthquake) {
  // Intensity 6 has no scarce-earthquake value: its curve is flat zero.
  static constexpr double kFrequent[] = {0.04, 0.08, 0.12, 0.16, 0.24, 0.32};
  static constexpr double kScarce[] = {0.0, 0.5, 0.72, 0.9, 1.2, 1.4};
  if (!IsChoiceIndex(kGb50011Intensities, intensity)) return 0.0;
  return earthquake == Gb50011Params::kScarce ? kScarce[intensity]
                                              : kFrequent[intensity];
}

double Gb50011SuggestedTg(int intensity, int earthquake, int category,
                          int site) {
  static constexpr double kTg[3][4] = {{0.25, 0.35, 0.45, 0.65},
                                       {0.30, 0.40, 0.55, 0.75},
                                       {0.35, 0.45, 0.65, 0.90}};
  if (!IsChoiceIndex(kGb50011Categories, category) ||
      !IsChoiceIndex(kChineseSiteClasses, site)) {
    return kTg[0][0];
  }
  double tg = kTg[category][site];
  if (earthquake == Gb50011Params::kScarce && intensity >= 3) tg += 0.05;
  return tg;
}

double BridgeSuggestedKh(int intensity) {
  static constexpr double kKh[] = {0.1, 0.2, 0.4};
  return IsChoiceIndex(kBridgeIntensities, intensity) ? kKh[intensity] : kKh[0];
}

double Jtj004SuggestedTg(int site) {
  return IsChoiceIndex(kChineseSiteClasses, site) ? kBridgeSiteTg[site]
                                                  : kBridgeSiteTg[0];
}

double Jtj004SuggestedMu(int site) {
  return IsChoiceIndex(kChineseSiteClasses, site) ? kJtj004SiteMu[site]
                                                  : kJtj004SiteMu[0];
}

double Gbj111SuggestedTg1(int site) { return Jtj004SuggestedTg(site); }

std::vector<SpectrumPoint> Gb50011Spectrum(const Gb50011Params& p) {
  const double alpha_max = Gb50011AlphaMax(p.intensity, p.earthquake);
  const Gb50011Damping d = Gb50011DampingFor(p.damping);
  const double plateau = d.eta2 * alpha_max;
  const double tail_start = 5.0 * p.tg;
  const double tail_value = d.eta2 * std::pow(0.2, d.gamma);
  const SpectrumPoint corners[] = {
      {0.1, plateau},
      {p.tg, plateau},
      {tail_start, plateau * std::pow(0.2, d.gamma)}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kPastPreviousPeriod, [&](double t) {
        double alpha;
        if (t < 0.1) {
          alpha = 0.45 * alpha_max + t * (d.eta2 - 0.45) * alpha_max / 0.1;
        } else if (t < p.tg) {
          alpha = plateau;
        } else if (t < tail_start) {
          alpha = std::pow(p.tg / t, d.gamma) * plateau;
        } else {
          // The straight tail keeps falling, below zero at long periods.
          alpha = (tail_value - d.eta1 * (t - tail_start)) * alpha_max;
        }
        return SpectrumPoint{t, alpha};
      });
}

std::vector<SpectrumPoint> Jtj004Spectrum(const Jtj004Params& p) {
  const double ci = AtoF(ChoiceValue(kJtj004CiTexts, p.ci, ""));
  const double cz = AtoF(ChoiceValue(kJtj004CzTexts, p.cz, ""));
  const double f = ci * cz * p.kh;
  // Where the decaying branch reaches the floor.
  const double te = p.tg / std::pow(kJtj004FloorRatio, 1.0 / p.k);
  const SpectrumPoint corners[] = {
      {0.1, 2.25 * f}, {p.tg, 2.25 * f}, {te, kJtj004Floor * f}};
  return SampleSpectrum(p.grid, corners, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          double beta;
                          if (t < 0.1) {
                            beta = 1.0 + 12.5 * t;
                          } else if (t < p.tg) {
                            beta = 2.25;
                          } else {
                            beta = 2.25 * std::pow(p.tg / t, p.k);
                          }
                          if (beta < kJtj004Floor) beta = kJtj004Floor;
                          return SpectrumPoint{t, beta * f};
                        });
}

std::vector<SpectrumPoint> Gbj111Spectrum(const Gbj111Params& p) {
  const double f = p.cz * p.kh;
  const double c = 2.25 * p.tg1;
  const SpectrumPoint corners[] = {{p.tg1, 2.25 * f}, {p.tg2, 0.45 * f}};
  return SampleSpectrum(p.grid, corners, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          // No rising branch: the plateau starts at T = 0.
                          double beta;
                          if (t < p.tg1) {
                            beta = 2.25;
                          } else if (t < p.tg2) {
                            beta = c / t;
                          } else {
                            beta = 0.45;
                          }
                          return SpectrumPoint{t, beta * f};
                        });
}

std::string Gb50011Label(const Gb50011Params& p) {
  return CFormat("Near Src=%d  Zone=%s  Site=%s  %s  Tg=%4.2fs  Damp.=%4.2f",
                 p.category + 1,
                 ChoiceValue(kGb50011Intensities, p.intensity, ""),
                 ChoiceValue(kChineseSiteClasses, p.site, ""),
                 ChoiceValue(kGb50011EarthquakeClasses, p.earthquake, ""), p.tg,
                 p.damping);
}

std::string Jtj004Label(const Jtj004Params& p) {
  return CFormat("Zone=%s  Kh=%3.1f  Site=%s  Tg=%4.2fs  Ci=%4.2f  Cz=%4.2f",
                 ChoiceValue(kBridgeIntensities, p.intensity, ""), p.kh,
                 ChoiceValue(kChineseSiteClasses, p.site, ""), p.tg,
                 AtoF(ChoiceValue(kJtj004CiTexts, p.ci, "")),
                 AtoF(ChoiceValue(kJtj004CzTexts, p.cz, "")));
}

std::string Gbj111Label(const Gbj111Params& p) {
  return CFormat("Zone=%s  Kh=%4.2f  Site=%s  Tg1=%4.2fs  Cz=%4.2f",
                 ChoiceValue(kBridgeIntensities, p.intensity, ""), p.kh,
                 ChoiceValue(kChineseSiteClasses, p.site, ""), p.tg1, p.cz);
}

bool GenerateGb50011(CZELwDoc& doc, const Gb50011Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!CheckSelection(
          IsChoiceIndex(kGb50011Intensities, p.intensity) &&
              IsChoiceIndex(kGb50011EarthquakeClasses, p.earthquake) &&
              IsChoiceIndex(kGb50011Categories, p.category) &&
              IsChoiceIndex(kChineseSiteClasses, p.site),
          "intensity, earthquake class, near source category or "
          "site class",
          messages)) {
    return false;
  }
  // The code's own checks come before the grid's. The damping ratio is a
  // fraction of critical: below 0 the adjustments divide by zero, and a
  // ratio above 1 is a percentage typed by mistake.
  if (!CheckEditValue("Tg", p.tg, Bound::kAtLeast, 0.1, messages) ||
      !CheckEditValue("Tg", p.tg, Bound::kAtMost, 1.2, messages) ||
      !ValidatePeriodGrid(p.grid, messages) ||
      !CheckEditValue("Damping Ratio", p.damping, Bound::kAtLeast, 0.0,
                      messages) ||
      !CheckEditValue("Damping Ratio", p.damping, Bound::kAtMost, 1.0,
                      messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kGb50011Title, Gb50011Label(p), Gb50011Spectrum(p));
  return true;
}

bool GenerateJtj004(CZELwDoc& doc, const Jtj004Params& p,
                    MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  // The site estimation coefficient runs from soft (0) to hard (1) ground;
  // outside it the exponent no longer describes a decay.
  if (!CheckBridgeSelections(p.intensity, p.site, messages) ||
      !CheckSelection(IsChoiceIndex(kJtj004CiTexts, p.ci) &&
                          IsChoiceIndex(kJtj004CzTexts, p.cz),
                      "Ci or Cz", messages) ||
      !CheckEditValue("Kh", p.kh, Bound::kAtLeast, 0.0, messages) ||
      !CheckEditValue("Tg", p.tg, Bound::kAtLeast, 0.1, messages) ||
      !ValidatePeriodGrid(p.grid, messages) ||
      !CheckEditValue("Kh", p.kh, Bound::kAtMost, kMaxKh, messages) ||
      !CheckEditValue("Tg", p.tg, Bound::kAtMost, kMaxPeriod, messages) ||
      !CheckEditValue("μ", p.mu, Bound::kAtLeast, 0.0, messages) ||
      !CheckEditValue("μ", p.mu, Bound::kAtMost, 1.0, messages) ||
      !CheckFiniteParameters({{"k", p.k}}, messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kJtj004Title, Jtj004Label(p), Jtj004Spectrum(p));
  return true;
}

bool GenerateGbj111(CZELwDoc& doc, const Gbj111Params& p,
                    MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!CheckBridgeSelections(p.intensity, p.site, messages) ||
      !CheckEditValue("Kh", p.kh, Bound::kAtLeast, 0.0, messages) ||
      !CheckEditValue("Tg1", p.tg1, Bound::kAbove, 0.0, messages) ||
      !ValidatePeriodGrid(p.grid, messages) ||
      !CheckEditValue("Kh", p.kh, Bound::kAtMost, kMaxKh, messages) ||
      !CheckEditValue("Tg1", p.tg1, Bound::kAtMost, kMaxPeriod, messages) ||
      !CheckEditValue("Cz", p.cz, Bound::kAtLeast, 0.0, messages) ||
      !CheckEditValue("Cz", p.cz, Bound::kAtMost, kMaxCz, messages) ||
      !CheckFiniteParameters({{"Tg2", p.tg2}}, messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kGbj111Title, Gbj111Label(p), Gbj111Spectrum(p));
  return true;
}

}  // namespace zel
