// Registry entries of Japan (Arch. 2000) and NBC (1995): the dialogs
// CDLG_JPN2000 and CDLG_NBC1995 and their command-line parameters.
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/japan_nbc_codes.h"

namespace zel {

CodeEntry Japan2000Entry() {
  using P = Japan2000Params;
  CodeBuilder<P> code("japan2000", "Japan(Arch.2000)", "Japan(Arch.2000)",
                      kJapan2000Title);
  code.fields()
      .Choice("zone", kJapanZoneLabel, &P::zone,
              {kJapanZoneTexts.begin(), kJapanZoneTexts.end()},
              {"1", "2", "3", "4"})
      .Radio()
      .Choice("soil", kJapanSoilLabel, &P::soil,
              {kJapanSoilTexts.begin(), kJapanSoilTexts.end()})
      .Radio()
      .Number("co", "Base Shear Factor (Co) :", &P::co)
      .Grid(&P::grid);
  return code.Build(GenerateJapan2000);
}

CodeEntry Nbc1995Entry() {
  using P = Nbc1995Params;
  const std::vector<std::string> zones = {kNbcZoneTexts.begin(),
                                          kNbcZoneTexts.end()};
  CodeBuilder<P> code("nbc1995", "NBC(1995)", "NBC(1995)", kNbc1995Title);
  code.fields()
      .Number("v", "Zonal Velocity Ratio (v) :", &P::v)
      .Offer({kNbcVelocityRatioItems.begin(), kNbcVelocityRatioItems.end()})
      .Text("0.20")
      .In(kNbcGroup)
      .Choice("za", kNbcZaLabel, &P::za, zones)
      .In(kNbcGroup)
      .Choice("zv", kNbcZvLabel, &P::zv, zones)
      .In(kNbcGroup)
      .Grid(&P::grid);
  return code.Build(GenerateNbc1995);
}

}  // namespace zel
