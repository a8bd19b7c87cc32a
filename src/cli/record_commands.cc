#include "cli/record_commands.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "cli/number_text.h"
#include "cli/output_file.h"
#include "cli/stderr_messages.h"
#include "core/document/c_format.h"
#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/records/chart_setup.h"
#include "core/records/frequency_switch.h"
#include "core/records/record_catalog.h"
#include "core/records/record_curve.h"
#include "core/records/record_folder.h"
#include "core/records/response_spectrum.h"

namespace zel::cli {
namespace {

// The record a command works on: a catalog entry named by its number or
// title, or any record file.
struct RecordSource {
  std::string path;
  std::string name;  // the catalog title, or "User EQ : " + the file name
};

// The options shared by the record commands.
struct RecordOptions {
  std::string record;
  std::string base;  // folder holding dbase/; RecordBaseFolder() if empty
  std::string amplitude_scale = "1.0";
  std::string time_scale = "1.0";
  std::string output;
};

[[noreturn]] void Fail(const std::string& text) {
  std::cerr << text << '\n';
  throw CLI::RuntimeError(1);
}

// The value of a number option; fails with a message naming the option when
// the text is not a number.
double Number(const std::string& text, const char* option) {
  if (!IsNumberText(text)) {
    Fail(std::string(option) + ": not a number: " + text);
  }
  return AtoF(text);
}

double NumberIn(const std::string& text, const char* option, double low,
                double high) {
  const double value = Number(text, option);
  if (!(value >= low && value <= high)) {
    Fail(std::string(option) + CFormat(" must be %g to %g", low, high));
  }
  return value;
}

RecordSource FindRecord(const RecordOptions& options,
                        StderrMessages& messages) {
  const auto catalog = RecordCatalog();
  const std::string folder =
      options.base.empty() ? RecordBaseFolder() : options.base;
  int number = 0;
  const std::string& id = options.record;
  const auto [stop, error] =
      std::from_chars(id.data(), id.data() + id.size(), number);
  if (!id.empty() && error == std::errc() && stop == id.data() + id.size()) {
    if (number < 1 || number > static_cast<int>(catalog.size())) {
      Fail(CFormat("No catalog entry %d (1 to %d)", number,
                   static_cast<int>(catalog.size())));
    }
    const char* title = catalog[number - 1].title;
    return {FindCatalogFile(title, messages, folder), title};
  }
  for (const CatalogEntry& entry : catalog) {
    if (id == entry.title) {
      return {FindCatalogFile(id, messages, folder), id};
    }
  }
  return {id, "User EQ : " + std::filesystem::path(id).filename().string()};
}

InputFile OpenRecord(const RecordSource& source) {
  InputFile file = InputFile::Open(source.path);
  if (!file.is_open()) {
    StderrMessages().ShowFileError(source.path, file.error());
    throw CLI::RuntimeError(1);
  }
  return file;
}

// Reads the record into a new record document, as the record dialog does.
CZELwDoc RecordDocument(const RecordOptions& options) {
  const double amplitude =
      NumberIn(options.amplitude_scale, "--amp-scale", 0.0, 100000.0);
  const double time = Number(options.time_scale, "--time-scale");
  StderrMessages messages;
  const RecordSource source = FindRecord(options, messages);
  InputFile file = OpenRecord(source);
  CZELwDoc doc;
  PrepareRecordDocument(doc, amplitude, time, source.name);
  if (ShowRecordCurve(doc, std::move(file), messages) != 1) {
    throw CLI::RuntimeError(1);
  }
  return doc;
}

void Save(const CZELwDoc& doc, const std::string& path) {
  StderrMessages messages;
  if (!SaveDocument(doc, path, messages)) throw CLI::RuntimeError(1);
}

void AddRecordOptions(CLI::App* command, RecordOptions& options) {
  command
      ->add_option("record", options.record,
                   "Catalog number (1-53) or title, or a record file")
      ->required();
  command->add_option("--amp-scale", options.amplitude_scale,
                      "Amplitude scale (default 1.0)");
  command->add_option("--time-scale", options.time_scale,
                      "Time scale (default 1.0)");
  command->add_option("--base", options.base,
                      "Folder holding dbase/ (default: the program's folder, "
                      "else the installed data folder)");
  command
      ->add_option("-o,--output", options.output,
                   "Output file: .csv for columns, else a .zel data file")
      ->required();
}

void AddCatalog(CLI::App& app) {
  CLI::App* command =
      app.add_subcommand("catalog", "List the built-in earthquake records");
  command->callback([] {
    int number = 1;
    for (const CatalogEntry& entry : RecordCatalog()) {
      std::cout << CFormat("%2d  %s\n    %s\n", number++, entry.title,
                           entry.caption);
    }
  });
}

void AddRecord(CLI::App& app) {
  auto options = std::make_shared<RecordOptions>();
  CLI::App* command = app.add_subcommand(
      "record", "Write the time history of an earthquake record");
  AddRecordOptions(command, *options);
  command->callback([options] {
    const CZELwDoc doc = RecordDocument(*options);
    std::cout << ContextLabel(doc) << '\n';
    Save(doc, options->output);
  });
}

int KindOfWord(const std::string& word) {
  const char* const words[] = {"psa", "psv", "sa", "sv", "sd", "dva"};
  for (int kind = 0; kind < 6; ++kind) {
    if (word == words[kind]) return kind;
  }
  Fail("--kind must be psa, psv, sa, sv, sd or dva");
}

void AddSpectrum(CLI::App& app) {
  struct SpectrumOptions {
    RecordOptions record;
    std::string damping = "0";
    std::string kind = "psa";
    std::string from = "0.01";
    std::string to = "10";
    std::string steps = "200";
    bool log = false;
  };
  auto options = std::make_shared<SpectrumOptions>();
  CLI::App* command = app.add_subcommand(
      "spectrum", "Write the response spectra of an earthquake record");
  AddRecordOptions(command, options->record);
  command->add_option("--damping", options->damping,
                      "Damping ratios, 1 to 6, comma-separated (default 0)");
  command->add_option("--kind", options->kind,
                      "psa, psv, sa, sv, sd or dva (default psa)");
  command->add_option("--from", options->from, "First period, s");
  command->add_option("--to", options->to, "End of the period range, s");
  command->add_option("--steps", options->steps, "Number of periods");
  command->add_flag("--log", options->log, "Logarithmic period axis");
  command->callback([options] {
    SpectrumSettings settings;
    settings.kind = KindOfWord(options->kind);
    settings.amplitude_scale =
        NumberIn(options->record.amplitude_scale, "--amp-scale", 0.0, 100.0);
    settings.period_from = NumberIn(options->from, "--from", 0.0, 100.0);
    const double steps = NumberIn(options->steps, "--steps", 1.0, 5000.0);
    if (steps != std::floor(steps)) Fail("--steps must be a whole number");
    settings.period_count = static_cast<int>(steps);
    settings.period_to = NumberIn(options->to, "--to", 0.0, 100.0);
    std::vector<std::string> ratios;
    std::string ratio;
    for (char c : options->damping + ",") {
      if (c != ',') {
        ratio.push_back(c);
        continue;
      }
      ratios.push_back(ratio);
      ratio.clear();
    }
    if (ratios.size() > static_cast<std::size_t>(kMaxCurves)) {
      Fail("--damping takes 1 to 6 ratios");
    }
    for (std::size_t k = 0; k < ratios.size(); ++k) {
      settings.damping[k] = NumberIn(ratios[k], "--damping", 0.0, 1.0);
    }
    settings.damping_count = static_cast<int>(ratios.size());
    settings.time_scale = Number(options->record.time_scale, "--time-scale");
    settings.log_axis = options->log;

    StderrMessages messages;
    const RecordSource source = FindRecord(options->record, messages);
    settings.record_name = source.name;
    InputFile file = OpenRecord(source);
    CZELwDoc doc;
    PrepareSpectrumDocument(doc, settings);
    if (ComputeResponseSpectrum(doc, std::move(file), messages) != 1) {
      throw CLI::RuntimeError(1);
    }
    Save(doc, options->record.output);
  });
}

void AddFft(CLI::App& app) {
  auto options = std::make_shared<RecordOptions>();
  CLI::App* command = app.add_subcommand(
      "fft", "Write the normalised Fourier amplitude spectrum of a record");
  AddRecordOptions(command, *options);
  command->callback([options] {
    CZELwDoc doc = RecordDocument(*options);
    StderrMessages messages;
    if (!SwitchTimeFrequency(doc, messages)) throw CLI::RuntimeError(1);
    std::cout << ContextLabel(doc) << '\n';
    Save(doc, options->output);
  });
}

}  // namespace

void AddRecordCommands(CLI::App& app) {
  AddCatalog(app);
  AddRecord(app);
  AddSpectrum(app);
  AddFft(app);
}

}  // namespace zel::cli
