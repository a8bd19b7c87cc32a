// The time-history curve ("Earthquake Record") of a record document.
#ifndef ZEL_CORE_RECORDS_RECORD_CURVE_H_
#define ZEL_CORE_RECORDS_RECORD_CURVE_H_

#include <span>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"
#include "core/records/record.h"

namespace zel {

// What the record dialog hands to a new record document before reading:
// results in g, the scales and the record name.
void PrepareRecordDocument(CZELwDoc& doc, double amplitude_scale,
                           double time_scale, const std::string& record_name);

// Reads the record from `file` and makes it the document's first curve,
// titled and labelled with its peak. Returns 1 on success; on failure shows
// "an Error occurred while reading data!" after the reader's own message,
// leaves the curves empty and returns 0.
int ShowRecordCurve(CZELwDoc& doc, InputFile file, MessageSink& messages,
                    const ImportChoices& choices = {});

// Makes `record` the document's record (StoreRecord) and its first curve,
// titled and labelled with its peak.
void ShowRecordCurve(CZELwDoc& doc, const Record& record);

// Makes the record already in the document its first curve, as
// ShowRecordCurve does after reading.
void ShowRecordSamples(CZELwDoc& doc);

struct RecordPeak {
  double magnitude = 0.0;  // |acceleration|
  double time = 0.0;
};

// The peak |acceleration| of `samples` with its time; among equal peaks the
// last one wins.
RecordPeak PeakOf(std::span<const RecordSample> samples);

// Stores every record sample as point k of curve 0 (without the last mark)
// and returns PeakOf the samples.
RecordPeak StoreTimeHistory(CZELwDoc& doc);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_CURVE_H_
