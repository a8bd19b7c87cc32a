#include "core/codes/us_codes.h"

#include <cmath>

#include "core/codes/design_document.h"
#include "core/codes/ubc97_coefficients.h"
#include "core/document/c_format.h"

namespace zel {

namespace {

bool IsSoilIndex(int soil) { return IsChoiceIndex(kSoilFactors, soil); }

bool CheckSoil(int soil, MessageSink& messages) {
  return CheckChoice(kSoilFactors, soil, "Soil Profile Type", messages);
}

// UBC 88-94 spectral shape C(T) for one soil factor: 1 + slope * T up to T1,
// the 2.5 plateau up to T2, then numerator / T.
struct Ubc88Shape {
  double slope;
  double t1;
  double t2;
  double numerator;
};

// The shape is chosen by exact comparison of S; S2 only matches its single
// precision value. Returns false for any other S.
bool Ubc88ShapeFor(double s, Ubc88Shape& shape) {
  if (s == 1.0) {
    shape = {10.0, 0.15, 0.39, 0.975};
  } else if (s == 1.2000000476837158) {
    shape = {10.0, 0.15, 0.585, 1.463};
  } else if (s == 1.5) {
    shape = {7.5, 0.2, 0.915, 2.288};
  } else {
    return false;
  }
  return true;
}

}  // namespace

std::vector<SpectrumPoint> Atc306Spectrum(const Atc306Params& p) {
  if (!IsSoilIndex(p.soil)) return {};
  const double s = kSoilFactors[p.soil];
  // Stiff soil (S3) in a high-acceleration region has the lower 2.0 plateau.
  const bool low_plateau = s == 1.5 && p.aa >= 0.3;
  const double c = low_plateau ? 2.0 : 2.5;
  const double cap = c * p.aa / p.r;
  const double tc = std::pow(1.2 * p.av * s / (c * p.aa), 1.5);
  const double corner_sa =
      low_plateau ? 2.0 * p.aa / p.r
                  : 1.2 * p.av * s / (p.r * std::pow(tc, 2.0 / 3.0));
  const SpectrumPoint corners[] = {{tc, corner_sa}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kPastPreviousPeriod, [&](double t) {
        t = MoveAwayFromZero(t);
        double sa = 1.2 * p.av * s / (p.r * std::pow(t, 2.0 / 3.0));
        if (sa > cap) sa = cap;
        if (t > 4.0) {
          sa = 3.0 * p.av * s / (p.r * std::pow(t, 4.0 / 3.0));
        }
        return SpectrumPoint{t, sa};
      });
}

std::vector<SpectrumPoint> Ubc88Spectrum(const Ubc88Params& p) {
  Ubc88Shape shape;
  if (!IsSoilIndex(p.soil) || !Ubc88ShapeFor(kSoilFactors[p.soil], shape)) {
    return {};
  }
  const double plateau = 2.5 * p.z * p.importance / p.rw;
  const SpectrumPoint corners[] = {{shape.t1, plateau}, {shape.t2, plateau}};
  return SampleSpectrum(
      p.grid, corners, CornerRule::kPastPreviousPeriod, [&](double t) {
        t = MoveAwayFromZero(t);
        double c;
        if (t <= shape.t1) {
          c = 1.0 + shape.slope * t;
        } else if (t <= shape.t2) {
          c = 2.5;
        } else {
          c = shape.numerator / t;
        }
        return SpectrumPoint{t, c * p.z * p.importance / p.rw};
      });
}

std::vector<SpectrumPoint> Ubc97Spectrum(const Ubc97Params& p) {
  const double ts = p.cv / 2.5 / p.ca;
  const double t0 = 0.2 * ts;
  const double plateau = 2.5 * p.ca * p.importance / p.r;
  const SpectrumPoint corners[] = {{t0, plateau}, {ts, plateau}};
  return SampleSpectrum(p.grid, corners, CornerRule::kPastPreviousPeriod,
                        [&](double t) {
                          double sa;
                          if (t <= t0) {
                            sa = p.ca + 1.5 * p.ca / t0 * t;
                          } else if (t <= ts) {
                            sa = 2.5 * p.ca;
                          } else {
                            sa = p.cv / t;
                          }
                          return SpectrumPoint{t, sa * p.importance / p.r};
                        });
}

std::string Atc306Label(const Atc306Params& p) {
  const double s = ChoiceValue(kSoilFactors, p.soil);
  return CFormat("Soil = %3.1f  Aa = %4.2f  Av = %4.2f  RMF = %4.2f", s, p.aa,
                 p.av, p.r);
}

std::string Ubc88Label(const Ubc88Params& p) {
  const double s = ChoiceValue(kSoilFactors, p.soil);
  return CFormat("Soil = %3.1f  Z = %4.3f", s, p.z);
}

std::string Ubc97Label(const Ubc97Params& p) {
  return CFormat("Ca=%g  Cv=%g", p.ca, p.cv);
}

bool GenerateAtc306(CZELwDoc& doc, const Atc306Params& p,
                    MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) || !CheckSoil(p.soil, messages) ||
      !CheckFiniteParameters({{"Aa", p.aa}, {"Av", p.av}, {"R", p.r}},
                             messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kAtc306Title, Atc306Label(p), Atc306Spectrum(p));
  return true;
}

bool GenerateUbc88(CZELwDoc& doc, const Ubc88Params& p, MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages) || !CheckSoil(p.soil, messages) ||
      !CheckFiniteParameters({{"Z", p.z}, {"I", p.importance}, {"Rw", p.rw}},
                             messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kUbc88Title, Ubc88Label(p), Ubc88Spectrum(p));
  return true;
}

bool GenerateUbc97(CZELwDoc& doc, const Ubc97Params& p, MessageSink& messages) {
  CopyGridToDocument(p.grid, doc);
  if (!ValidatePeriodGrid(p.grid, messages)) return false;
  // Automatic coefficients of zone 4 are only valid for a distance the
  // near-source factors accept; the fields then still hold older values.
  if (p.option == Ubc97Params::kAutomatic && p.zone == kUbc97Zone4 &&
      !(p.distance >= 0.0)) {
    messages.Show(kDistanceMessage);
    return false;
  }
  // Negated so that NaN is refused with the same message.
  if (!(p.ca > 0.0)) {
    messages.Show(kCaMessage);
    return false;
  }
  if (!(p.cv > 0.0)) {
    messages.Show(kCvMessage);
    return false;
  }
  if (!CheckFiniteParameters(
          {{"Ca", p.ca}, {"Cv", p.cv}, {"I", p.importance}, {"R", p.r}},
          messages)) {
    return false;
  }
  StoreDesignSpectrum(doc, kUbc97Title, Ubc97Label(p), Ubc97Spectrum(p));
  return true;
}

}  // namespace zel
