// Reading a record of the document's full capacity (50000 samples) and
// saving the largest response-spectrum document the dialog makes (5000
// periods x 6 damping ratios) as a .zel data file.
#include <benchmark/benchmark.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/data_file.h"
#include "core/document/input_file.h"
#include "core/records/record_reader.h"

namespace zel {
namespace {

// A folder for the files the benchmarks write, removed at exit.
class BenchFolder {
 public:
  BenchFolder() {
    const char* tmp = std::getenv("TMPDIR");
    path_ = std::string(tmp != nullptr ? tmp : "/tmp") + "/zel-bench-XXXXXX";
    if (mkdtemp(path_.data()) == nullptr) std::abort();
  }
  ~BenchFolder() {
    std::remove((path_ + "/record.dbs").c_str());
    std::remove((path_ + "/spectra.zel").c_str());
    rmdir(path_.c_str());
  }
  std::string operator/(const char* name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

const BenchFolder& Folder() {
  static const BenchFolder folder;
  return folder;
}

// A record laid out as the catalog files are: "0.01000, -0.0123456".
std::string WriteRecord(int samples) {
  const std::string path = Folder() / "record.dbs";
  std::FILE* out = std::fopen(path.c_str(), "w");
  std::fprintf(out, "** benchmark record, dt=0.01 s\n");
  for (int i = 0; i < samples; ++i) {
    const double t = i * 0.01;
    std::fprintf(out, "%.5f, %.7f\n", t,
                 0.3 * std::sin(7.1 * t) * std::exp(-0.05 * t));
  }
  std::fclose(out);
  return path;
}

void BM_ReadRecord50000(benchmark::State& state) {
  const std::string path = WriteRecord(kRecordCapacity);
  MessageLog log;
  for (auto _ : state) {
    CZELwDoc doc;
    doc.results_in_g = 1;
    if (ReadRecordFile(doc, InputFile::Open(path), log) != 1) std::abort();
    benchmark::DoNotOptimize(doc.record_samples.data());
  }
}
BENCHMARK(BM_ReadRecord50000)->Unit(benchmark::kMillisecond);

void BM_WriteDataFile5000x6(benchmark::State& state) {
  CZELwDoc doc;
  doc.title = "Earthquake Response Spectrum";
  doc.subtitle = "1940, El Centro Site, 270 Deg";
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.SetAxisTitle(1, "Pseudo Acceleration (g)");
  doc.damping_flag = 1;
  doc.curve_count = 6;
  doc.damping = {0.0, 0.01, 0.02, 0.05, 0.1, 0.2};
  for (int c = 0; c < 6; ++c) {
    for (int j = 0; j < 5000; ++j) {
      const double period = 0.01 + j * (3.0 - 0.01) / 5000;
      doc.SetPoint(j, c, period, std::sin(period * (c + 1)) - 0.2, 0);
    }
  }
  const std::string path = Folder() / "spectra.zel";
  MessageLog log;
  for (auto _ : state) {
    if (!WriteDataFile(doc, path, log)) std::abort();
  }
}
BENCHMARK(BM_WriteDataFile5000x6)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace zel
