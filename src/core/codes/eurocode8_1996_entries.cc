// Registry entries of Eurocode 8 (1996): the dialogs CDLG_EURO1996 and
// DLG_EURO1996_ELASTIC and their command-line parameters.
#include <string>
#include <vector>

#include "core/codes/eurocode8_1996.h"
#include "core/codes/field_table.h"

namespace zel {

namespace {

const std::vector<std::string> kSoilTexts = {kEc8SoilTexts.begin(),
                                             kEc8SoilTexts.end()};
const std::vector<std::string> kSoilKeys = {"A", "B", "C"};

}  // namespace

CodeEntry Ec8DesignEntry() {
  using P = Ec8DesignParams;
  CodeBuilder<P> code("ec8-1996-design", "Eurocode-8(1996) Design",
                      "Eurocode-8(1996) Design", kEc8DesignTitle);
  code.fields()
      .Choice("soil", kEc8SoilLabel, &P::soil, kSoilTexts, kSoilKeys)
      .Radio()
      .Number("qo", "Basic Behaviour Factor (qo) :", &P::qo)
      .Text("5.0")
      .Choice("kd", kEc8DuctilityLabel, &P::ductility,
              {kEc8DuctilityTexts.begin(), kEc8DuctilityTexts.end()},
              {"H", "M", "L"})
      .Radio()
      .Choice("kr", kEc8RegularityLabel, &P::regularity,
              {kEc8RegularityTexts.begin(), kEc8RegularityTexts.end()},
              {"regular", "irregular"})
      .Radio()
      .Number("kw", "Failure Mode Factor (Kw) :", &P::kw)
      .Number("alpha", "Design Ground Acceleration (Alpha) :", &P::alpha)
      .Unit("g")
      .Grid(&P::grid);
  return code.Build(GenerateEc8Design);
}

CodeEntry Ec8ElasticEntry() {
  using P = Ec8ElasticParams;
  CodeBuilder<P> code("ec8-1996-elastic", "Eurocode-8(1996) Elastic",
                      "Eurocode-8(1996) Elastic", kEc8ElasticTitle);
  code.fields()
      .Choice("soil", kEc8SoilLabel, &P::soil, kSoilTexts, kSoilKeys)
      .Radio()
      .Number("alpha", "Design Ground Acceleration (g):", &P::alpha)
      .Number("damping", "Viscous Damping Ratio (%) :", &P::damping)
      .Grid(&P::grid);
  return code.Build(GenerateEc8Elastic);
}

}  // namespace zel
