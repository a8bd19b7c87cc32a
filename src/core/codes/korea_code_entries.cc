// Registry entries of the Korean classic codes: the dialogs DLG_KS,
// DLG_KS2000 and DLG_KS_BRIDGE and their command-line parameters.
#include <string>
#include <vector>

#include "core/codes/field_table.h"
#include "core/codes/korea_codes.h"

namespace zel {

namespace {

// The first `count` soil radios, and their command-line words.
std::vector<std::string> SoilTexts(std::size_t count) {
  return {kKoreaSoilTexts.begin(), kKoreaSoilTexts.begin() + count};
}
std::vector<std::string> SoilKeys(std::size_t count) {
  static constexpr const char* kKeys[] = {"S1", "S2", "S3", "S4"};
  return {kKeys, kKeys + count};
}

}  // namespace

CodeEntry Korea1992Entry() {
  using P = Korea1992Params;
  constexpr std::size_t kSoils = kKorea1992SoilFactors.size();
  CodeBuilder<P> code("korea1992", "Korea(Arch.1992)", "Korea(Arch.1992)",
                      kKorea1992Title);
  code.fields()
      .Choice("soil", kKoreaSoilLabel, &P::soil, SoilTexts(kSoils),
              SoilKeys(kSoils))
      .Radio()
      .Number("epa", "Effective Peak Acceleration (EPA) :", &P::epa)
      .Number("importance",
              "Occupancy Importance Factor (OIF) :", &P::importance)
      .Number("r", "Response Modification Coef. (RMC):", &P::r)
      .Grid(&P::grid);
  return code.Build(GenerateKorea1992);
}

CodeEntry Korea2000Entry() {
  using P = Korea2000Params;
  constexpr std::size_t kSoils = kKorea2000SoilFactors.size();
  CodeBuilder<P> code("korea2000", "Korea(Arch.2000)", "Korea(Arch.2000)",
                      kKorea2000Title);
  code.fields()
      .Choice("soil", kKoreaSoilLabel, &P::soil, SoilTexts(kSoils),
              SoilKeys(kSoils))
      .Radio()
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
  constexpr std::size_t kSoils = kKoreaBridgeSoilFactors.size();
  CodeBuilder<P> code("korea-bridge", "Korea(Bridge)", "Korea(Bridge)",
                      kKoreaBridgeTitle);
  code.fields()
      .Choice("soil", kKoreaSoilLabel, &P::soil, SoilTexts(kSoils),
              SoilKeys(kSoils))
      .Radio()
      .Number("area", "Earthquake Area (Ar) :", &P::area)
      .Number("r", "Response Modification Coef. (R):", &P::r)
      .Number("importance", "Importance factor ( I ) :", &P::importance)
      .Grid(&P::grid);
  return code.Build(GenerateKoreaBridge);
}

}  // namespace zel
