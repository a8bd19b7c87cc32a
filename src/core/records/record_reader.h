// Reading a .dbs earthquake record (lines of "time, acceleration") into the
// record buffer of a curve document.
#ifndef ZEL_CORE_RECORDS_RECORD_READER_H_
#define ZEL_CORE_RECORDS_RECORD_READER_H_

#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"

namespace zel {

// Whether the record is read to be integrated or transformed, which needs
// its time step, known from the fourth sample on.
enum class TimeStepUse { kNotNeeded, kNeeded };

// Reads the whole file into doc.record_samples and record_time_step,
// applying the document's time scale, amplitude scale and (unless
// results_in_g is set) gravity, and closes it. Returns 1 on success, 0
// after the reader's message, leaving the document's record as it was. A
// record that would give wrong answers is refused with a message naming the
// file and the line: times that are not finite or do not increase (a time
// scale of 0 or below among the causes), a value that is not finite once
// scaled, a NUL byte (UTF-16 and binary files), a value longer than the
// reader takes, and, when the time step is needed, fewer than four samples.
// A record longer than the document's capacity is cut to its first
// kRecordCapacity samples, with a message.
int ReadRecordFile(CZELwDoc& doc, InputFile file, MessageSink& messages,
                   TimeStepUse use = TimeStepUse::kNotNeeded);

// The message shown when a record is cut to the document's capacity.
extern const char* const kRecordCutMessage;
// What the record generators add after the reader's message on a failure.
inline constexpr char kRecordReadFailedMessage[] =
    "an Error occurred while reading data!";

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_READER_H_
