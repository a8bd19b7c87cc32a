#include "core/codes/ibc2000.h"

#include <cstddef>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

constexpr double kTwoThirds = 0.6666666666666666;

constexpr double kSsColumns[5] = {0.25, 0.5, 0.75, 1.0, 1.25};
constexpr double kS1Columns[5] = {0.1, 0.2, 0.3, 0.4, 0.5};
// Rows: site class A..E. The 9.9 entries of class E stand for "site-specific
// study required"; the site class check keeps them out of any spectrum.
constexpr double kFa[5][5] = {
    {0.8, 0.8, 0.8, 0.8, 0.8}, {1.0, 1.0, 1.0, 1.0, 1.0},
    {1.2, 1.2, 1.1, 1.0, 1.0}, {1.6, 1.4, 1.2, 1.1, 1.0},
    {2.5, 1.7, 1.2, 0.9, 9.9},
};
constexpr double kFv[5][5] = {
    {0.8, 0.8, 0.8, 0.8, 0.8}, {1.0, 1.0, 1.0, 1.0, 1.0},
    {1.7, 1.6, 1.5, 1.4, 1.3}, {2.4, 2.0, 1.8, 1.6, 1.5},
    {3.5, 3.2, 2.8, 2.4, 9.9},
};

// Linear between columns; where x is a column value both neighbouring
// pairs match and the later one is kept (they agree there).
double SiteCoefficient(const double (&columns)[5], const double (&row)[5],
                       double x) {
  if (x <= columns[0]) return row[0];
  if (x >= columns[4]) return row[4];
  double result = row[0];
  for (std::size_t i = 0; i + 1 < 5; ++i) {
    if (columns[i] <= x && x <= columns[i + 1]) {
      result = row[i] + (row[i + 1] - row[i]) * (x - columns[i]) /
                            (columns[i + 1] - columns[i]);
    }
  }
  return result;
}

}  // namespace

double Ibc2000Fa(int site, double ss) {
  return IsChoiceIndex(kIbc2000SiteClasses, site)
             ? SiteCoefficient(kSsColumns, kFa[site], ss)
             : 0.0;
}

double Ibc2000Fv(int site, double s1) {
  return IsChoiceIndex(kIbc2000SiteClasses, site)
             ? SiteCoefficient(kS1Columns, kFv[site], s1)
             : 0.0;
}

Ibc2000Coefficients ComputeIbc2000Coefficients(const Ibc2000Params& p) {
  Ibc2000Coefficients c;
  c.fa = Ibc2000Fa(p.site, p.ss);
  c.fv = Ibc2000Fv(p.site, p.s1);
  c.sds = kTwoThirds * c.fa * p.ss;
  c.sd1 = kTwoThirds * c.fv * p.s1;
  c.ts = c.sd1 / c.sds;
  c.t0 = 0.2 * c.ts;
  return c;
}

bool CheckIbc2000SiteClass(const Ibc2000Params& p, MessageSink& messages) {
  if (p.site == kIbc2000SiteE && (p.ss > 1.0 || p.s1 > 0.4)) {
    messages.Show(kSiteClassENote);
    return false;
  }
  return true;
}

std::vector<SpectrumPoint> Ibc2000Spectrum(const Ibc2000Params& p) {
  const Ibc2000Coefficients c = ComputeIbc2000Coefficients(p);
  const double plateau = c.sds * p.importance / p.r;
  const SpectrumPoint corners[] = {{c.t0, plateau}, {c.ts, plateau}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kInsideStep, [&](double t) {
        double sa;
        if (t < c.t0) {
          sa = (0.6 * c.sds / c.t0 * t + 0.4 * c.sds) * p.importance / p.r;
        } else if (t < c.ts) {
          sa = c.sds * p.importance / p.r;
        } else {
          sa = c.sd1 / t * p.importance / p.r;
        }
        return SpectrumPoint{t, sa};
      });
}

std::string Ibc2000Label(const Ibc2000Params& p) {
  const char* site = ChoiceValue(kIbc2000SiteClasses, p.site, "");
  return CFormat("Site Class = %s  Ss = %5.3f  S1 = %5.3f", site, p.ss, p.s1);
}

bool GenerateIbc2000(CZELwDoc& doc, const Ibc2000Params& p,
                     MessageSink& messages) {
  // Normally already checked before the document was made; repeated so that
  // a 9.9 table entry can never reach a curve.
  if (!CheckIbc2000SiteClass(p, messages)) return false;
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages)) return false;
  if (!IsChoiceIndex(kIbc2000SiteClasses, p.site) ||
      !IsChoiceIndex(kIbc2000DesignCategories, p.category)) {
    messages.Show(
        "The selection in 'Site Class' or 'Seismic Design "
        "Category' is not valid");
    return false;
  }
  if (!CheckFiniteParameters(
          {{"Ss", p.ss}, {"S1", p.s1}, {"I", p.importance}, {"R", p.r}},
          messages)) {
    return false;
  }
  const std::vector<SpectrumPoint> points = Ibc2000Spectrum(p);
  StoreDesignSpectrum(doc, kIbc2000Title, Ibc2000Label(p), points);
  return true;
}

}  // namespace zel
