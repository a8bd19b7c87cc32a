// Registry entry of KDS(41-17-00:2019): the dialog DLG_KDS2019, its
// notifications, and its command-line parameters.
#include <string>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/kds2019.h"

namespace zel {

namespace {

constexpr char kGroup[] = "Design Spectral Response Acceleration";

// Fa, Fv, Sds and Sd1 recomputed from the EPA text and the site class and
// written back as the edit boxes show them.
void RefreshCoefficients(ParamValues& v) {
  Kds2019Coefficients c;
  if (!Kds2019Refresh(NumberValue(v, "epa"), IntegerValue(v, "site"), c)) {
    return;
  }
  v["fa"] = DisplayText(c.fa);
  v["fv"] = DisplayText(c.fv);
  v["sds"] = DisplayText(c.sds);
  v["sd1"] = DisplayText(c.sd1);
}

}  // namespace

CodeEntry Kds2019Entry() {
  const Kds2019Params d;
  CodeEntry code;
  code.id = "kds2019";
  code.menu_text = kKds2019Title;
  code.caption = kKds2019Title;
  code.title = kKds2019Title;
  code.params = {
      ChoiceParam("zone", "Seismic Zone", d.zone,
                  {kKds2019Zones.begin(), kKds2019Zones.end()},
                  {kKds2019Zones.begin(), kKds2019Zones.end()}, kGroup),
      NumberParam("epa", "EPA(S)", DisplayText(d.s), kGroup,
                  {kKds2019EpaItems.begin(), kKds2019EpaItems.end()}),
      ChoiceParam("site", "Site Class", d.site,
                  {kKds2019SiteClasses.begin(), kKds2019SiteClasses.end()},
                  {kKds2019SiteClasses.begin(), kKds2019SiteClasses.end()},
                  kGroup),
      NumberParam("fa", "Fa", DisplayText(d.fa), kGroup),
      NumberParam("fv", "Fv", DisplayText(d.fv), kGroup),
      NumberParam("sds", "Sds", DisplayText(d.sds), kGroup),
      NumberParam("sd1", "Sd1", DisplayText(d.sd1), kGroup),
      NumberParam(
          "importance", "Importance Factor (Ie)", DisplayText(d.ie), {},
          {kKds2019ImportanceItems.begin(), kKds2019ImportanceItems.end()}),
      NumberParam("r", "Response Modification Coef. (R)", DisplayText(d.r), {},
                  {kKds2019RItems.begin(), kKds2019RItems.end()}),
  };
  AppendGridParams(code.params);
  code.on_change = [](ParamValues& v, std::string_view field, MessageSink&) {
    const bool hand_entry = IntegerValue(v, "site") == kKds2019SiteS6;
    if (field == "zone" && !hand_entry) {
      v["epa"] = Kds2019EpaForZone(IntegerValue(v, "zone"));
      RefreshCoefficients(v);
    } else if (field == "epa" && !hand_entry) {
      RefreshCoefficients(v);
    } else if (field == "site") {
      RefreshCoefficients(v);
    }
    return true;
  };
  code.generate = [](const ParamValues& v, CZELwDoc& doc, MessageSink& m) {
    Kds2019Params p;
    p.zone = IntegerValue(v, "zone");
    p.site = IntegerValue(v, "site");
    p.s = NumberValue(v, "epa");
    p.fa = NumberValue(v, "fa");
    p.fv = NumberValue(v, "fv");
    p.sds = NumberValue(v, "sds");
    p.sd1 = NumberValue(v, "sd1");
    p.ie = NumberValue(v, "importance");
    p.r = NumberValue(v, "r");
    p.grid = GridFromValues(v);
    return GenerateKds2019(doc, p, m);
  };
  return code;
}

}  // namespace zel
