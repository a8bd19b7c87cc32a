#include "cli/design_command.h"

#include <algorithm>
#include <cctype>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cli/number_text.h"
#include "cli/output_file.h"
#include "cli/stderr_messages.h"
#include "core/codes/code_registry.h"
#include "core/codes/field_table.h"
#include "core/document/c_format.h"
#include "core/document/curve_document.h"

namespace zel::cli {
namespace {

// What one code subcommand was given: option name -> text.
struct DesignRequest {
  const CodeEntry* code = nullptr;
  std::map<std::string, std::string> texts;
  std::string output;
  CLI::App* command = nullptr;
};

[[noreturn]] void Fail(const std::string& text) {
  std::cerr << "zel-cli design: " << text << '\n';
  throw CLI::RuntimeError(1);
}

bool Given(const DesignRequest& request, const std::string& name) {
  return request.command->get_option("--" + name)->count() > 0;
}

// The dialog label without its trailing colon, for help and messages.
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

bool IsIntegerText(const std::string& text) {
  std::size_t i = text.size() > 0 && (text[0] == '+' || text[0] == '-') ? 1 : 0;
  if (i == text.size()) return false;
  for (; i < text.size(); ++i) {
    if (!std::isdigit(static_cast<unsigned char>(text[i]))) return false;
  }
  return true;
}

// The control's text for what the user typed, as the dialog would hold it.
std::string ControlText(const ParamDescriptor& param, const std::string& text) {
  switch (param.kind) {
    case ParamKind::kNumber:
      if (!IsNumberText(text)) {
        Fail("--" + param.name + ": '" + text + "' is not a number");
      }
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
        if (!IsNumberText(item)) {
          Fail("--" + param.name + ": '" + item + "' is not a number");
        }
        values.push_back(AtoF(item));
        if (comma == std::string::npos) break;
        start = comma + 1;
      }
      if (static_cast<int>(values.size()) > param.capacity) {
        Fail("--" + param.name + ": at most " + std::to_string(param.capacity) +
             " values");
      }
      return JoinListText(values);
    }
    case ParamKind::kInteger:
      if (!IsIntegerText(text)) {
        Fail("--" + param.name + ": '" + text + "' is not a whole number");
      }
      return text;
    case ParamKind::kChoice:
      if (const int index = FindChoiceKey(param, text); index >= 0) {
        return CFormat("%d", index);
      }
      Fail("--" + param.name + ": '" + text + "' is not one of " +
           ChoiceKeys(param));
  }
  return text;
}

// Sets one field as a user would in the dialog, with its notification.
void Enter(const CodeEntry& code, ParamValues& values,
           const ParamDescriptor& param, const std::string& text,
           MessageSink& messages) {
  if (GetFieldState(code, values, param.name) != FieldState::kEnabled) {
    Fail("--" + param.name + " cannot be used with these settings ('" +
         Caption(param) + "' is disabled)");
  }
  values[param.name] = ControlText(param, text);
  if (!NotifyChanged(code, values, param.name, messages)) {
    throw CLI::RuntimeError(1);
  }
}

void RunDesign(const DesignRequest& request) {
  const CodeEntry& code = *request.code;
  StderrMessages messages;
  ParamValues values = DefaultValues(code);

  // Fields that need a selection first (Ca needs "User Defined") make it,
  // unless the user gave that selection himself.
  std::map<std::string, std::string> texts;
  for (const ParamDescriptor& param : code.params) {
    if (Given(request, param.name)) {
      texts[param.name] = request.texts.at(param.name);
    }
  }
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
    if (it != texts.end()) Enter(code, values, param, it->second, messages);
  }

  if (!PrecheckCode(code, values, messages)) throw CLI::RuntimeError(1);
  CZELwDoc doc;
  if (!code.generate(values, doc, messages)) throw CLI::RuntimeError(1);
  if (!SaveDocument(doc, request.output, messages)) {
    throw CLI::RuntimeError(1);
  }
}

std::string OptionHelp(const ParamDescriptor& param,
                       const std::string& default_text) {
  // A nested group ("Outer/Inner") is named by its own caption.
  const std::string group = param.group.substr(param.group.rfind('/') + 1);
  const std::string caption =
      group.empty() ? Caption(param) : group + " / " + Caption(param);
  if (param.kind == ParamKind::kChoice) {
    const int index = TruncateToInt(AtoF(default_text));
    const std::string chosen =
        index >= 0 && index < static_cast<int>(param.keys.size())
            ? param.keys[index]
            : "";
    return caption + ": " + ChoiceKeys(param) + " (default " + chosen + ")";
  }
  return caption + " (default " + default_text + ")";
}

const char* TypeName(const ParamDescriptor& param) {
  switch (param.kind) {
    case ParamKind::kNumber:
      return "NUMBER";
    case ParamKind::kCheck:
      return "";
    case ParamKind::kList:
      return "NUMBER,...";
    case ParamKind::kInteger:
      return "INT";
    case ParamKind::kChoice:
      return "CHOICE";
  }
  return "TEXT";
}

void PrintCodeList() {
  // The titles in one column after the longest name.
  int width = 0;
  for (const CodeEntry& code : DesignCodes()) {
    width = std::max(width, static_cast<int>(code.id.size()));
  }
  for (const CodeEntry& code : DesignCodes()) {
    std::cout << CFormat("%-*s %s\n", width, code.id.c_str(),
                         code.title.c_str());
  }
}

}  // namespace

void AddDesignCommand(CLI::App& app) {
  CLI::App* design = app.add_subcommand(
      "design", "Generate a design response spectrum by code");
  design->require_subcommand(0, 1);
  auto list = std::make_shared<bool>(false);
  design->add_flag("--list", *list, "List the codes and their titles");

  for (const CodeEntry& code : DesignCodes()) {
    auto request = std::make_shared<DesignRequest>();
    request->code = &code;
    CLI::App* command = design->add_subcommand(
        code.id, code.title + " (" + code.menu_text + ")");
    command->ignore_case();
    request->command = command;
    const ParamValues defaults = DefaultValues(code);
    for (const ParamDescriptor& param : code.params) {
      std::string& text = request->texts[param.name];
      if (param.kind == ParamKind::kCheck) {
        text = "1";  // what a given flag enters
        const bool on = IntegerText(defaults.at(param.name)) != 0;
        command->add_flag("--" + param.name)
            ->description(param.label +
                          (on ? " (default on)" : " (default off)"));
        continue;
      }
      command
          ->add_option("--" + param.name, text,
                       OptionHelp(param, defaults.at(param.name)))
          ->type_name(TypeName(param));
    }
    command
        ->add_option("-o,--output", request->output,
                     "File to write: .csv for columns, else a .zel file")
        ->required();
    command->callback([request] { RunDesign(*request); });
  }

  design->callback([design, list] {
    if (*list) {
      PrintCodeList();
    } else if (design->get_subcommands().empty()) {
      Fail("name a code (zel-cli design --list shows them)");
    }
  });
}

}  // namespace zel::cli
