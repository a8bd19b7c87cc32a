#include "core/codes/kds2019.h"

#include <cmath>

#include "core/codes/design_document.h"
#include "core/codes/tolerant_compare.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

constexpr double kTwoThirds = 0.6666666666666666;
constexpr double kEpaColumns[3] = {0.1, 0.2, 0.3};
// Rows: site class S1..S5.
constexpr double kFa[5][3] = {{1.12, 1.12, 1.12},
                              {1.4, 1.4, 1.3},
                              {1.7, 1.5, 1.3},
                              {1.6, 1.4, 1.2},
                              {1.8, 1.3, 1.3}};
constexpr double kFv[5][3] = {{0.84, 0.84, 0.84},
                              {1.5, 1.4, 1.3},
                              {1.7, 1.6, 1.5},
                              {2.2, 2.0, 1.8},
                              {3.0, 2.7, 2.4}};

bool LookUp(const double (&table)[5][3], int site, double s, double& result) {
  if (site < 0 || site > 4) return false;
  if (TolerantCompare(s, kEpaColumns[0]) > 0) {
    return InterpolateTable(s, kEpaColumns, table[site], result);
  }
  result = table[site][0];
  return true;
}

}  // namespace

bool Kds2019Fa(int site, double s, double& fa) {
  return LookUp(kFa, site, s, fa);
}

bool Kds2019Fv(int site, double s, double& fv) {
  return LookUp(kFv, site, s, fv);
}

bool Kds2019Refresh(double s, int site, Kds2019Coefficients& result) {
  Kds2019Coefficients c;
  if (site >= 0 && site <= 4) {
    if (!Kds2019Fa(site, s, c.fa) || !Kds2019Fv(site, s, c.fv)) return false;
    c.sds = kTwoThirds * s * 2.5 * c.fa;
    c.sd1 = kTwoThirds * s * c.fv;
  }
  result = c;
  return true;
}

const char* Kds2019EpaForZone(int zone) { return zone == 0 ? "0.22" : "0.14"; }

std::vector<SpectrumPoint> Kds2019Spectrum(const Kds2019Params& p) {
  const double ts = p.sd1 / p.sds;
  const double t0 = 0.2 * ts;
  // With Sds or Sd1 zero, or of opposite signs, the code's shape has no
  // defined corners (the hand-entry state of S6 before anything is typed):
  // the curve is then zero throughout.
  if (!(std::isfinite(ts) && ts > 0.0)) {
    return SampleSpectrum(p.grid, {}, CornerRule::kInsideStep, [](double t) {
      return SpectrumPoint{t, 0.0};
    });
  }
  const double plateau = p.sds * p.ie / p.r;
  const SpectrumPoint corners[] = {{t0, plateau}, {ts, plateau}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kInsideStep, [&](double t) {
        double sa;
        if (t <= t0) {
          sa = (0.6 * (p.sds / t0) * t + 0.4 * p.sds) * p.ie / p.r;
        } else if (t <= ts) {
          sa = p.sds * p.ie / p.r;
        } else if (t <= kKds2019LongPeriod) {
          sa = (p.sd1 / t) * p.ie / p.r;
        } else {
          sa = (p.sd1 * kKds2019LongPeriod / t / t) * p.ie / p.r;
        }
        return SpectrumPoint{t, sa};
      });
}

std::string Kds2019Label(const Kds2019Params& p) {
  const char* site = ChoiceValue(kKds2019SiteClasses, p.site, "");
  return CFormat(
      "KDS(41-17-00:2019): Zone=%d,S=%3.2f,Site=%s,Fa=%3.2f,Fv=%3.2f,"
      "Sds=%3.2f,Sd1=%3.2f,Ie=%3.1f,R=%3.1f",
      p.zone + 1, p.s, site, p.fa, p.fv, p.sds, p.sd1, p.ie, p.r);
}

bool GenerateKds2019(CZELwDoc& doc, const Kds2019Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages)) return false;
  if (!IsChoiceIndex(kKds2019Zones, p.zone) ||
      !IsChoiceIndex(kKds2019SiteClasses, p.site)) {
    messages.Show(
        "The selection in 'Seismic Zone' or 'Site Class' is not valid");
    return false;
  }
  if (!CheckFiniteParameters({{"S", p.s},
                              {"Fa", p.fa},
                              {"Fv", p.fv},
                              {"Sds", p.sds},
                              {"Sd1", p.sd1},
                              {"Ie", p.ie},
                              {"R", p.r}},
                             messages)) {
    return false;
  }
  const std::vector<SpectrumPoint> points = Kds2019Spectrum(p);
  HandOverSpectrum(doc, points, kKds2019Title, Kds2019Label(p));
  return true;
}

}  // namespace zel
