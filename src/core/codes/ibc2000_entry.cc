// Registry entry of IBC2000(ASCE7-98): the dialog CDLG_IBC2000 and its
// command-line parameters.
#include <string>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/ibc2000.h"

namespace zel {

namespace {

Ibc2000Params ParamsFrom(const ParamValues& v) {
  Ibc2000Params p;
  p.ss = NumberValue(v, "ss");
  p.s1 = NumberValue(v, "s1");
  p.importance = NumberValue(v, "importance");
  p.r = NumberValue(v, "r");
  p.site = IntegerValue(v, "site");
  p.category = IntegerValue(v, "category");
  p.grid = GridFromValues(v);
  return p;
}

}  // namespace

CodeEntry Ibc2000Entry() {
  const Ibc2000Params d;
  CodeEntry code;
  code.id = "ibc2000";
  code.menu_text = "IBC2000(ASCE7-98)";
  code.caption = "IBC2000(ASCE7-98)";
  code.title = kIbc2000Title;
  code.params = {
      NumberParam(
          "ss",
          "Mapped Spectral Response Acceleration at Short Period(Ss):", "0.25"),
      NumberParam(
          "s1",
          "Mapped Spectral Response Acceleration at 1 sec Period(S1):", "0.1"),
      NumberParam("importance", "Importance Factor ( I ) :", "1.0"),
      NumberParam("r", "Response Modification Coef. (R):", DisplayText(d.r)),
      ChoiceParam("site", "Site Class", d.site,
                  {kIbc2000SiteClasses.begin(), kIbc2000SiteClasses.end()},
                  {kIbc2000SiteClasses.begin(), kIbc2000SiteClasses.end()}),
      ChoiceParam(
          "category", "Seismic Design Category", d.category,
          {kIbc2000DesignCategories.begin(), kIbc2000DesignCategories.end()},
          {kIbc2000DesignCategories.begin(), kIbc2000DesignCategories.end()}),
  };
  AppendGridParams(code.params);
  code.precheck = [](const ParamValues& v, MessageSink& m) {
    return CheckIbc2000SiteClass(ParamsFrom(v), m);
  };
  code.generate = [](const ParamValues& v, CZELwDoc& doc, MessageSink& m) {
    return GenerateIbc2000(doc, ParamsFrom(v), m);
  };
  return code;
}

}  // namespace zel
