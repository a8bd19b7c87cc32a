#include "core/codes/code_registry.h"

#include <cctype>
#include <cstddef>
#include <utility>

#include "core/document/c_format.h"

namespace zel {

namespace {

bool SameIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) !=
        std::tolower(static_cast<unsigned char>(b[i]))) {
      return false;
    }
  }
  return true;
}

}  // namespace

const std::vector<CodeEntry>& DesignCodes() {
  // A new code adds its entry function here.
  static const std::vector<CodeEntry> codes = {
      Atc306Entry(),       Ubc88Entry(),       Ubc97Entry(),
      Ibc2000Entry(),      Nbc1995Entry(),     Ec8DesignEntry(),
      Ec8ElasticEntry(),   Japan2000Entry(),   Gb50011Entry(),
      Shanghai2003Entry(), Jtj004Entry(),      Gbj111Entry(),
      Kds2019Entry(),      Kbc2005Entry(),     Korea2000Entry(),
      Korea1992Entry(),    KoreaBridgeEntry(), Kds2018Entry(),
      Ntc2018Entry(),      NewmarkHallEntry(),
  };
  return codes;
}

std::string DisplayText(double value) { return CFormat("%g", value); }

int FindChoiceKey(const ParamDescriptor& param, std::string_view key) {
  for (std::size_t i = 0; i < param.keys.size(); ++i) {
    if (SameIgnoringCase(param.keys[i], key)) return static_cast<int>(i);
  }
  return -1;
}

const CodeEntry* FindDesignCode(std::string_view id) {
  for (const CodeEntry& code : DesignCodes()) {
    if (SameIgnoringCase(code.id, id)) return &code;
  }
  return nullptr;
}

ParamValues DefaultValues(const CodeEntry& code) {
  ParamValues values;
  for (const ParamDescriptor& param : code.params) {
    values[param.name] = param.default_text;
  }
  if (code.on_open) code.on_open(values);
  return values;
}

const ParamDescriptor* FindParam(const CodeEntry& code, std::string_view name) {
  for (const ParamDescriptor& param : code.params) {
    if (param.name == name) return &param;
  }
  return nullptr;
}

bool NotifyChanged(const CodeEntry& code, ParamValues& values,
                   std::string_view field, MessageSink& messages) {
  return !code.on_change || code.on_change(values, field, messages);
}

FieldState GetFieldState(const CodeEntry& code, const ParamValues& values,
                         std::string_view field) {
  return code.state ? code.state(values, field) : FieldState::kEnabled;
}

bool PrecheckCode(const CodeEntry& code, const ParamValues& values,
                  MessageSink& messages) {
  return !code.precheck || code.precheck(values, messages);
}

int IntegerText(std::string_view text) {
  return TruncateToInt(AtoF(std::string(text)));
}

}  // namespace zel
