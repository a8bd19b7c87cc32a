#include "cli/record_commands.h"

#include <algorithm>
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
#include "cli/record_argument.h"
#include "cli/record_batch.h"
#include "cli/stderr_messages.h"
#include "core/document/c_format.h"
#include "core/document/csv_export.h"
#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/replacing_file.h"
#include "core/records/chart_setup.h"
#include "core/records/frequency_switch.h"
#include "core/records/ground_motion.h"
#include "core/records/record.h"
#include "core/records/record_catalog.h"
#include "core/records/record_choice.h"
#include "core/records/record_curve.h"
#include "core/records/record_reader.h"
#include "core/records/record_writer.h"
#include "core/records/response_spectrum.h"
#include "core/records/spectrum_choices.h"

namespace zel::cli {
namespace {

// The options shared by the record commands.
struct RecordOptions {
  std::vector<std::string> records;
  std::string base;  // folder holding dbase/; RecordBaseFolder() if empty
  std::string amplitude_scale = "1.0";
  std::string time_scale = "1.0";
  std::string output;
  bool csv = false;  // a folder of outputs holds CSV files
  // How to read a file that needs choices: several channels, or plain text.
  int channel = 1;
  std::string time_step;  // --dt, seconds
  std::string unit = "g";
  std::string columns;  // "TIME,ACCEL", 1-based, 0 for no time column
};

// The value of a number option; fails with a message naming the option when
// the text is not a number.
double Number(const std::string& text, const char* option) {
  if (!IsNumberText(text)) {
    FailWithMessage(std::string(option) + ": not a number: " + text);
  }
  return AtoF(text);
}

double NumberIn(const std::string& text, const char* option,
                const ValueRange& range) {
  const double value = Number(text, option);
  if (!InRange(value, range)) {
    FailWithMessage(std::string(option) +
                    CFormat(" must be %g to %g", range.min, range.max));
  }
  return value;
}

// The choices of --channel, --dt, --unit and --columns.
ImportChoices ChoicesOf(const RecordOptions& options) {
  ImportChoices choices;
  choices.channel = options.channel;
  if (!options.time_step.empty()) {
    choices.time_step = Number(options.time_step, "--dt");
    if (!(choices.time_step > 0.0) || !std::isfinite(choices.time_step)) {
      FailWithMessage("--dt must be above 0");
    }
  }
  if (!PlainUnitOfWord(options.unit, choices.unit)) {
    FailWithMessage("--unit must be g, gal, cm/s2, m/s2 or mm/s2");
  }
  if (!options.columns.empty()) {
    const std::size_t comma = options.columns.find(',');
    const std::string time = options.columns.substr(0, comma);
    const std::string accel =
        comma == std::string::npos ? "" : options.columns.substr(comma + 1);
    const auto column = [](const std::string& text, int low) {
      int value = -1;
      const auto [stop, error] =
          std::from_chars(text.data(), text.data() + text.size(), value);
      if (text.empty() || error != std::errc() ||
          stop != text.data() + text.size() || value < low) {
        FailWithMessage(
            "--columns takes TIME,ACCEL: column numbers from 1, 0 for no "
            "time column");
      }
      return value;
    };
    choices.time_column = column(time, 0);
    choices.accel_column = column(accel, 1);
  }
  return choices;
}

std::vector<BatchRecord> Plan(const RecordOptions& options) {
  return PlanBatch(options.records, options.output,
                   options.csv ? ".csv" : ".zel", [](const std::string& id) {
                     const CatalogEntry* entry = CatalogEntryOf(id);
                     return std::string(entry != nullptr ? entry->file : "");
                   });
}

// Ends the command with status 1 when any record failed.
void Finish(const std::vector<RecordOutcome>& outcomes) {
  for (const RecordOutcome& outcome : outcomes) {
    if (!outcome.ok) throw CLI::RuntimeError(1);
  }
}

// Reads record `id` into a new record document, as the record dialog does.
bool ReadRecordDocument(const std::string& id, const std::string& base,
                        const ImportChoices& choices, double amplitude,
                        double time, CZELwDoc& doc, MessageSink& messages) {
  std::string name;
  InputFile file = OpenRecordArgument(id, base, messages, name);
  if (!file.is_open()) return false;
  PrepareRecordDocument(doc, amplitude, time, name);
  return ShowRecordCurve(doc, std::move(file), messages, choices) == 1;
}

// The options that say how a record is read.
void AddReadingOptions(CLI::App* command, RecordOptions& options) {
  command->add_option("--amp-scale", options.amplitude_scale,
                      "Amplitude scale (default 1.0)");
  command->add_option("--time-scale", options.time_scale,
                      "Time scale (default 1.0)");
  command->add_option("--base", options.base,
                      "Folder holding dbase/ (default: the program's folder, "
                      "else the installed data folder)");
  command->add_option("--channel", options.channel,
                      "Channel of a file holding several, from 1 (default 1)");
  command->add_option("--dt", options.time_step,
                      "Plain text without times: the time step, s");
  command->add_option("--unit", options.unit,
                      "Plain text: g, gal, cm/s2, m/s2 or mm/s2 (default g)");
  command->add_option("--columns", options.columns,
                      "Plain text: TIME,ACCEL column numbers from 1, 0 for "
                      "no time column (default: the first two)");
}

void AddRecordOptions(CLI::App* command, RecordOptions& options) {
  command
      ->add_option("records", options.records,
                   "Catalog numbers (1-53) or titles, record files, or "
                   "folders of record files")
      ->required();
  AddReadingOptions(command, options);
  command
      ->add_option("-o,--output", options.output,
                   "Output file: .csv for columns, else a .zel data file; "
                   "for several records a folder")
      ->required();
  command->add_flag("--csv", options.csv,
                    "Write CSV files into a folder of outputs (default .zel)");
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

// `record` and `fft`: the time history of each record, or its Fourier
// amplitude spectrum, with the label the chart shows printed.
void AddHistoryCommand(CLI::App& app, const char* name, const char* help,
                       bool fourier) {
  auto options = std::make_shared<RecordOptions>();
  CLI::App* command = app.add_subcommand(name, help);
  AddRecordOptions(command, *options);
  command->callback([options, fourier] {
    const double amplitude = NumberIn(options->amplitude_scale, "--amp-scale",
                                      kRecordAmplitudeRange);
    const double time = Number(options->time_scale, "--time-scale");
    const ImportChoices choices = ChoicesOf(*options);
    const std::vector<BatchRecord> records = Plan(*options);
    Finish(RunBatch(records, [&](std::size_t i, RecordOutcome& outcome, int) {
      MessageSink& messages = outcome.messages;
      CZELwDoc doc;
      if (!ReadRecordDocument(records[i].argument, options->base, choices,
                              amplitude, time, doc, messages)) {
        return;
      }
      if (fourier && !SwitchTimeFrequency(doc, messages)) return;
      outcome.out = ContextLabel(doc) + "\n";
      outcome.ok = SaveDocument(doc, records[i].output, messages);
    }));
  });
}

// The response-spectrum settings of the options: the dialog's starting
// values where an option is left out, its ranges for those given.
struct SpectrumOptions {
  RecordOptions record;
  std::string damping;
  std::string kind;
  std::string from;
  std::string to;
  std::string steps;
  bool log = false;
  bool log_grid = false;
  bool linear_grid = false;
  bool exact = false;
  std::string summary;
};

SpectrumSettings SettingsOf(const SpectrumOptions& options) {
  SpectrumSettings s = DefaultSpectrumChoices();
  if (!options.kind.empty()) {
    s.kind = SpectrumKindOfWord(options.kind);
    if (s.kind < 0)
      FailWithMessage("--kind must be psa, psv, sa, sv, sd or dva");
  }
  s.amplitude_scale =
      NumberIn(options.record.amplitude_scale, "--amp-scale",
               SpectrumFieldRange(SpectrumField::kAmplitudeScale));
  if (!options.from.empty()) {
    s.period_from = NumberIn(options.from, "--from",
                             SpectrumFieldRange(SpectrumField::kPeriodFrom));
  }
  if (!options.steps.empty()) {
    const double steps =
        NumberIn(options.steps, "--steps",
                 SpectrumFieldRange(SpectrumField::kPeriodCount));
    if (steps != std::floor(steps))
      FailWithMessage("--steps must be a whole number");
    s.period_count = static_cast<int>(steps);
  }
  if (!options.to.empty()) {
    s.period_to = NumberIn(options.to, "--to",
                           SpectrumFieldRange(SpectrumField::kPeriodTo));
  }
  if (!options.damping.empty()) {
    std::vector<std::string> ratios(1);
    for (char c : options.damping) {
      if (c == ',') {
        ratios.emplace_back();
      } else {
        ratios.back().push_back(c);
      }
    }
    if (ratios.size() > static_cast<std::size_t>(kMaxCurves)) {
      FailWithMessage("--damping takes 1 to 6 ratios");
    }
    for (std::size_t k = 0; k < ratios.size(); ++k) {
      s.damping[k] = NumberIn(ratios[k], "--damping",
                              SpectrumFieldRange(SpectrumField::kDamping1));
    }
    s.damping_count = static_cast<int>(ratios.size());
  }
  s.time_scale = Number(options.record.time_scale, "--time-scale");
  s.log_axis = options.log;
  // A logarithmic axis gets log-spaced periods unless asked otherwise.
  s.log_grid = options.log_grid || (options.log && !options.linear_grid);
  s.exact_damping = options.exact;
  StderrMessages messages;
  if (!CheckSpectrumSettings(s, messages)) throw CLI::RuntimeError(1);
  return s;
}

// The summary's header: the record, its peak ground acceleration and the
// ordinate of every damping ratio at every period of the grid.
std::string SummaryHeader(const CZELwDoc& doc) {
  std::string row = "\"Record\",\"PGA (g)\"";
  for (int k = 0; k < doc.curve_count; ++k) {
    for (std::size_t j = 0; j < doc.StoredPoints(k); ++j) {
      row += ',' + CsvField(CFormat(
                       "%s at T=%g s, damping %g", doc.AxisTitle(1).c_str(),
                       doc.store().Value(j, 2 * k), doc.damping[k]));
    }
  }
  return row + '\n';
}

std::string SummaryRow(const CZELwDoc& doc) {
  double peak = 0.0;
  for (const RecordSample& s : doc.record_samples) {
    peak = std::max(peak, std::fabs(s.value));
  }
  const double g = doc.results_in_g == 1 ? 1.0 : doc.gravity;
  std::string row =
      CsvField(doc.record_name) + ',' + CFormat("%.10g", peak / g);
  for (int k = 0; k < doc.curve_count; ++k) {
    for (std::size_t j = 0; j < doc.StoredPoints(k); ++j) {
      row += ',';
      AppendCsvNumber(row, doc.store().Value(j, 2 * k + 1));
    }
  }
  return row + '\n';
}

void AddSpectrum(CLI::App& app) {
  auto options = std::make_shared<SpectrumOptions>();
  const SpectrumSettings defaults = DefaultSpectrumChoices();
  CLI::App* command = app.add_subcommand(
      "spectrum", "Write the response spectra of earthquake records");
  AddRecordOptions(command, options->record);
  command->add_option("--damping", options->damping,
                      CFormat("Damping ratios, 1 to 6, comma-separated "
                              "(default %g)",
                              defaults.damping[0]));
  command->add_option(
      "--kind", options->kind,
      CFormat("psa, psv, sa, sv, sd or dva (default %s)",
              SpectrumKindWords()[static_cast<std::size_t>(defaults.kind)]));
  command->add_option(
      "--from", options->from,
      CFormat("First period, s (default %g)", defaults.period_from));
  command->add_option(
      "--to", options->to,
      CFormat("End of the period range, s (default %g)", defaults.period_to));
  command->add_option(
      "--steps", options->steps,
      CFormat("Number of periods (default %d)", defaults.period_count));
  command->add_flag("--log", options->log,
                    "Logarithmic period axis, with log-spaced periods unless "
                    "--linear-grid");
  command
      ->add_flag("--log-grid", options->log_grid,
                 "Periods spaced geometrically from --from to --to, both "
                 "included (--from > 0)")
      ->excludes(command->add_flag(
          "--linear-grid", options->linear_grid,
          "The half-open linear period grid, also with --log"));
  command->add_flag("--exact", options->exact,
                    "Textbook decay rate zeta*omega in the oscillator's "
                    "velocity and acceleration terms; titles say (exact)");
  command->add_option("--summary", options->summary,
                      "CSV table: a row per record of its name, PGA and "
                      "ordinates");
  command->callback([options] {
    const SpectrumSettings settings = SettingsOf(*options);
    const ImportChoices choices = ChoicesOf(options->record);
    const std::vector<BatchRecord> records = Plan(options->record);
    // The summary's header and row of each record that got a spectrum.
    std::vector<std::string> headers(records.size()), rows(records.size());
    const std::vector<RecordOutcome> outcomes = RunBatch(
        records, [&](std::size_t i, RecordOutcome& outcome, int threads) {
          MessageSink& messages = outcome.messages;
          SpectrumSettings s = settings;
          InputFile file =
              OpenRecordArgument(records[i].argument, options->record.base,
                                 messages, s.record_name);
          if (!file.is_open()) return;
          CZELwDoc doc;
          PrepareSpectrumDocument(doc, s);
          if (ReadRecordFile(doc, std::move(file), messages,
                             TimeStepUse::kNeeded, choices) != 1) {
            messages.Show(kRecordReadFailedMessage);
            return;
          }
          s.record_name = doc.record_name;  // with the file's description
          SpectrumRun run;
          run.kernel.threads = threads;
          if (ComputeResponseSpectrum(doc, s, doc.record_samples,
                                      doc.record_time_step, messages,
                                      run) != 1 ||
              !SaveDocument(doc, records[i].output, messages)) {
            return;
          }
          if (!options->summary.empty()) {
            headers[i] = SummaryHeader(doc);
            rows[i] = SummaryRow(doc);
          }
          outcome.ok = true;
        });
    std::string table;
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
      if (table.empty()) table = headers[i];
      table += rows[i];
    }
    if (!table.empty()) {
      ReplacingFile file(options->summary);
      if (!(file.is_open() && file.Write(table) && file.Commit())) {
        FailWithMessage(std::string(kFileNotFoundMessage) + " " +
                        options->summary);
      }
    }
    Finish(outcomes);
  });
}

// `convert-record IN OUT.dbs`: a record of any format in the catalog's .dbs
// layout, for dbase/.
void AddConvertRecord(CLI::App& app) {
  struct ConvertOptions {
    RecordOptions record;
    std::string input;
  };
  auto options = std::make_shared<ConvertOptions>();
  CLI::App* command = app.add_subcommand(
      "convert-record",
      "Write a record of any format ZEL reads in the catalog's .dbs layout");
  command->add_option("record", options->input, "The record file to convert")
      ->required();
  command
      ->add_option("output", options->record.output, "The .dbs file to write")
      ->required();
  AddReadingOptions(command, options->record);
  command->callback([options] {
    RecordReading reading;
    reading.scales.amplitude = NumberIn(options->record.amplitude_scale,
                                        "--amp-scale", kRecordAmplitudeRange);
    reading.scales.time = Number(options->record.time_scale, "--time-scale");
    reading.choices = ChoicesOf(options->record);
    StderrMessages messages;
    std::string name;
    InputFile file = OpenRecordArgument(options->input, options->record.base,
                                        messages, name);
    if (!file.is_open()) throw CLI::RuntimeError(1);
    Record record;
    if (ReadRecord(std::move(file), reading, record, messages) !=
        ReadResult::kRead) {
      messages.Show(kRecordReadFailedMessage);
      throw CLI::RuntimeError(1);
    }
    if (!WriteDbsRecord(record, options->record.output, messages)) {
      throw CLI::RuntimeError(1);
    }
    std::cout << CFormat("%zu samples, dt = %g s\n", record.samples.size(),
                         record.time_step);
  });
}

// `params`: the ground-motion parameters of each record, as text or CSV on
// standard output.
void AddParams(CLI::App& app) {
  auto options = std::make_shared<RecordOptions>();
  CLI::App* command = app.add_subcommand(
      "params", "Print the ground-motion parameters of earthquake records");
  command
      ->add_option("records", options->records,
                   "Catalog numbers (1-53) or titles, or record files")
      ->required();
  AddReadingOptions(command, *options);
  command->add_flag("--csv", options->csv, "A CSV header and a row per record");
  command->callback([options] {
    const double amplitude = NumberIn(options->amplitude_scale, "--amp-scale",
                                      kRecordAmplitudeRange);
    const double time = Number(options->time_scale, "--time-scale");
    const ImportChoices choices = ChoicesOf(*options);
    StderrMessages messages;
    bool failed = false;
    if (options->csv) std::cout << GroundMotionCsvHeader();
    for (const std::string& id : options->records) {
      CZELwDoc doc;
      if (!ReadRecordDocument(id, options->base, choices, amplitude, time, doc,
                              messages)) {
        failed = true;
        continue;
      }
      const GroundMotionParameters p = ComputeGroundMotionParameters(
          doc.record_samples, doc.record_time_step);
      std::cout << (options->csv ? GroundMotionCsvRow(doc.record_name, p)
                                 : GroundMotionText(doc.record_name, p) + "\n");
    }
    if (failed) throw CLI::RuntimeError(1);
  });
}

}  // namespace

void AddRecordCommands(CLI::App& app) {
  AddCatalog(app);
  AddHistoryCommand(app, "record",
                    "Write the time history of earthquake records", false);
  AddSpectrum(app);
  AddParams(app);
  AddHistoryCommand(
      app, "fft", "Write the normalised Fourier amplitude spectrum of records",
      true);
  AddConvertRecord(app);
}

}  // namespace zel::cli
