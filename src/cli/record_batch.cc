#include "cli/record_batch.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <exception>
#include <filesystem>
#include <iostream>
#include <map>
#include <mutex>
#include <system_error>
#include <thread>

#include "cli/stderr_messages.h"

namespace zel::cli {
namespace {

namespace fs = std::filesystem;

bool IsFolder(const std::string& path) {
  std::error_code error;
  return fs::is_directory(path, error);
}

// The files of a folder in name order, hidden ones left out.
std::vector<std::string> FilesOf(const std::string& folder) {
  std::vector<std::string> files;
  std::error_code error;
  for (const fs::directory_entry& entry :
       fs::directory_iterator(folder, error)) {
    const std::string name = entry.path().filename().string();
    if (name.empty() || name[0] == '.') continue;
    if (!entry.is_regular_file(error)) continue;
    files.push_back(entry.path().string());
  }
  std::sort(files.begin(), files.end());
  return files;
}

// Prints what one record leaves to report.
void Print(const BatchRecord& record, const RecordOutcome& outcome,
           bool prefixed) {
  const std::string prefix = prefixed ? record.argument + ": " : "";
  for (const std::string& text : outcome.messages.texts()) {
    std::cerr << prefix << text << '\n';
  }
  std::size_t start = 0;
  while (start < outcome.out.size()) {
    std::size_t end = outcome.out.find('\n', start);
    if (end == std::string::npos) end = outcome.out.size();
    std::cout << prefix << outcome.out.substr(start, end - start) << '\n';
    start = end + 1;
  }
  std::cout.flush();
}

void WorkOn(const BatchRecord& record, std::size_t i, RecordOutcome& outcome,
            int threads,
            const std::function<void(std::size_t, RecordOutcome&, int)>& work) {
  if (!record.refusal.empty()) {
    outcome.messages.Show(record.refusal);
    return;
  }
  try {
    work(i, outcome, threads);
  } catch (const std::exception& e) {
    outcome.ok = false;
    outcome.messages.Show(e.what());
  }
}

}  // namespace

void RecordMessages::ShowFileError(std::string_view path, int error_number) {
  Show(kFileNotFoundMessage);
  Show(FileErrorDetail(path, error_number));
}

std::vector<BatchRecord> PlanBatch(
    const std::vector<std::string>& arguments, const std::string& output,
    const std::string& extension,
    const std::function<std::string(const std::string&)>& catalog_file) {
  std::vector<BatchRecord> records;
  for (const std::string& argument : arguments) {
    if (catalog_file(argument).empty() && IsFolder(argument)) {
      const std::vector<std::string> files = FilesOf(argument);
      if (files.empty()) {
        records.push_back({argument, "", "Error : No record files here!"});
      }
      for (const std::string& file : files) records.push_back({file, "", ""});
    } else {
      records.push_back({argument, "", ""});
    }
  }

  const bool to_folder = records.size() != 1 || output.empty() ||
                         output.back() == '/' || IsFolder(output);
  if (!to_folder) {
    records[0].output = output;
    return records;
  }
  std::error_code error;
  fs::create_directories(output, error);
  if (!IsFolder(output)) {
    FailWithMessage("-o: " + output +
                    " must be a folder for the outputs of several records");
  }
  std::map<std::string, std::string> written_by;
  for (BatchRecord& record : records) {
    if (!record.refusal.empty()) continue;
    const std::string catalog = catalog_file(record.argument);
    fs::path name = fs::path(catalog.empty() ? record.argument : catalog)
                        .filename()
                        .replace_extension(extension);
    const std::string path = (fs::path(output) / name).string();
    const auto [it, fresh] = written_by.emplace(path, record.argument);
    if (fresh) {
      record.output = path;
    } else {
      record.refusal =
          "Error : " + path + " is the output of " + it->second + " already!";
    }
  }
  return records;
}

std::vector<RecordOutcome> RunBatch(
    const std::vector<BatchRecord>& records,
    const std::function<void(std::size_t, RecordOutcome&, int)>& work) {
  std::vector<RecordOutcome> outcomes(records.size());
  const bool prefixed = records.size() > 1;
  const int cores =
      static_cast<int>(std::max(1u, std::thread::hardware_concurrency()));
  if (records.size() == 1) {
    WorkOn(records[0], 0, outcomes[0], cores, work);
    Print(records[0], outcomes[0], prefixed);
    return outcomes;
  }

  // The records are shared by a few workers; the calling thread prints.
  std::atomic<std::size_t> next{0};
  std::mutex mutex;
  std::condition_variable finished;
  std::vector<char> done(records.size(), 0);
  const auto worker = [&] {
    for (;;) {
      const std::size_t i = next.fetch_add(1);
      if (i >= records.size()) return;
      WorkOn(records[i], i, outcomes[i], 1, work);
      std::lock_guard<std::mutex> lock(mutex);
      done[i] = 1;
      finished.notify_one();
    }
  };
  std::vector<std::thread> pool;
  const std::size_t workers =
      std::min(records.size(), static_cast<std::size_t>(cores));
  for (std::size_t t = 0; t < workers; ++t) {
    try {
      pool.emplace_back(worker);
    } catch (const std::system_error&) {
      break;
    }
  }
  if (pool.empty()) worker();
  for (std::size_t i = 0; i < records.size(); ++i) {
    {
      std::unique_lock<std::mutex> lock(mutex);
      finished.wait(lock, [&] { return done[i] != 0; });
    }
    Print(records[i], outcomes[i], prefixed);
  }
  for (std::thread& t : pool) t.join();
  return outcomes;
}

}  // namespace zel::cli
