// Registry entry of KBC(2005): the dialog DLG_KBC2005, its enabling rules
// and notifications, and its command-line parameters.
#include "core/codes/field_table.h"
#include "core/codes/kbc2005.h"

namespace zel {

CodeEntry Kbc2005Entry() {
  using P = Kbc2005Params;
  CodeBuilder<P> code("kbc2005", kKbc2005Caption, kKbc2005Caption,
                      kKbc2005Title);
  code.fields()
      .Choice("mode", "Design Spectral Acceleration (Sds, Sd1)", &P::mode,
              {kKbc2005Modes.begin(), kKbc2005Modes.end()}, {"code", "user"})
      .Radio()
      .Choice("zone", "Seismic Zone", &P::zone,
              {kKbc2005ZoneItems.begin(), kKbc2005ZoneItems.end()}, {"1", "2"})
      .Choice("site", "Site Class", &P::site,
              {kKbc2005SiteClasses.begin(), kKbc2005SiteClasses.end()})
      .Number("sds", "Sds (at Short Periods)", &P::sds)
      .Unit("g")
      .Needs("mode", P::kUserDefined)
      .Number("sd1", "Sd1 (at 1 s Period)", &P::sd1)
      .Unit("g")
      .Needs("mode", P::kUserDefined)
      .Number("importance", "Importance Factor (Ie)", &P::ie)
      .Offer({kKbc2005ImportanceItems.begin(), kKbc2005ImportanceItems.end()})
      .Number("r", "Response Modification Coef. (R)", &P::r)
      .Offer({kKbc2005RItems.begin(), kKbc2005RItems.end()})
      .Check("relieve",
             "Relieve Design Spectum Acc. for the period of less than 0.3 s "
             "(Sd, Se Only)",
             &P::relieve)
      .Grid(&P::grid);
  code.State([](const Form<P>& f) {
    const P p = f.Read();
    bool on = true;
    if (f.Is(&P::zone) || f.Is(&P::site)) on = p.mode == P::kPerCode;
    if (f.Is(&P::sds) || f.Is(&P::sd1)) on = p.mode == P::kUserDefined;
    if (f.Is(&P::relieve)) on = p.site >= kKbc2005FirstRelievedSite;
    return on ? FieldState::kEnabled : FieldState::kDisabled;
  });
  // The Per Code values are written in either mode; in User Defined mode
  // the user types over them afterwards.
  code.OnChange([](Form<P>& f, MessageSink&) {
    if (f.Is(&P::mode) || f.Is(&P::zone) || f.Is(&P::site)) {
      P p = f.Read();
      if (Kbc2005Refresh(p.zone, p.site, p.sds, p.sd1)) {
        f.Show(&P::sds, p.sds);
        f.Show(&P::sd1, p.sd1);
      }
    }
    return true;
  });
  return code.Build(GenerateKbc2005);
}

}  // namespace zel
