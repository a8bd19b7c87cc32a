// Writing a record in the catalog's .dbs layout, so that a record read from
// any format can join the record files of dbase/.
#ifndef ZEL_CORE_RECORDS_RECORD_WRITER_H_
#define ZEL_CORE_RECORDS_RECORD_WRITER_H_

#include <string>

#include "core/document/messages.h"
#include "core/records/record.h"

namespace zel {

// The .dbs text of `record`: "**" comment lines naming the record and where
// it came from, then a "time, value" line per sample, in seconds and g, with
// nine significant digits.
std::string DbsText(const Record& record);

// Writes DbsText(record) to `path`, replacing a file there only once the new
// one is complete. False after the file error's message.
bool WriteDbsRecord(const Record& record, const std::string& path,
                    MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_WRITER_H_
