// Registry entry of IBC2000(ASCE7-98): the dialog CDLG_IBC2000 and its
// command-line parameters.
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/ibc2000.h"

namespace zel {

CodeEntry Ibc2000Entry() {
  using P = Ibc2000Params;
  CodeBuilder<P> code("ibc2000", "IBC2000(ASCE7-98)", "IBC2000(ASCE7-98)",
                      kIbc2000Title);
  code.fields()
      .Number(
          "ss",
          "Mapped Spectral Response Acceleration at Short Period(Ss):", &P::ss)
      .Text("0.25")
      .Number(
          "s1",
          "Mapped Spectral Response Acceleration at 1 sec Period(S1):", &P::s1)
      .Text("0.1")
      .Number("importance", "Importance Factor ( I ) :", &P::importance)
      .Text("1.0")
      .Number("r", "Response Modification Coef. (R):", &P::r)
      .Choice("site", "Site Class", &P::site,
              {kIbc2000SiteClasses.begin(), kIbc2000SiteClasses.end()})
      .Radio()
      .Choice(
          "category", "Seismic Design Category", &P::category,
          {kIbc2000DesignCategories.begin(), kIbc2000DesignCategories.end()})
      .Radio()
      .Grid(&P::grid);
  code.Precheck(CheckIbc2000SiteClass);
  return code.Build(GenerateIbc2000);
}

}  // namespace zel
