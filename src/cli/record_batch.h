// Record commands over many records in one call: the records a command line
// names (folders stand for their files), where each one's output goes, and
// the records spread over the cores with what each one leaves to report
// given in the order of the command line.
#ifndef ZEL_CLI_RECORD_BATCH_H_
#define ZEL_CLI_RECORD_BATCH_H_

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/document/messages.h"

namespace zel::cli {

// One record of a batch: as named on the command line, or a file found in a
// named folder.
struct BatchRecord {
  std::string argument;
  // Where its output goes; empty when it has none (see `refusal`).
  std::string output;
  // Why the record is skipped before it is read; empty when it is not.
  std::string refusal;
};

// The records named by `arguments`, each folder replaced by its files in
// name order (hidden files left out), with their output paths. One record
// writes to `output` itself unless `output` ends in '/' or names a folder;
// otherwise `output` is a folder, made when missing, holding for each
// record its file name with `extension` in place of its own. Catalog numbers
// and titles stand for the catalog's files, whose names `catalog_file`
// gives. Fails with a message when `output` cannot be such a folder.
std::vector<BatchRecord> PlanBatch(
    const std::vector<std::string>& arguments, const std::string& output,
    const std::string& extension,
    const std::function<std::string(const std::string&)>& catalog_file);

// A record's messages, kept for printing in order. A file error adds the
// path and the system's reason after "ERROR! File Not Found!", as the
// command line always shows them.
class RecordMessages : public MessageLog {
 public:
  void ShowFileError(std::string_view path, int error_number) override;
};

// What the work on one record leaves to report.
struct RecordOutcome {
  bool ok = false;
  RecordMessages messages;
  std::string out;  // for standard output, a line each
};

// Runs work(i, outcome, threads) for every record i, several records at a
// time on the cores; `threads` is what each may use for itself. A record
// refused by the plan is not worked on. Then prints each record's messages
// on standard error and its `out` on standard output, in the order of the
// records, as their work ends; with more than one record each line starts
// with the record's argument. Returns the outcomes, in order.
std::vector<RecordOutcome> RunBatch(
    const std::vector<BatchRecord>& records,
    const std::function<void(std::size_t i, RecordOutcome& outcome,
                             int threads)>& work);

}  // namespace zel::cli

#endif  // ZEL_CLI_RECORD_BATCH_H_
