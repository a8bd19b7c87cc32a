#include "cli/code_options.h"

#include <CLI/CLI.hpp>
#include <cctype>
#include <iostream>
#include <vector>

#include "cli/number_text.h"
#include "core/codes/field_table.h"
#include "core/document/c_format.h"

namespace zel::cli {
namespace {

bool IsIntegerText(const std::string& text) {
  std::size_t i = text.size() > 0 && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  if (i == text.size()) return false;
  for (; i < text.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(text[i]))) return false;
  }
  return true;
}

// The control's text for what the user typed, as the dialog would hold it.
std::string ControlText(const ParamDescriptor& param, const std::string& text,
                        const std::string& command) {
  const auto fail = [&](const std::string& why) {
    FailCommand(command, "--" + param.name + ": " + why);
  };
  switch (param.kind) {
    case ParamKind::kNumber:
      if (!IsNumberText(text)) fail("'" + text + "' is not a number");
      return text;
    case ParamKind::kCheck:
      return text;  // a flag: "1" when given
    case ParamKind::kList: {
      // As inserted one by one in the dialog's list.
      std::vector<double> values;
      std::size_t start = 0;
      while (true) {
        const std::size_t comma = text.find(',', start);
        const std::string item = text.substr(start, comma - start);
        if (!IsNumberText(item)) fail("'" + item + "' is not a number");
        values.push_back(AtoF(item));
        if (comma == std::string::npos) break;
        start = comma + 1;
      }
      if (static_cast<int>(values.size()) > param.capacity) {
        fail("at most " + std::to_string(param.capacity) + " values");
      }
      return JoinListText(values);
    }
    case ParamKind::kInteger:
      if (!IsIntegerText(text)) fail("'" + text + "' is not a whole number");
      return text;
    case ParamKind::kChoice:
      if (const int index = FindChoiceKey(param, text); index >= 0) {
        return CFormat("%d", index);
      }
      fail("'" + text + "' is not one of " + ChoiceKeys(param));
  }
  return text;
}

// Sets one field as a user would in the dialog, with its notification.
void Enter(const CodeEntry& code, ParamValues& values,
           const ParamDescriptor& param, const std::string& text,
           const std::string& command, MessageSink& messages) {
  if (GetFieldState(code, values, param.name) != FieldState::kEnabled) {
    FailCommand(command, "--" + param.name +
                             " cannot be used with these settings ('" +
                             Caption(param) + "' is disabled)");
  }
  values[param.name] = ControlText(param, text, command);
  if (!NotifyChanged(code, values, param.name, messages)) {
    throw CLI::RuntimeError(1);
  }
}

}  // namespace

void FailCommand(const std::string& command, const std::string& text) {
  std::cerr << "zel-cli " << command << ": " << text << '\n';
  throw CLI::RuntimeError(1);
}

std::string Caption(const ParamDescriptor& param) {
  std::string text = param.label;
  while (!text.empty() && (text.back() == ':' || text.back() == ' ')) {
    text.pop_back();
  }
  return text;
}

std::string ChoiceKeys(const ParamDescriptor& param) {
  std::string keys;
  for (const std::string& key : param.keys) {
    if (!keys.empty()) keys += ", ";
    keys += key;
  }
  return keys;
}

ParamValues EnterCodeValues(const CodeEntry& code,
                            const std::map<std::string, std::string>& given,
                            const std::string& command, MessageSink& messages) {
  ParamValues values = DefaultValues(code);
  // Fields that need a selection first (Ca needs "User Defined") make it,
  // unless the user gave that selection himself.
  std::map<std::string, std::string> texts = given;
  for (const ParamDescriptor& param : code.params) {
    if (!param.switch_name.empty() && texts.count(param.name) > 0 &&
        texts.count(param.switch_name) == 0) {
      const ParamDescriptor* switch_param = FindParam(code, param.switch_name);
      if (switch_param != nullptr && param.switch_index >= 0 &&
          param.switch_index < static_cast<int>(switch_param->keys.size())) {
        texts[param.switch_name] = switch_param->keys[param.switch_index];
      }
    }
  }
  // Top to bottom, in the order the dialog's fields depend on each other.
  for (const ParamDescriptor& param : code.params) {
    const auto it = texts.find(param.name);
    if (it != texts.end()) {
      Enter(code, values, param, it->second, command, messages);
    }
  }
  return values;
}

}  // namespace zel::cli
