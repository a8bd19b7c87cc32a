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
      Atc306Entry(), Ubc88Entry(), Ubc97Entry(), Ibc2000Entry(), Kds2019Entry(),
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

bool IsFieldEnabled(const CodeEntry& code, const ParamValues& values,
                    std::string_view field) {
  return !code.enabled || code.enabled(values, field);
}

bool PrecheckCode(const CodeEntry& code, const ParamValues& values,
                  MessageSink& messages) {
  return !code.precheck || code.precheck(values, messages);
}

std::string TextValue(const ParamValues& values, std::string_view name) {
  const auto it = values.find(name);
  return it == values.end() ? std::string() : it->second;
}

double NumberValue(const ParamValues& values, std::string_view name) {
  return AtoF(TextValue(values, name));
}

int IntegerValue(const ParamValues& values, std::string_view name) {
  return TruncateToInt(NumberValue(values, name));
}

ParamDescriptor NumberParam(std::string name, std::string label,
                            std::string default_text, std::string group,
                            std::vector<std::string> drop_down) {
  ParamDescriptor param;
  param.name = std::move(name);
  param.label = std::move(label);
  param.kind = ParamKind::kNumber;
  param.default_text = std::move(default_text);
  param.items = std::move(drop_down);
  param.group = std::move(group);
  return param;
}

ParamDescriptor ChoiceParam(std::string name, std::string label,
                            int default_index, std::vector<std::string> items,
                            std::vector<std::string> keys, std::string group) {
  ParamDescriptor param;
  param.name = std::move(name);
  param.label = std::move(label);
  param.kind = ParamKind::kChoice;
  param.default_text = CFormat("%d", default_index);
  param.items = std::move(items);
  param.keys = std::move(keys);
  param.group = std::move(group);
  return param;
}

void AppendGridParams(std::vector<ParamDescriptor>& params) {
  constexpr char kGroup[] = "Output Period";
  const PeriodGrid defaults;
  params.push_back(
      NumberParam("from", "From", DisplayText(defaults.from), kGroup));
  params.push_back(NumberParam("to", "To", DisplayText(defaults.to), kGroup));
  ParamDescriptor steps =
      NumberParam("steps", "Step", CFormat("%d", defaults.steps), kGroup);
  steps.kind = ParamKind::kInteger;
  params.push_back(std::move(steps));
}

PeriodGrid GridFromValues(const ParamValues& values) {
  return {NumberValue(values, "from"), NumberValue(values, "to"),
          IntegerValue(values, "steps")};
}

}  // namespace zel
