// Curves of a document as comma-separated columns, for spreadsheets.
#ifndef ZEL_CORE_DOCUMENT_CSV_EXPORT_H_
#define ZEL_CORE_DOCUMENT_CSV_EXPORT_H_

#include <string>
#include <string_view>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// A CSV field: quoted, with its inner quotes doubled.
std::string CsvField(std::string_view text);

// Appends `value` in the shortest text that reads back as the same double.
void AppendCsvNumber(std::string& out, double value);

// Every curve that holds values, as x,y column pairs. The header row names
// the axis titles, the document title and, for response spectra, the damping
// of each curve. Numbers are written in the shortest form that reads back to
// the same double.
std::string CurvesToCsv(const CZELwDoc& doc);

// Writes CurvesToCsv to `path`; "ERROR! File Not Found!" when it cannot.
bool WriteCsvFile(const CZELwDoc& doc, const std::string& path,
                  MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_CSV_EXPORT_H_
