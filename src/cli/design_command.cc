#include "cli/design_command.h"

#include <algorithm>
#include <cctype>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "cli/code_options.h"
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

[[noreturn]] void Fail(const std::string& text) { FailCommand("design", text); }

bool Given(const DesignRequest& request, const std::string& name) {
  return request.command->get_option("--" + name)->count() > 0;
}

void RunDesign(const DesignRequest& request) {
  const CodeEntry& code = *request.code;
  StderrMessages messages;
  std::map<std::string, std::string> given;
  for (const ParamDescriptor& param : code.params) {
    if (Given(request, param.name)) {
      given[param.name] = request.texts.at(param.name);
    }
  }
  const ParamValues values = EnterCodeValues(code, given, "design", messages);
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
