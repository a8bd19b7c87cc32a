// Reading a .dbs earthquake record (lines of "time, acceleration") into the
// record buffer of a curve document.
#ifndef ZEL_CORE_RECORDS_RECORD_READER_H_
#define ZEL_CORE_RECORDS_RECORD_READER_H_

#include <cstdio>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// Reads the whole stream into doc.record_samples and
// record_time_step, applying the document's time scale, amplitude scale and
// (unless results_in_g is set) gravity. Takes ownership of `file` and closes
// it in every case (a null `file` fails as an empty one). Returns 1 on
// success, 0 after the reader's message. A record longer than the document's
// capacity is cut to its first kRecordCapacity samples, with a message.
int ReadRecordFile(CZELwDoc& doc, std::FILE* file, MessageSink& messages);

// The message shown when a record is cut to the document's capacity.
extern const char* const kRecordCutMessage;

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_READER_H_
