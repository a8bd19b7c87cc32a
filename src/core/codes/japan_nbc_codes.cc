#include "core/codes/japan_nbc_codes.h"

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

std::vector<SpectrumPoint> Japan2000Spectrum(const Japan2000Params& p) {
  if (!IsChoiceIndex(kJapanZoneFactors, p.zone) ||
      !IsChoiceIndex(kJapanCornerPeriods, p.soil)) {
    return {};
  }
  const double z = kJapanZoneFactors[p.zone];
  const double tc = kJapanCornerPeriods[p.soil];
  const double twelve_tc = kJapanTwelveTc[p.soil];
  const double plateau = z * p.co * 12.0 / kJapanGravity;
  const SpectrumPoint corners[] = {{kJapanRiseEnd, plateau}, {tc, plateau}};
  return SampleSpectrum(p.grid, corners, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          double sa;
                          if (t < kJapanRiseEnd) {
                            sa = z * p.co * (4.8 + 45.0 * t) / kJapanGravity;
                          } else if (t < tc) {
                            sa = plateau;
                          } else {
                            sa = z * p.co * twelve_tc / t / kJapanGravity;
                          }
                          return SpectrumPoint{t, sa};
                        });
}

double NbcPlateauFactor(int za, int zv) {
  if (za > zv) return 4.2;
  return za == zv ? 3.0 : 2.1;
}

std::vector<SpectrumPoint> Nbc1995Spectrum(const Nbc1995Params& p) {
  const double s = NbcPlateauFactor(p.za, p.zv);
  const SpectrumPoint corner = {kNbcDecay / s, s * p.v};
  return SampleSpectrum(p.grid, {&corner, 1}, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          double f = t <= 0.0 ? s : kNbcDecay / t;
                          if (f > s) f = s;
                          return SpectrumPoint{t, f * p.v};
                        });
}

std::string Japan2000Label(const Japan2000Params& p) {
  return CFormat("Zone = %s  Soil = %s  Co = %5.3f",
                 ChoiceValue(kJapanZoneLabelTexts, p.zone, ""),
                 ChoiceValue(kJapanSoilTexts, p.soil, ""), p.co);
}

std::string Nbc1995Label(const Nbc1995Params& p) {
  return CFormat("v = %4.2f  Za = %1.0f  Zv = %1.0f", p.v,
                 static_cast<double>(p.za), static_cast<double>(p.zv));
}

bool GenerateJapan2000(CZELwDoc& doc, const Japan2000Params& p,
                       MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kJapanZoneFactors, p.zone, kJapanZoneLabel, messages) ||
      !CheckChoice(kJapanCornerPeriods, p.soil, kJapanSoilLabel, messages) ||
      !CheckPrintableParameters({{"Co", p.co}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kJapan2000Title, Japan2000Label(p),
                              Japan2000Spectrum(p), messages);
}

bool GenerateNbc1995(CZELwDoc& doc, const Nbc1995Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckChoice(kNbcZoneTexts, p.za, kNbcZaLabel, messages) ||
      !CheckChoice(kNbcZoneTexts, p.zv, kNbcZvLabel, messages) ||
      !CheckPrintableParameters({{"v", p.v}}, messages)) {
    return false;
  }
  return StoreDefinedSpectrum(doc, kNbc1995Title, Nbc1995Label(p),
                              Nbc1995Spectrum(p), messages);
}

}  // namespace zel
