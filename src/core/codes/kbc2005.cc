#include "core/codes/kbc2005.h"

#include <algorithm>
#include <cmath>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

constexpr double kZoneFactor[2] = {0.11, 0.07};
constexpr double kAmplification = 1.33;
// Rows: site class Sa..Se; columns: zone 1, zone 2.
constexpr double kSdsFactor[5][2] = {
    {2.0, 1.8}, {2.5, 2.5}, {3.0, 3.0}, {3.6, 4.0}, {5.0, 6.0}};
constexpr double kSd1Factor[5][2] = {
    {0.8, 0.7}, {1.0, 1.0}, {1.6, 1.6}, {2.3, 2.3}, {3.4, 3.4}};

double FiveDigits(double value) { return AtoF(CFormat("%-10.5g", value)); }

}  // namespace

bool Kbc2005Refresh(int zone, int site, double& sds, double& sd1) {
  if (zone < 0 || zone > 1 || site < 0 || site > 4) return false;
  const double z = kZoneFactor[zone];
  sds = FiveDigits(kSdsFactor[site][zone] * kAmplification * z);
  sd1 = FiveDigits(kSd1Factor[site][zone] * kAmplification * z);
  return true;
}

std::vector<SpectrumPoint> Kbc2005Spectrum(const Kbc2005Params& p) {
  const double ts = p.sd1 / p.sds;
  double t0 = 0.2 * ts;
  // Sds or Sd1 zero, or of opposite signs, give no corners to draw the
  // code's shape between: the curve is zero throughout.
  if (!(std::isfinite(ts) && ts > 0.0)) {
    return SampleSpectrum(p.grid, {}, CornerRule::kInsideStep, [](double t) {
      return SpectrumPoint{t, 0.0};
    });
  }
  // The relief reads the check box only, whatever the site class now is.
  const bool relieved = p.relieve != 0 && t0 > 0.06 && t0 < 0.3;
  if (relieved) t0 = 0.3;
  const double plateau = p.sds * p.ie / p.r;
  const SpectrumPoint corners[] = {{t0, plateau}, {ts, plateau}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kInsideStep, [&](double t) {
        double sa;
        if (t <= t0 && relieved) {
          sa = (2.0 * p.sds * t + 0.4 * p.sds) * p.ie / p.r;
        } else if (t <= t0) {
          sa = (0.6 * (p.sds / t0) * t + 0.4 * p.sds) * p.ie / p.r;
        } else if (t <= ts) {
          sa = p.sds * p.ie / p.r;
        } else {
          // The minimum is part of the code's formula, though positive
          // values never reach Sds beyond Ts.
          sa = std::min(p.sd1 / t, p.sds) * p.ie / p.r;
        }
        return SpectrumPoint{t, sa};
      });
}

std::string Kbc2005Label(const Kbc2005Params& p) {
  const char* relieve = p.relieve != 0 ? "Yes" : "No";
  if (p.mode == Kbc2005Params::kUserDefined) {
    return CFormat(
        "KBC2005 : (User Defined) Sds=%6.4f, Sd1=%6.4f, Ie=%5.3f, R=%5.3f, "
        "Relieve=%s",
        p.sds, p.sd1, p.ie, p.r, relieve);
  }
  constexpr std::array<const char*, 2> kZoneNames = {"ZoneI(0.11)",
                                                     "ZoneII(0.07)"};
  return CFormat(
      "KBC2005 : Zone=%s, Site=%s, Sds=%6.4f, Sd1=%6.4f, Ie=%5.3f, R=%5.3f, "
      "Relieve=%s",
      ChoiceValue(kZoneNames, p.zone, ""),
      ChoiceValue(kKbc2005SiteClasses, p.site, ""), p.sds, p.sd1, p.ie, p.r,
      relieve);
}

bool GenerateKbc2005(CZELwDoc& doc, const Kbc2005Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckPrintableParameters(
          {{"Sds", p.sds}, {"Sd1", p.sd1}, {"Ie", p.ie}, {"R", p.r}},
          messages)) {
    return false;
  }
  return HandOverDefinedSpectrum(doc, Kbc2005Spectrum(p), kKbc2005Title,
                                 Kbc2005Label(p), messages);
}

}  // namespace zel
