#include "core/codes/kds2018.h"

#include "core/codes/design_document.h"
#include "core/codes/kds2019.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

// Rock (S1) has fixed corners and no site coefficients.
constexpr double kRockT0 = 0.06;
constexpr double kRockTs = 0.3;

bool NotPositive(const char* name, MessageSink& messages) {
  messages.Show(CFormat("Error! %s must be positive value.", name));
  return false;
}

}  // namespace

double Kds2018EffectiveAcceleration(const Kds2018Params& p) {
  return (p.zone == 0 ? 0.11 : 0.07) * p.risk;
}

bool Kds2018Refresh(Kds2018Params& p) {
  if (!IsChoiceIndex(kKds2018SiteClasses, p.site)) return false;
  if (p.site == kKds2018SiteS1) {
    p.fa = 0.0;
    p.fv = 0.0;
  } else if (p.site != kKds2018SiteS6) {
    // S2 to S5 share their rows with the KDS 2019 tables.
    const double s = Kds2018EffectiveAcceleration(p);
    double fa = 0.0;
    double fv = 0.0;
    if (!Kds2019Fa(p.site, s, fa) || !Kds2019Fv(p.site, s, fv)) return false;
    p.fa = fa;
    p.fv = fv;
  }
  return true;
}

bool CheckKds2018(const Kds2018Params& p, MessageSink& messages) {
  // The two blanks after "I" are those of the message the engineers know.
  if (!(p.risk > 0.0)) return NotPositive("I ", messages);
  if (p.site == kKds2018SiteS6) {
    if (!(p.fa > 0.0)) return NotPositive("Fa", messages);
    if (!(p.fv > 0.0)) return NotPositive("Fv", messages);
  } else {
    // S1's zero coefficients pass.
    if (p.fa < 0.0) return NotPositive("Fa", messages);
    if (p.fv < 0.0) return NotPositive("Fv", messages);
  }
  return ValidatePeriodGrid(p.grid, messages) &&
         CheckPrintableParameters({{"I", p.risk}, {"Fa", p.fa}, {"Fv", p.fv}},
                                  messages) &&
         CheckDefinedSpectrum(Kds2018Spectrum(p), messages);
}

std::vector<SpectrumPoint> Kds2018Spectrum(const Kds2018Params& p) {
  std::vector<SpectrumPoint> points;
  if (p.grid.steps < 1 || p.grid.steps > kMaxPeriodSteps) return points;
  const double s = Kds2018EffectiveAcceleration(p);
  const bool rock = p.site == kKds2018SiteS1;
  const double ts = rock ? kRockTs : (p.fa == 0.0 ? 0.0 : p.fv / (2.5 * p.fa));
  const double t0 = rock ? kRockT0 : 0.2 * ts;
  const double tl = kKds2018LongPeriod;
  const double plateau = rock ? 2.8 * s : 2.5 * p.fa * s;
  const auto sa = [&](double t) {
    if (t <= t0) {
      if (rock) return s * (1.0 + 30.0 * t);
      // T0 = 0 (no Fa) leaves the single period T = 0 on this branch.
      return (p.fa * s) * (t0 > 0.0 ? 1.0 + 1.5 * t / t0 : 1.0);
    }
    if (t <= ts) return plateau;
    if (t <= tl) return rock ? 0.84 * s / t : p.fv * s / t;
    return rock ? 2.52 * s / (t * t) : p.fv * s * tl / (t * t);
  };
  const double h = GridSpacing(p.grid);
  const double e = CornerTolerance(p.grid);
  points.reserve(static_cast<std::size_t>(p.grid.steps) + 3);
  for (int i = 0; i <= p.grid.steps; ++i) {
    const double t = p.grid.from + h * i;
    double value = sa(t);
    for (const double corner : {t0, ts}) {
      if (StepsOverCorner(t, corner, h, e, CornerRule::kInsideStep)) {
        points.push_back({corner, plateau});
        // The grid period after a corner carries the plateau too, even
        // past Ts: a property of this code's curves that users rely on.
        value = plateau;
      }
    }
    points.push_back({t, value});
  }
  return points;
}

std::string Kds2018Label(const Kds2018Params& p) {
  return CFormat("Zone=%s, I=%5.3f, Site=%s",
                 p.zone == 0 ? "ZoneI(0.11)" : "ZoneII(0.07)", p.risk,
                 ChoiceValue(kKds2018SiteClasses, p.site, ""));
}

bool GenerateKds2018(CZELwDoc& doc, const Kds2018Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!CheckKds2018(p, messages)) return false;
  HandOverSpectrum(doc, Kds2018Spectrum(p), kKds2018Title, Kds2018Label(p));
  return true;
}

}  // namespace zel
