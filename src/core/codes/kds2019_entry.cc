// Registry entry of KDS(41-17-00:2019): the dialog DLG_KDS2019, its
// notifications, and its command-line parameters.
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/kds2019.h"

namespace zel {

namespace {

template <std::size_t N>
std::vector<std::string> Texts(const std::array<const char*, N>& texts) {
  return {texts.begin(), texts.end()};
}

}  // namespace

CodeEntry Kds2019Entry() {
  using P = Kds2019Params;
  constexpr char kGroup[] = "Design Spectral Response Acceleration";
  CodeBuilder<P> code("kds2019", kKds2019Title, kKds2019Title, kKds2019Title);
  code.fields()
      .Choice("zone", "Seismic Zone", &P::zone, Texts(kKds2019Zones))
      .In(kGroup)
      .Number("epa", "EPA(S)", &P::s)
      .Offer(Texts(kKds2019EpaItems))
      .In(kGroup)
      .Choice("site", "Site Class", &P::site, Texts(kKds2019SiteClasses))
      .In(kGroup)
      .Number("fa", "Fa", &P::fa)
      .In(kGroup)
      .Number("fv", "Fv", &P::fv)
      .In(kGroup)
      .Number("sds", "Sds", &P::sds)
      .Unit("g")
      .In(kGroup)
      .Number("sd1", "Sd1", &P::sd1)
      .Unit("g")
      .In(kGroup)
      .Number("importance", "Importance Factor (Ie)", &P::ie)
      .Offer(Texts(kKds2019ImportanceItems))
      .Number("r", "Response Modification Coef. (R)", &P::r)
      .Offer(Texts(kKds2019RItems))
      .Grid(&P::grid);
  code.OnChange([](Form<P>& f, MessageSink&) {
    const bool hand_entry = f.Read().site == kKds2019SiteS6;
    if (f.Is(&P::zone) && !hand_entry) {
      f.ShowText(&P::s, Kds2019EpaForZone(f.Read().zone));
    } else if (!f.Is(&P::site) && !(f.Is(&P::s) && !hand_entry)) {
      return true;
    }
    // Fa, Fv, Sds and Sd1 from the EPA text and the site class, written
    // back as the edit boxes show them.
    const P p = f.Read();
    Kds2019Coefficients c;
    if (Kds2019Refresh(p.s, p.site, c)) {
      f.Show(&P::fa, c.fa);
      f.Show(&P::fv, c.fv);
      f.Show(&P::sds, c.sds);
      f.Show(&P::sd1, c.sd1);
    }
    return true;
  });
  return code.Build(GenerateKds2019);
}

}  // namespace zel
