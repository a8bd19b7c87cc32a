// Registry entries of the US codes: the dialogs DLG_ATC, DLG_UBC and
// DLG_UBC97 and their command-line parameters.
#include <span>
#include <string>
#include <vector>

#include "core/codes/code_registry.h"
#include "core/codes/ubc97_coefficients.h"
#include "core/codes/us_codes.h"

namespace zel {

namespace {

std::vector<std::string> Texts(std::span<const char* const> texts) {
  return {texts.begin(), texts.end()};
}

ParamDescriptor SoilFactorParam() {
  return ChoiceParam("soil", "Soil Profile Type", 0, Texts(kSoilFactorTexts),
                     {"S1", "S2", "S3"});
}

ParamDescriptor UserDefined(ParamDescriptor param) {
  param.switch_name = "option";
  param.switch_index = Ubc97Params::kUserDefined;
  return param;
}

}  // namespace

CodeEntry Atc306Entry() {
  const Atc306Params d;
  CodeEntry code;
  code.id = "atc3-06";
  code.menu_text = "ATC 3-06";
  code.caption = "ATC 3-06";
  code.title = kAtc306Title;
  code.params = {
      SoilFactorParam(),
      NumberParam("aa", "EPA related coefficient (Aa) :", DisplayText(d.aa)),
      NumberParam("av", "EPV related coefficient (Av) :", DisplayText(d.av)),
      NumberParam("r", "Response Modification Coef. (R):", DisplayText(d.r)),
  };
  AppendGridParams(code.params);
  code.generate = [](const ParamValues& v, CZELwDoc& doc, MessageSink& m) {
    Atc306Params p;
    p.soil = IntegerValue(v, "soil");
    p.aa = NumberValue(v, "aa");
    p.av = NumberValue(v, "av");
    p.r = NumberValue(v, "r");
    p.grid = GridFromValues(v);
    return GenerateAtc306(doc, p, m);
  };
  return code;
}

CodeEntry Ubc88Entry() {
  const Ubc88Params d;
  CodeEntry code;
  code.id = "ubc88-94";
  code.menu_text = "UBC 88-94";
  code.caption = "UBC 88-94";
  code.title = kUbc88Title;
  code.params = {
      SoilFactorParam(),
      NumberParam("z", "Seismic Zone Factor (Z) :", DisplayText(d.z)),
      NumberParam("rw", "Numerical Coefficient (Rw) :", DisplayText(d.rw)),
      NumberParam("importance",
                  "Importance Factor ( I ) :", DisplayText(d.importance)),
  };
  AppendGridParams(code.params);
  code.generate = [](const ParamValues& v, CZELwDoc& doc, MessageSink& m) {
    Ubc88Params p;
    p.soil = IntegerValue(v, "soil");
    p.z = NumberValue(v, "z");
    p.importance = NumberValue(v, "importance");
    p.rw = NumberValue(v, "rw");
    p.grid = GridFromValues(v);
    return GenerateUbc88(doc, p, m);
  };
  return code;
}

CodeEntry Ubc97Entry() {
  const Ubc97Params d;
  constexpr char kAutomaticGroup[] = "Data for Automatic Calculation";
  constexpr char kZone4Group[] = "For Zone 4";
  CodeEntry code;
  code.id = "ubc97";
  code.menu_text = "UBC(1997)";
  code.caption = "UBC(1997)";
  code.title = kUbc97Title;
  // The automatic data come before Ca and Cv: a change there rewrites them.
  code.params = {
      ChoiceParam("option", "Seismic Coefficients Calculation Option", d.option,
                  {"Automatic", "User Defined"}, {"automatic", "user"}),
      ChoiceParam("zone", "Seismic Zone Factor (Z) :", d.zone,
                  Texts(kUbc97ZoneTexts), {"1", "2A", "2B", "3", "4"},
                  kAutomaticGroup),
      ChoiceParam("soil", "Soil Profile Type (S) :", d.soil,
                  Texts(kUbc97SoilTexts), Texts(kUbc97SoilTexts),
                  kAutomaticGroup),
      ChoiceParam("source", "Seismic Source Type  :", d.source,
                  Texts(kUbc97SourceTexts), Texts(kUbc97SourceTexts),
                  kZone4Group),
      NumberParam("distance",
                  "Closest Distance to Known Seismic Source (km)   :", "10.0",
                  kZone4Group),
      UserDefined(
          NumberParam("ca", "Seismic Coefficient (Ca) :", DisplayText(d.ca))),
      UserDefined(
          NumberParam("cv", "Seismic Coefficient (Cv) :", DisplayText(d.cv))),
      NumberParam("r", "Numerical Coefficient (R) :", DisplayText(d.r)),
      NumberParam("importance",
                  "Importance Factor ( I ) :", DisplayText(d.importance)),
  };
  AppendGridParams(code.params);
  code.enabled = [](const ParamValues& v, std::string_view field) {
    const bool automatic = IntegerValue(v, "option") == Ubc97Params::kAutomatic;
    if (field == "ca" || field == "cv") return !automatic;
    if (field == "zone" || field == "soil") return automatic;
    if (field == "source" || field == "distance") {
      return automatic && IntegerValue(v, "zone") == kUbc97Zone4;
    }
    return true;
  };
  code.on_change = [](ParamValues& v, std::string_view field, MessageSink& m) {
    if (field != "option" && field != "zone" && field != "soil" &&
        field != "source" && field != "distance") {
      return true;
    }
    return Ubc97CoefficientTexts(
        IntegerValue(v, "zone"), IntegerValue(v, "soil"),
        IntegerValue(v, "source"), NumberValue(v, "distance"), v["ca"], v["cv"],
        m);
  };
  code.generate = [](const ParamValues& v, CZELwDoc& doc, MessageSink& m) {
    Ubc97Params p;
    p.option = IntegerValue(v, "option");
    p.zone = IntegerValue(v, "zone");
    p.soil = IntegerValue(v, "soil");
    p.source = IntegerValue(v, "source");
    p.distance = NumberValue(v, "distance");
    p.ca = NumberValue(v, "ca");
    p.cv = NumberValue(v, "cv");
    p.importance = NumberValue(v, "importance");
    p.r = NumberValue(v, "r");
    p.grid = GridFromValues(v);
    return GenerateUbc97(doc, p, m);
  };
  return code;
}

}  // namespace zel
