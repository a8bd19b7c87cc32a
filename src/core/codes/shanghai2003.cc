#include "core/codes/shanghai2003.h"

#include <cmath>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

// Rows: frequent, scarce earthquake; columns: intensity 6, 7, 8. No
// scarce-earthquake value is given for intensity 6.
constexpr double kAlphaMax[2][3] = {{0.04, 0.08, 0.16}, {0.0, 0.45, 0.81}};
constexpr double kFirstCorner = 0.1;

}  // namespace

double Shanghai2003Tg(int site, int effect) {
  if (effect != 0) return 1.1;
  return site == 0 ? 0.65 : 0.9;
}

Shanghai2003Coefficients ComputeShanghai2003Coefficients(
    const Shanghai2003Params& p) {
  const double z = p.damping;
  Shanghai2003Coefficients c;
  c.gamma = 0.9 + (0.05 - z) / (0.5 + 5.0 * z);
  c.eta1 = 0.02 * (1.0 + (0.05 - z) / (0.06 + 2.4 * z));
  if (c.eta1 < 0.0) c.eta1 = 0.0;
  c.eta2 = 1.0 + (0.05 - z) / (0.06 + 1.7 * z);
  if (c.eta2 < 0.55) c.eta2 = 0.55;
  if (p.effect >= 0 && p.effect <= 1 && p.intensity >= 0 && p.intensity <= 2) {
    c.alpha_max = kAlphaMax[p.effect][p.intensity];
  }
  return c;
}

std::vector<SpectrumPoint> Shanghai2003Spectrum(const Shanghai2003Params& p) {
  const Shanghai2003Coefficients c = ComputeShanghai2003Coefficients(p);
  const double a = c.alpha_max;
  // A zero maximum (scarce, intensity 6) is a zero curve, whatever extreme
  // damping does to the other factors.
  if (a == 0.0) {
    return SampleSpectrum(p.grid, {}, CornerRule::kInsideStep, [](double t) {
      return SpectrumPoint{t, 0.0};
    });
  }
  const double tg = p.tg;
  const double t_end = kShanghai2003LastPeriod;
  const double decayed = std::pow(0.2, c.gamma);  // at 5 Tg
  const double beyond = (c.eta2 * decayed - c.eta1 * (t_end - 5.0 * tg)) * a;
  const SpectrumPoint corners[] = {{kFirstCorner, c.eta2 * a},
                                   {tg, c.eta2 * a},
                                   {5.0 * tg, c.eta2 * a * decayed},
                                   {t_end, beyond}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kInsideStep, [&](double t) {
        double alpha;
        if (t < kFirstCorner) {
          alpha = 0.45 * a + t * (c.eta2 - 0.45) * a / kFirstCorner;
        } else if (t < tg) {
          alpha = c.eta2 * a;
        } else if (t < 5.0 * tg) {
          alpha = c.eta2 * a * std::pow(tg / t, c.gamma);
        } else if (t <= t_end) {
          alpha = (c.eta2 * decayed - c.eta1 * (t - 5.0 * tg)) * a;
        } else {
          alpha = beyond;
        }
        return SpectrumPoint{t, alpha};
      });
}

std::string Shanghai2003Label(const Shanghai2003Params& p) {
  return CFormat("ChSh2003: Zone=%s, Site=%s, %s, Tg=%4.2fs, Damp.=%4.2f",
                 ChoiceValue(kShanghai2003Intensities, p.intensity, ""),
                 ChoiceValue(kShanghai2003SiteClasses, p.site, ""),
                 ChoiceValue(kShanghai2003Effects, p.effect, ""), p.tg,
                 p.damping);
}

bool GenerateShanghai2003(CZELwDoc& doc, const Shanghai2003Params& p,
                          MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckPrintableParameters({{"Tg", p.tg}, {"Damping Ratio", p.damping}},
                                messages)) {
    return false;
  }
  return HandOverDefinedSpectrum(doc, Shanghai2003Spectrum(p),
                                 kShanghai2003Title, Shanghai2003Label(p),
                                 messages);
}

}  // namespace zel
