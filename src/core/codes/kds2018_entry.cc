// Registry entry of KDS(17-10-00:2018): the dialog DLG_KSCE2019, its
// notifications, and its command-line parameters.
#include "core/codes/field_table.h"
#include "core/codes/kds2018.h"

namespace zel {

CodeEntry Kds2018Entry() {
  using P = Kds2018Params;
  constexpr char kGroup[] = "Design Spectral Response Acceleration";
  CodeBuilder<P> code("kds2018", kKds2018Title, kKds2018Title, kKds2018Title);
  code.fields()
      .Choice("zone", "Seismic Zone (Z)", &P::zone,
              {kKds2018ZoneItems.begin(), kKds2018ZoneItems.end()}, {"1", "2"})
      .In(kGroup)
      .Number("risk", "Seismic Risk Factor ( I )", &P::risk)
      .Offer({kKds2018RiskItems.begin(), kKds2018RiskItems.end()})
      .In(kGroup)
      .Choice("site", "Site Class", &P::site,
              {kKds2018SiteClasses.begin(), kKds2018SiteClasses.end()})
      .In(kGroup)
      .Number("fa", "Seismic Coefficient(Fa)", &P::fa)
      .Format("%5f")
      .Needs("site", kKds2018SiteS6)
      .In(kGroup)
      .Number("fv", "Seismic Coefficient(Fv)", &P::fv)
      .Format("%5f")
      .Needs("site", kKds2018SiteS6)
      .In(kGroup)
      .Grid(&P::grid);
  // Fa and Fv: not shown for rock, typed for S6, computed otherwise.
  code.State([](const Form<P>& f) {
    if (!f.Is(&P::fa) && !f.Is(&P::fv)) return FieldState::kEnabled;
    const int site = f.Read().site;
    if (site == kKds2018SiteS1) return FieldState::kHidden;
    return site == kKds2018SiteS6 ? FieldState::kEnabled
                                  : FieldState::kReadOnly;
  });
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (f.Is(&P::zone) || f.Is(&P::risk) || f.Is(&P::site)) {
      P p = f.Read();
      if (Kds2018Refresh(p)) {
        f.Show(&P::fa, p.fa);
        f.Show(&P::fv, p.fv);
      }
    }
    return true;
  });
  code.Precheck(CheckKds2018);
  return code.Build(GenerateKds2018);
}

}  // namespace zel
