// Registry entry of NTC2018: the dialog CDLG_NTC2018, its parameter refresh
// and enabling, and its command-line parameters.
#include "core/codes/field_table.h"
#include "core/codes/ntc2018.h"

namespace zel {

namespace {

using P = Ntc2018Params;

// S, Tb, Tc and Td as the refresh computes them, unless user-defined.
void ShowRefreshed(Form<P>& f) {
  P p = f.Read();
  if (!Ntc2018Refresh(p)) return;
  f.Show(&P::s, p.s);
  f.Show(&P::tb, p.tb);
  f.Show(&P::tc, p.tc);
  f.Show(&P::td, p.td);
}

}  // namespace

CodeEntry Ntc2018Entry() {
  constexpr char kGroup[] = "Spectrum Parameters";
  CodeBuilder<P> code("ntc2018", kNtc2018Caption, kNtc2018Caption,
                      kNtc2018Titles[0]);
  code.fields()
      .Choice("type", "Spectrum Type :", &P::type,
              {kNtc2018Types.begin(), kNtc2018Types.end()},
              {"h-elastic", "v-elastic", "h-design", "v-design"})
      .In(kGroup)
      .Choice("ground", "Ground Type :", &P::ground,
              {kNtc2018GroundTypes.begin(), kNtc2018GroundTypes.end()})
      .In(kGroup)
      .Choice("topography", "Topographic Category", &P::topography,
              {kNtc2018Topographies.begin(), kNtc2018Topographies.end()},
              {"T1", "T2", "T3", "T4", "user"})
      .Radio()
      .In(kGroup)
      .Number("s", "Soil Factor (S)", &P::s)
      .Needs("topography", P::kUserDefined)
      .In(kGroup)
      .Number("tb", "Tb", &P::tb)
      .Needs("topography", P::kUserDefined)
      .In(kGroup)
      .Number("tc", "Tc", &P::tc)
      .Needs("topography", P::kUserDefined)
      .In(kGroup)
      .Number("td", "Td", &P::td)
      .Needs("topography", P::kUserDefined)
      .In(kGroup)
      .Number("ag", "Maximum Horizontal Acc. (ag) :", &P::ag)
      .Unit("g")
      .Number("fo", "Amplification Factor (Fo) :", &P::fo)
      .Number("tcstar", "Period of constant Hor.Acc. (Tc*) :", &P::tc_star)
      .Number("xi", "Viscous Damping Ratio (xi) :", &P::xi)
      .Unit("%")
      .Number("q", "Behavior Factor (q) :", &P::q)
      .Grid(&P::grid);
  code.OnOpen(ShowRefreshed);
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (f.Is(&P::type) || f.Is(&P::ground) || f.Is(&P::topography) ||
        f.Is(&P::ag) || f.Is(&P::fo) || f.Is(&P::tc_star)) {
      ShowRefreshed(f);
    }
    return true;
  });
  // Damping for the elastic spectra, q for the design ones; the four
  // spectrum parameters typed only when user-defined, S only horizontally.
  code.State([](const Form<P>& f) {
    const P p = f.Read();
    const bool user = p.topography == P::kUserDefined;
    if (f.Is(&P::xi) || f.Is(&P::q)) {
      return Ntc2018IsElastic(p.type) == f.Is(&P::xi) ? FieldState::kEnabled
                                                      : FieldState::kDisabled;
    }
    bool typed = true;
    if (f.Is(&P::s)) typed = user && !Ntc2018IsVertical(p.type);
    if (f.Is(&P::tb) || f.Is(&P::tc) || f.Is(&P::td)) typed = user;
    return typed ? FieldState::kEnabled : FieldState::kReadOnly;
  });
  return code.Build(GenerateNtc2018);
}

}  // namespace zel
