#include "cli/scale_command.h"

#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/code_options.h"
#include "cli/number_text.h"
#include "cli/output_file.h"
#include "cli/record_argument.h"
#include "cli/stderr_messages.h"
#include "core/document/c_format.h"
#include "core/document/csv_export.h"
#include "core/document/input_file.h"
#include "core/document/replacing_file.h"
#include "core/records/record_choice.h"
#include "core/records/record_curve.h"
#include "core/records/record_reader.h"
#include "core/scaling/record_scaling.h"

namespace zel::cli {
namespace {

struct ScaleOptions {
  std::string code;
  std::string range;
  std::string t1;
  std::string range_factors = "0.2:1.5";
  std::string rule = "lsq";
  std::string fraction = "0.9";
  std::string damping = "0.05";
  std::string periods = "100";
  std::vector<std::string> suite;
  std::string base;
  std::string amplitude_scale = "1.0";
  std::string time_scale = "1.0";
  std::string output;
  std::string chart;
  CLI::App* command = nullptr;
};

[[noreturn]] void Fail(const std::string& text) { FailCommand("scale", text); }

double Number(const std::string& text, const std::string& option) {
  if (!IsNumberText(text)) Fail(option + ": '" + text + "' is not a number");
  return AtoF(text);
}

// "A:B" as two numbers.
std::pair<double, double> Pair(const std::string& text,
                               const std::string& option) {
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos) Fail(option + " takes LOW:HIGH");
  return {Number(text.substr(0, colon), option),
          Number(text.substr(colon + 1), option)};
}

ScalingSettings Settings(const ScaleOptions& options) {
  ScalingSettings settings;
  if (!options.t1.empty()) {
    if (!options.range.empty()) Fail("give --range or --t1, not both");
    const auto [low, high] = Pair(options.range_factors, "--range-factors");
    settings.range = RangeOfT1(Number(options.t1, "--t1"), low, high);
  } else if (!options.range.empty()) {
    const auto [low, high] = Pair(options.range, "--range");
    settings.range = {low, high};
  }
  if (options.rule == "lsq") {
    settings.rule = ScaleRule::kLeastSquares;
  } else if (options.rule == "min") {
    settings.rule = ScaleRule::kMinimum;
  } else {
    Fail("--rule must be lsq or min");
  }
  settings.fraction = Number(options.fraction, "--fraction");
  settings.damping = Number(options.damping, "--damping");
  settings.periods = TruncateToInt(Number(options.periods, "--periods"));
  return settings;
}

// The code options among the arguments the command did not know, and the
// record they leave; a check box option takes no value.
std::string SplitExtras(const CodeEntry& code, std::vector<std::string> extras,
                        std::map<std::string, std::string>& given) {
  std::string record;
  for (std::size_t i = 0; i < extras.size(); ++i) {
    const std::string& arg = extras[i];
    if (arg.rfind("--", 0) != 0) {
      if (!record.empty()) Fail("one record, or --suite for several");
      record = arg;
      continue;
    }
    std::string name = arg.substr(2);
    std::string value;
    const std::size_t equals = name.find('=');
    const bool inline_value = equals != std::string::npos;
    if (inline_value) {
      value = name.substr(equals + 1);
      name.resize(equals);
    }
    const ParamDescriptor* param = FindParam(code, name);
    if (param == nullptr) {
      Fail("--" + name + " is not an option of " + code.id +
           " (zel-cli design " + code.id + " --help lists them)");
    }
    if (param->kind == ParamKind::kCheck) {
      value = "1";
    } else if (!inline_value) {
      if (i + 1 == extras.size()) Fail("--" + name + " needs a value");
      value = extras[++i];
    }
    given[name] = value;
  }
  return record;
}

// A record read as the record dialog reads it, values in g.
struct LoadedRecord {
  std::string argument;
  CZELwDoc doc;
};

void Load(const ScaleOptions& options, LoadedRecord& record,
          MessageSink& messages) {
  std::string name;
  InputFile file =
      OpenRecordArgument(record.argument, options.base, messages, name);
  if (!file.is_open()) throw CLI::RuntimeError(1);
  PrepareRecordDocument(record.doc,
                        Number(options.amplitude_scale, "--amp-scale"),
                        Number(options.time_scale, "--time-scale"), name);
  if (ReadRecordFile(record.doc, std::move(file), messages,
                     TimeStepUse::kNeeded) != 1) {
    messages.Show(kRecordReadFailedMessage);
    throw CLI::RuntimeError(1);
  }
}

RecordInput Input(const LoadedRecord& record) {
  return {record.doc.record_name, record.doc.record_samples,
          record.doc.record_time_step};
}

void RunScale(const ScaleOptions& options) {
  const CodeEntry* code = FindDesignCode(options.code);
  if (code == nullptr) {
    Fail("no code '" + options.code + "' (zel-cli design --list shows them)");
  }
  std::map<std::string, std::string> given;
  std::string single = SplitExtras(*code, options.command->remaining(), given);
  if (single.empty() == options.suite.empty()) {
    Fail("name one record, or a suite with --suite");
  }
  const ScalingSettings settings = Settings(options);
  StderrMessages messages;
  const ParamValues values = EnterCodeValues(*code, given, "scale", messages);
  ScalingTarget target;
  if (!MakeScalingTarget(*code, values, settings, target, messages)) {
    throw CLI::RuntimeError(1);
  }

  std::vector<LoadedRecord> records(single.empty() ? options.suite.size() : 1);
  for (std::size_t i = 0; i < records.size(); ++i) {
    records[i].argument = single.empty() ? options.suite[i] : single;
    Load(options, records[i], messages);
  }
  if (!single.empty()) {
    ScaleResult result;
    if (!ScaleRecord(Input(records[0]), target, settings, result, messages)) {
      throw CLI::RuntimeError(1);
    }
    std::cout << ScaleResultText(target, settings, result) << '\n';
    if (!options.chart.empty()) {
      CZELwDoc chart;
      BuildComparisonDocument(chart, Input(records[0]), target, settings,
                              result);
      if (!SaveDocument(chart, options.chart, messages)) {
        throw CLI::RuntimeError(1);
      }
    }
    if (!options.output.empty()) {
      // The scaled record: the factor applied as its amplitude scale.
      CZELwDoc scaled;
      MakeScaledRecord(scaled, records[0].doc, result.factor);
      if (!SaveDocument(scaled, options.output, messages)) {
        throw CLI::RuntimeError(1);
      }
    }
    return;
  }

  std::vector<RecordInput> inputs;
  for (const LoadedRecord& record : records) inputs.push_back(Input(record));
  std::vector<std::vector<double>> spectra;
  ScaleResult result;
  if (!ScaleSuite(inputs, target, settings, spectra, result, messages)) {
    throw CLI::RuntimeError(1);
  }
  std::cout << ScaleResultText(target, settings, result)
            << "  (one factor for the suite's mean spectrum)\n";
  if (options.output.empty()) return;
  std::string csv = "record,factor,misfit\n";
  for (std::size_t i = 0; i < records.size(); ++i) {
    csv += CsvField(records[i].argument) +
           CFormat(",%.6f,%.6f\n", result.factor,
                   LogMisfit(spectra[i], target.code, result.factor));
  }
  csv +=
      CsvField("mean") + CFormat(",%.6f,%.6f\n", result.factor, result.misfit);
  if (!WriteTextFile(options.output, csv, messages)) {
    throw CLI::RuntimeError(1);
  }
}

}  // namespace

void AddScaleCommand(CLI::App& app) {
  auto options = std::make_shared<ScaleOptions>();
  CLI::App* command = app.add_subcommand(
      "scale",
      "Scale a record (ID|FILE) or a suite to a design code's spectrum; the "
      "code's options (see zel-cli design CODE --help) follow --code");
  options->command = command;
  command->allow_extras();
  command
      ->add_option("--code", options->code,
                   "Design code (zel-cli design "
                   "--list)")
      ->required();
  command->add_option("--range", options->range,
                      "Period range LOW:HIGH in sec (default 0.2:3.0)");
  command->add_option("--t1", options->t1,
                      "Fundamental period T1: the range is --range-factors "
                      "times T1");
  command->add_option("--range-factors", options->range_factors,
                      "LOW:HIGH multiples of T1 (default 0.2:1.5)");
  command->add_option("--rule", options->rule,
                      "lsq: least squares of the logarithms; min: smallest "
                      "factor keeping the spectrum at or above --fraction of "
                      "the code's (default lsq)");
  command->add_option("--fraction", options->fraction,
                      "Share of the code spectrum for --rule min (default "
                      "0.9)");
  command->add_option("--damping", options->damping,
                      "Damping ratio of the record's spectrum (default 0.05)");
  command->add_option("--periods", options->periods,
                      "Matching periods, log-spaced over the range (default "
                      "100)");
  command->add_option("--suite", options->suite,
                      "Records scaled together by one factor, so that their "
                      "mean spectrum meets the rule");
  command->add_option("--base", options->base,
                      "Folder holding dbase/ (default: the program's folder, "
                      "else the installed data folder)");
  command->add_option("--amp-scale", options->amplitude_scale,
                      "Amplitude scale of the record as read (default 1.0)");
  command->add_option("--time-scale", options->time_scale,
                      "Time scale (default 1.0)");
  command->add_option("-o,--output", options->output,
                      "The scaled record (.zel, or .csv for columns); with "
                      "--suite the CSV of factors");
  command->add_option("--chart", options->chart,
                      "The chart of the scaled spectrum over the code's");
  command->callback([options] { RunScale(*options); });
}

}  // namespace zel::cli
