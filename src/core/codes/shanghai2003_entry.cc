// Registry entry of China Shanghai(DGJ08-9-2003): the dialog CDLG_CHSH2003,
// its Tg suggestion and its command-line parameters.
#include "core/codes/field_table.h"
#include "core/codes/shanghai2003.h"

namespace zel {

CodeEntry Shanghai2003Entry() {
  using P = Shanghai2003Params;
  CodeBuilder<P> code("shanghai2003", kShanghai2003Title, kShanghai2003Title,
                      kShanghai2003Title);
  code.fields()
      .Choice(
          "intensity", "Seismic Fortification Intensity", &P::intensity,
          {kShanghai2003Intensities.begin(), kShanghai2003Intensities.end()},
          {"6", "7", "8"})
      .Radio()
      .Choice(
          "site", "Site Class", &P::site,
          {kShanghai2003SiteClasses.begin(), kShanghai2003SiteClasses.end()})
      .Radio()
      .Choice("effect", "Earthquake Effect", &P::effect,
              {kShanghai2003Effects.begin(), kShanghai2003Effects.end()},
              {"frequent", "scarce"})
      .Radio()
      .Number("tg", "Design Characteristic Period of Ground Motion (Tg) (sec):",
              &P::tg)
      .Number("damping", "Damping Ratio :", &P::damping)
      .Grid(&P::grid);
  // A click on a site class or an effect suggests Tg; it may be typed over.
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (f.Is(&P::site) || f.Is(&P::effect)) {
      const P p = f.Read();
      f.Show(&P::tg, Shanghai2003Tg(p.site, p.effect));
    }
    return true;
  });
  return code.Build(GenerateShanghai2003);
}

}  // namespace zel
