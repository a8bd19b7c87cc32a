// Registry entries of the US codes: the dialogs DLG_ATC, DLG_UBC and
// DLG_UBC97 and their command-line parameters.
#include <span>
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/ubc97_coefficients.h"
#include "core/codes/us_codes.h"

namespace zel {

namespace {

std::vector<std::string> Texts(std::span<const char* const> texts) {
  return {texts.begin(), texts.end()};
}

constexpr char kSoilLabel[] = "Soil Profile Type";
const std::vector<std::string> kSoilKeys = {"S1", "S2", "S3"};

}  // namespace

CodeEntry Atc306Entry() {
  using P = Atc306Params;
  CodeBuilder<P> code("atc3-06", "ATC 3-06", "ATC 3-06", kAtc306Title);
  code.fields()
      .Choice("soil", kSoilLabel, &P::soil, Texts(kSoilFactorTexts), kSoilKeys)
      .Radio()
      .Number("aa", "EPA related coefficient (Aa) :", &P::aa)
      .Number("av", "EPV related coefficient (Av) :", &P::av)
      .Number("r", "Response Modification Coef. (R):", &P::r)
      .Grid(&P::grid);
  return code.Build(GenerateAtc306);
}

CodeEntry Ubc88Entry() {
  using P = Ubc88Params;
  CodeBuilder<P> code("ubc88-94", "UBC 88-94", "UBC 88-94", kUbc88Title);
  code.fields()
      .Choice("soil", kSoilLabel, &P::soil, Texts(kSoilFactorTexts), kSoilKeys)
      .Radio()
      .Number("z", "Seismic Zone Factor (Z) :", &P::z)
      .Number("rw", "Numerical Coefficient (Rw) :", &P::rw)
      .Number("importance", "Importance Factor ( I ) :", &P::importance)
      .Grid(&P::grid);
  return code.Build(GenerateUbc88);
}

CodeEntry Ubc97Entry() {
  using P = Ubc97Params;
  constexpr char kAutomatic[] = "Data for Automatic Calculation";
  constexpr char kZone4[] = "Data for Automatic Calculation/For Zone 4";
  CodeBuilder<P> code("ubc97", "UBC(1997)", "UBC(1997)", kUbc97Title);
  // The automatic data come before Ca and Cv: a change there rewrites them.
  code.fields()
      .Choice("option", "Seismic Coefficients Calculation Option", &P::option,
              {"Automatic", "User Defined"}, {"automatic", "user"})
      .Radio()
      .Choice("zone", "Seismic Zone Factor (Z) :", &P::zone,
              Texts(kUbc97ZoneTexts), {"1", "2A", "2B", "3", "4"})
      .In(kAutomatic)
      .Choice("soil", "Soil Profile Type (S) :", &P::soil,
              Texts(kUbc97SoilTexts))
      .In(kAutomatic)
      .Choice("source", "Seismic Source Type  :", &P::source,
              Texts(kUbc97SourceTexts))
      .In(kZone4)
      .Number("distance",
              "Closest Distance to Known Seismic Source (km)   :", &P::distance)
      .Text("10.0")
      .In(kZone4)
      .Number("ca", "Seismic Coefficient (Ca) :", &P::ca)
      .Needs("option", P::kUserDefined)
      .Number("cv", "Seismic Coefficient (Cv) :", &P::cv)
      .Needs("option", P::kUserDefined)
      .Number("r", "Numerical Coefficient (R) :", &P::r)
      .Number("importance", "Importance Factor ( I ) :", &P::importance)
      .Grid(&P::grid);
  code.State([](const Form<P>& f) {
    const P p = f.Read();
    const bool automatic = p.option == P::kAutomatic;
    if (f.Is(&P::ca) || f.Is(&P::cv)) {
      return automatic ? FieldState::kReadOnly : FieldState::kEnabled;
    }
    bool on = true;
    if (f.Is(&P::zone) || f.Is(&P::soil)) on = automatic;
    if (f.Is(&P::source) || f.Is(&P::distance)) {
      on = automatic && p.zone == kUbc97Zone4;
    }
    return on ? FieldState::kEnabled : FieldState::kDisabled;
  });
  code.OnChange([](Form<P>& f, MessageSink& m) {
    if (!f.Is(&P::option) && !f.Is(&P::zone) && !f.Is(&P::soil) &&
        !f.Is(&P::source) && !f.Is(&P::distance)) {
      return true;
    }
    const P p = f.Read();
    std::string ca = f.Text(&P::ca);
    std::string cv = f.Text(&P::cv);
    if (!Ubc97CoefficientTexts(p.zone, p.soil, p.source, p.distance, ca, cv,
                               m)) {
      return false;
    }
    f.ShowText(&P::ca, ca);
    f.ShowText(&P::cv, cv);
    return true;
  });
  return code.Build(GenerateUbc97);
}

}  // namespace zel
