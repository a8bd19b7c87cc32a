// Registry entries of the Chinese codes: the dialogs CDLG_CH2002,
// CDLG_CH_BRG89 and CDLG_CH_GBJ111_87, their suggestions and their
// command-line parameters.
#include <array>
#include <string>
#include <vector>

#include "core/codes/chinese_codes.h"
#include "core/codes/field_table.h"

namespace zel {

namespace {

template <std::size_t N>
std::vector<std::string> Texts(const std::array<const char*, N>& texts) {
  return {texts.begin(), texts.end()};
}

constexpr char kSiteLabel[] = "Site Class";
constexpr char kTgLabel[] =
    "Design Characteristic Period of Ground Motion (Tg) (sec) :";

// The first fields of both bridge codes: intensity, Kh and site class.
template <class P>
FieldTable<P>& BridgeFields(FieldTable<P>& fields) {
  return fields
      .Choice("intensity", "Seismic Intensity", &P::intensity,
              Texts(kBridgeIntensities))
      .Radio()
      .Number("kh", "Horizontal Seismic Coef. (Kh) :", &P::kh)
      .Choice("site", kSiteLabel, &P::site, Texts(kChineseSiteClasses))
      .Radio();
}

// A new intensity rewrites Kh with its suggestion; true when it did.
template <class P>
bool SuggestKh(Form<P>& f) {
  if (!f.Is(&P::intensity)) return false;
  f.Show(&P::kh, BridgeSuggestedKh(f.Read().intensity));
  return true;
}

}  // namespace

CodeEntry Gb50011Entry() {
  using P = Gb50011Params;
  CodeBuilder<P> code("gb50011-2001", "China(GB50011-2001)",
                      "China(GB50011-2001)", kGb50011Title);
  // Intensities by their design basic acceleration on the command line.
  code.fields()
      .Choice("intensity", "Seismic Fortification Intensity", &P::intensity,
              Texts(kGb50011Intensities),
              {"0.05g", "0.10g", "0.15g", "0.20g", "0.30g", "0.40g"})
      .Radio()
      .Choice("earthquake", "Earthquake Class", &P::earthquake,
              Texts(kGb50011EarthquakeClasses), {"frequent", "scarce"})
      .Radio()
      .Choice("category", "Near Source Category", &P::category,
              Texts(kGb50011Categories))
      .Radio()
      .Choice("site", kSiteLabel, &P::site, Texts(kChineseSiteClasses))
      .Radio()
      .Number("tg", kTgLabel, &P::tg)
      .Number("damping", "Damping Ratio (ζ) :", &P::damping)
      .Grid(&P::grid);
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (f.Is(&P::intensity) || f.Is(&P::earthquake) || f.Is(&P::category) ||
        f.Is(&P::site)) {
      const P p = f.Read();
      f.Show(&P::tg,
             Gb50011SuggestedTg(p.intensity, p.earthquake, p.category, p.site));
    }
    return true;
  });
  return code.Build(GenerateGb50011);
}

CodeEntry Jtj004Entry() {
  using P = Jtj004Params;
  CodeBuilder<P> code("jtj004-89", "China(JTJ004-89)", "China(JTJ004-89)",
                      kJtj004Title);
  BridgeFields(code.fields())
      .Number("tg", kTgLabel, &P::tg)
      .Choice("ci", "Importance Factor (Ci) :", &P::ci, Texts(kJtj004CiTexts))
      .Choice("cz", "General Effect Factor (Cz) :", &P::cz,
              Texts(kJtj004CzTexts))
      .Number("mu", "Site Estimation Coef. (μ) :", &P::mu)
      .Number("k", "Exponent (k) = 0.9 +  0.1μ :", &P::k)
      .Grid(&P::grid);
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (SuggestKh(f)) return true;
    if (f.Is(&P::site)) {
      const int site = f.Read().site;
      f.Show(&P::tg, Jtj004SuggestedTg(site));
      f.Show(&P::mu, Jtj004SuggestedMu(site));
    } else if (!f.Is(&P::mu)) {
      return true;
    }
    // k as the dialog shows it from the μ shown.
    f.Show(&P::k, 0.9 + 0.1 * f.Read().mu);
    return true;
  });
  code.State([](const Form<P>& f) {
    return f.Is(&P::k) ? FieldState::kReadOnly : FieldState::kEnabled;
  });
  return code.Build(GenerateJtj004);
}

CodeEntry Gbj111Entry() {
  using P = Gbj111Params;
  CodeBuilder<P> code("gbj111-87", "China(GBJ111-87)", "China(GBJ111-87)",
                      kGbj111Title);
  BridgeFields(code.fields())
      .Number("tg1",
              "Design Characteristic Period of Ground Motion (Tg1) (sec) :",
              &P::tg1)
      .Number("tg2", "Tg2 = 5 x Tg1 (sec) :", &P::tg2)
      .Number("cz", "General Effect Factor (Cz) :", &P::cz)
      .Text("1.0")
      .Grid(&P::grid);
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (SuggestKh(f)) return true;
    if (f.Is(&P::site)) {
      f.Show(&P::tg1, Gbj111SuggestedTg1(f.Read().site));
    } else if (!f.Is(&P::tg1)) {
      return true;
    }
    // Tg2 as the dialog shows it from the Tg1 shown.
    f.Show(&P::tg2, 5.0 * f.Read().tg1);
    return true;
  });
  code.State([](const Form<P>& f) {
    return f.Is(&P::tg2) ? FieldState::kReadOnly : FieldState::kEnabled;
  });
  return code.Build(GenerateGbj111);
}

}  // namespace zel
