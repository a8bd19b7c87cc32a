// A record named on the command line: a catalog entry by its number (1 to
// 53) or its title, or else a record file of any format ZEL reads.
#ifndef ZEL_CLI_RECORD_ARGUMENT_H_
#define ZEL_CLI_RECORD_ARGUMENT_H_

#include <string>

#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/record_catalog.h"

namespace zel::cli {

// The catalog entry `id` names, or nullptr for a file (or a number outside
// the catalog).
const CatalogEntry* CatalogEntryOf(const std::string& id);

// Opens the record file of `id`, catalog records from the dbase/ folder
// under `base` (RecordBaseFolder() when empty), and sets `name` to the
// catalog title or "User EQ : " and the file name. A closed file after a
// message when there is no such entry or file.
InputFile OpenRecordArgument(const std::string& id, const std::string& base,
                             MessageSink& messages, std::string& name);

}  // namespace zel::cli

#endif  // ZEL_CLI_RECORD_ARGUMENT_H_
