// Registry entries of the Korean classic codes: the dialogs DLG_KS,
// DLG_KS2000 and DLG_KS_BRIDGE and their command-line parameters.
#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/korea_codes.h"

namespace zel {

namespace {

// The soil radios, one per factor of the code's table, and their
// command-line words: the first fields of every Korean code.
template <class P, std::size_t N>
FieldTable<P>& SoilChoice(FieldTable<P>& fields,
                          const std::array<double, N>& /*factors*/) {
  static_assert(N <= kKoreaSoilTexts.size());
  static constexpr const char* kKeys[] = {"S1", "S2", "S3", "S4"};
  return fields
      .Choice("soil", kKoreaSoilLabel, &P::soil,
              {kKoreaSoilTexts.begin(), kKoreaSoilTexts.begin() + N},
              {kKeys, kKeys + N})
      .Radio();
}

}  // namespace

CodeEntry Korea1992Entry() {
  using P = Korea1992Params;
  CodeBuilder<P> code("korea1992", "Korea(Arch.1992)", "Korea(Arch.1992)",
                      kKorea1992Title);
  SoilChoice(code.fields(), kKorea1992SoilFactors)
      .Number("epa", "Effective Peak Acceleration (EPA) :", &P::epa)
      .Number("importance",
              "Occupancy Importance Factor (OIF) :", &P::importance)
      .Number("r", "Response Modification Coef. (RMC):", &P::r)
      .Grid(&P::grid);
  return code.Build(GenerateKorea1992);
}

CodeEntry Korea2000Entry() {
  using P = Korea2000Params;
  CodeBuilder<P> code("korea2000", "Korea(Arch.2000)", "Korea(Arch.2000)",
                      kKorea2000Title);
  SoilChoice(code.fields(), kKorea2000SoilFactors)
      .Choice("area", kKorea2000AreaLabel, &P::area,
              {kKorea2000AreaTexts.begin(), kKorea2000AreaTexts.end()},
              {"1", "2"})
      .Radio()
      .Number("importance", "Importance Factor ( I ) :", &P::importance)
      .Text("1.0")
      .Number("r", "Response Modification Coef.(R):", &P::r)
      .Text("1.0")
      .Grid(&P::grid);
  return code.Build(GenerateKorea2000);
}

CodeEntry KoreaBridgeEntry() {
  using P = KoreaBridgeParams;
  CodeBuilder<P> code("korea-bridge", "Korea(Bridge)", "Korea(Bridge)",
                      kKoreaBridgeTitle);
  SoilChoice(code.fields(), kKoreaBridgeSoilFactors)
      .Number("area", "Earthquake Area (Ar) :", &P::area)
      .Number("r", "Response Modification Coef. (R):", &P::r)
      .Number("importance", "Importance factor ( I ) :", &P::importance)
      .Grid(&P::grid);
  return code.Build(GenerateKoreaBridge);
}

}  // namespace zel
