#include "cli/file_commands.h"

#include <cctype>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>

#include "cli/stderr_messages.h"
#include "core/document/c_format.h"
#include "core/document/csv_export.h"
#include "core/document/curve_document.h"
#include "core/document/data_file.h"

namespace zel::cli {
namespace {

// Reads a data file; false (after the reader's messages) when it failed.
bool Load(const std::string& path, CZELwDoc& doc) {
  StderrMessages messages;
  return ReadDataFile(doc, path, messages) == 1;
}

void PrintInfo(const CZELwDoc& doc) {
  std::cout << "Title: " << doc.title << '\n'
            << "Subtitle: " << doc.subtitle << '\n'
            << "X axis: " << doc.AxisTitle(0) << '\n'
            << "Y axis: " << doc.AxisTitle(1) << '\n'
            << "Unit: " << doc.unit << '\n'
            << "Type: " << doc.type << '\n'
            << "Tripartite: " << doc.tripartite << '\n'
            << "Damping flag: " << doc.damping_flag << '\n'
            << "Curve count: " << doc.curve_count << '\n';
  for (int c = 0; c < kMaxCurves; ++c) {
    const std::size_t points = doc.StoredPoints(c);
    if (points == 0 && c >= doc.curve_count) continue;
    std::cout << "Curve " << c << ": " << points << " points";
    if (doc.damping_flag != 0) {
      std::cout << CFormat(", damping %1.2f", doc.damping[c]);
    }
    std::cout << '\n';
  }
}

// Why `out` cannot be what convert writes, or "" when it can. A document read
// from a .zel file holds its values but no point counts, so as a .zel file
// it would be written without points; and the input must survive.
std::string ConvertRefusal(const std::string& in, const std::string& out) {
  std::string extension = std::filesystem::path(out).extension().string();
  for (char& c : extension) {
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  if (extension == ".zel") {
    return "convert writes CSV columns, not a .zel file: name the output "
           ".csv";
  }
  std::error_code error;
  if (in == out || std::filesystem::equivalent(in, out, error)) {
    return "convert would write over its input: name another output file";
  }
  return "";
}

}  // namespace

void AddFileCommands(CLI::App& app) {
  auto path = std::make_shared<std::string>();
  CLI::App* info = app.add_subcommand(
      "info", "Show the titles, flags and curves of a .zel file");
  info->add_option("file", *path, "Data file to read")->required();
  info->callback([path] {
    CZELwDoc doc;
    if (!Load(*path, doc)) throw CLI::RuntimeError(1);
    PrintInfo(doc);
  });

  auto in = std::make_shared<std::string>();
  auto out = std::make_shared<std::string>();
  CLI::App* convert = app.add_subcommand(
      "convert", "Write every curve of a .zel file as CSV columns");
  convert->add_option("input", *in, "Data file to read")->required();
  convert->add_option("output", *out, "CSV file to write")->required();
  convert->callback([in, out] {
    if (const std::string refusal = ConvertRefusal(*in, *out);
        !refusal.empty()) {
      std::cerr << refusal << '\n';
      throw CLI::RuntimeError(1);
    }
    CZELwDoc doc;
    if (!Load(*in, doc)) throw CLI::RuntimeError(1);
    StderrMessages messages;
    if (!WriteCsvFile(doc, *out, messages)) throw CLI::RuntimeError(1);
  });
}

}  // namespace zel::cli
