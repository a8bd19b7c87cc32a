#include "core/codes/ntc2018.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/codes/design_document.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

// Stratigraphic amplification Ss = a - b Fo ag within [min, max], and
// Cc = c (Tc*)^e, per ground type A..E.
struct GroundRow {
  double ss_min, ss_max, a, b, c, e;
};
constexpr std::array<GroundRow, 5> kGround = {
    {{1.0, 1.0, 1.0, 0.0, 1.0, 0.0},
     {1.0, 1.2, 1.4, 0.4, 1.1, -0.2},
     {1.0, 1.5, 1.7, 0.6, 1.05, -0.33},
     {0.9, 1.8, 2.4, 1.5, 1.25, -0.5},
     {1.0, 1.6, 2.0, 1.1, 1.15, -0.4}}};
// Topographic amplification ST of categories T1..T4.
constexpr std::array<double, 4> kTopography = {1.0, 1.2, 1.2, 1.4};

bool Refuse(const char* message, MessageSink& messages) {
  messages.Show(message);
  return false;
}

}  // namespace

bool Ntc2018IsElastic(int type) { return type == 0 || type == 1; }
bool Ntc2018IsVertical(int type) { return type == 1 || type == 3; }

bool Ntc2018Refresh(Ntc2018Params& p) {
  if (!IsChoiceIndex(kTopography, p.topography) ||
      !IsChoiceIndex(kGround, p.ground)) {
    return false;
  }
  if (Ntc2018IsVertical(p.type)) {
    p.s = 1.0;
    p.tb = 0.05;
    p.tc = 0.15;
    p.td = 1.0;
    return true;
  }
  const GroundRow& row = kGround[p.ground];
  double ss = row.a - row.b * p.fo * p.ag;
  if (ss > row.ss_max) ss = row.ss_max;
  if (ss < row.ss_min) ss = row.ss_min;
  p.s = ss * kTopography[p.topography];
  const double cc = row.c * std::pow(p.tc_star, row.e);
  p.tc = cc * p.tc_star;
  p.tb = p.tc / 3.0;
  p.td = 4.0 * p.ag + 1.6;
  return true;
}

std::vector<SpectrumPoint> Ntc2018Spectrum(const Ntc2018Params& p) {
  const double f =
      Ntc2018IsVertical(p.type) ? 1.35 * p.fo * std::sqrt(p.ag) : p.fo;
  if (Ntc2018IsElastic(p.type)) {
    const double eta = std::max(std::sqrt(10.0 / (5.0 + p.xi)), 0.55);
    const double plateau = p.ag * p.s * eta * f;
    const SpectrumPoint corners[] = {
        {p.tb, plateau}, {p.tc, plateau}, {p.td, plateau * p.tc / p.td}};
    return SampleSpectrum(
        p.grid, corners, CornerRule::kInsideStep, [&](double t) {
          double sa;
          if (t < p.tb) {
            // Fo, not F, even for the vertical spectrum.
            sa = plateau * (t / p.tb + 1.0 / (eta * p.fo) * (1.0 - t / p.tb));
          } else if (t <= p.tc) {
            sa = plateau;
          } else if (t <= p.td) {
            sa = plateau * p.tc / t;
          } else {
            sa = plateau * p.tc * p.td / (t * t);
          }
          return SpectrumPoint{t, sa};
        });
  }
  const double plateau = p.ag * p.s * f / p.q;
  // The floor of the descending branches, from Tc on.
  const double floor = Ntc2018IsVertical(p.type)
                           ? 0.2 * p.ag * p.s * 1.35 * std::sqrt(p.ag)
                           : 0.2 * p.ag;
  const SpectrumPoint corners[] = {
      {p.tb, plateau},
      {p.tc, plateau},
      {p.td, std::max(plateau * p.tc / p.td, floor)}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kInsideStep, [&](double t) {
        double sa;
        if (t < p.tb) {
          sa = plateau * (t / p.tb + p.q / p.fo * (1.0 - t / p.tb));
        } else if (t < p.tc) {
          sa = plateau;
        } else if (t < p.td) {
          sa = std::max(plateau * p.tc / t, floor);
        } else {
          sa = std::max(plateau * p.tc * p.td / (t * t), floor);
        }
        return SpectrumPoint{t, sa};
      });
}

std::string Ntc2018Label(const Ntc2018Params& p) {
  const char* g = ChoiceValue(kNtc2018GroundTypes, p.ground, "");
  // Only the horizontal elastic label has blanks after its commas, as on
  // the charts engineers already have.
  switch (p.type) {
    case 0:
      return CFormat(
          "NTC2018 H-ELA: G=%s, S=%4.2f, Tb=%4.2f, Tc=%4.2f, Td=%4.2f, "
          "ag=%4.2fg, Fo=%3.1f, Tc*=%4.2f, Damping=%4.2f",
          g, p.s, p.tb, p.tc, p.td, p.ag, p.fo, p.tc_star, p.xi);
    case 1:
      return CFormat(
          "NTC2018 V-ELA: G=%s,S=%4.2f,Tb=%4.2f,Tc=%4.2f,Td=%4.2f,ag=%4.2fg,"
          "Fo=%3.1f,Tc*=%4.2f,Damping=%4.2f",
          g, p.s, p.tb, p.tc, p.td, p.ag, p.fo, p.tc_star, p.xi);
    case 2:
      return CFormat(
          "NTC2018 H-DGN: G=%s,S=%4.2f,Tb=%4.2f,Tc=%4.2f,Td=%4.2f,ag=%4.2fg,"
          "Fo=%3.1f,Tc*=%4.2f,q=%4.2f",
          g, p.s, p.tb, p.tc, p.td, p.ag, p.fo, p.tc_star, p.q);
    default:
      return CFormat(
          "NTC2018 V-DGN: G=%s,S=%4.2f,Tb=%4.2f,Tc=%4.2f,Td=%4.2f,ag=%4.2fg,"
          "Fo=%3.1f,Tc*=%4.2f,q=%4.2f",
          g, p.s, p.tb, p.tc, p.td, p.ag, p.fo, p.tc_star, p.q);
  }
}

bool GenerateNtc2018(CZELwDoc& doc, const Ntc2018Params& p,
                     MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!CheckChoice(kNtc2018Types, p.type, "Spectrum Type", messages)) {
    return false;
  }
  const bool elastic = Ntc2018IsElastic(p.type);
  // The code's own comparisons, in its order; a value that is not a
  // number passes them and is refused below with its name.
  if (p.s <= 0.0) return Refuse("S > 0", messages);
  if (p.tb <= 0.0) return Refuse("Tb > 0", messages);
  if (p.tc <= p.tb) return Refuse("Tc > Tb", messages);
  if (p.td <= p.tc) return Refuse("Td > Tc", messages);
  if (p.ag <= 0.0) {
    return Refuse("Design Ground Acceleration must be greater than 0",
                  messages);
  }
  if (p.fo <= 0.0) return Refuse("Fo > 0", messages);
  if (p.tc_star <= 0.0) return Refuse("Tc* > 0", messages);
  if (elastic && p.xi < 0.0) {
    return Refuse("Damping Ratio cannot have (-) value", messages);
  }
  if (!elastic && p.q <= 0.0) return Refuse("q > 0", messages);
  if (!ValidatePeriodGrid(p.grid, messages) ||
      !CheckPrintableParameters({{"ag", p.ag},
                                 {"Fo", p.fo},
                                 {"Tc*", p.tc_star},
                                 {elastic ? "xi" : "q", elastic ? p.xi : p.q},
                                 {"S", p.s},
                                 {"Tb", p.tb},
                                 {"Tc", p.tc},
                                 {"Td", p.td}},
                                messages)) {
    return false;
  }
  return HandOverDefinedSpectrum(doc, Ntc2018Spectrum(p),
                                 kNtc2018Titles[p.type], Ntc2018Label(p),
                                 messages);
}

}  // namespace zel
