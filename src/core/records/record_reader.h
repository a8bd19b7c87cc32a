// Reading an earthquake record file of any format ZEL knows, told by its
// content, into a Record; and into the record buffer of a curve document.
#ifndef ZEL_CORE_RECORDS_RECORD_READER_H_
#define ZEL_CORE_RECORDS_RECORD_READER_H_

#include <optional>

#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/record.h"

namespace zel {

enum class ReadResult {
  kRead,
  // The failures the .dbs reader has always had ("Error : Wrong Format!",
  // "Error : No Data Found!", a file error): the record generators show
  // them in the new, empty document.
  kFailed,
  // A record that would give wrong answers or cannot be read, refused with
  // a message naming the file and (mostly) the line: no document is made.
  kRefused,
};

// Reads the whole file by the format its content shows, with `reading`'s
// scales and choices, into `record`, and closes it. On kRead, `record`
// holds the samples (seconds and g, scaled) and whatever the file tells of
// the event, station and component; otherwise it is left as it was, after
// the reader's message. Besides each format's own checks, every reader
// refuses a NUL byte (UTF-16 and binary files), a time step or time scale
// that is not a positive finite number, a value that is not a number or not
// finite once scaled, counts that disagree with the data, and, when the
// time step is needed, a record too short to tell it. A record longer than
// the document's capacity is cut to its first kRecordCapacity samples with
// kRecordCutMessage.
ReadResult ReadRecord(InputFile file, const RecordReading& reading,
                      Record& record, MessageSink& messages);

// What the file asks of the user before it is read: its channels and, for
// plain text, its columns. Nothing when it cannot be read (reading it then
// says why).
std::optional<RecordLayout> InspectRecordFile(InputFile file);

// Reads the file into doc.record_samples and record_time_step as
// ReadRecord does with the document's time and amplitude scales, and (unless
// results_in_g is set) gravity; see StoreRecord. Returns 1 on success, 0
// after the reader's message, leaving the document's record as it was.
int ReadRecordFile(CZELwDoc& doc, InputFile file, MessageSink& messages,
                   TimeStepUse use = TimeStepUse::kNotNeeded,
                   const ImportChoices& choices = {});

// Makes `record` the document's record: the samples with the values turned
// into the document's acceleration unit (gravity unless results_in_g is
// set), the time step when the record tells it, and the record name
// followed by the record's description in parentheses when it has one.
void StoreRecord(CZELwDoc& doc, const Record& record);

// The message shown when a record is cut to the document's capacity.
extern const char* const kRecordCutMessage;
// What the record generators add after the reader's message on a failure.
inline constexpr char kRecordReadFailedMessage[] =
    "an Error occurred while reading data!";

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_READER_H_
