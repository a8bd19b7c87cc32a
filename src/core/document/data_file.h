// The .zel spectrum data file: the only persistent form of a curve document.
#ifndef ZEL_CORE_DOCUMENT_DATA_FILE_H_
#define ZEL_CORE_DOCUMENT_DATA_FILE_H_

#include <string>
#include <string_view>

#include "core/document/curve_document.h"
#include "core/document/input_file.h"
#include "core/document/messages.h"

namespace zel {

// A curve with a legend text of its own (a design spectrum laid over
// response spectra) is written with the comment line "**LEGEND, " + text
// between its "*DATA" and "*DAMPING" lines. Readers that do not know it skip
// it as a comment and show the damping ratio; files without it read as they
// always have.
inline constexpr char kLegendComment[] = "LEGEND, ";

// Writes `doc` to `path` through a ReplacingFile: a failed save never
// destroys an earlier one. Shows "ERROR! File Not Found!" (with the path and
// the system's reason where the messages take them) when the file cannot be
// written. Returns true when the file was written.
bool WriteDataFile(const CZELwDoc& doc, const std::string& path,
                   MessageSink& messages);

// Reads a data file into a new, empty document and closes it. Returns 1 on
// success, 0 on failure after the reader's own message; what was read before
// a failure stays in `doc`. A file that did not open gives "ERROR! File Not
// Found!".
int ReadDataFile(CZELwDoc& doc, InputFile file, MessageSink& messages);
int ReadDataFile(CZELwDoc& doc, const std::string& path, MessageSink& messages);

// The text a title line holds after its keyword and ", ": the title with its
// percent escapes interpreted, as the data file has always done, and made to
// read back: "*" and line breaks (which would end the text early) become
// blanks, empty parts between commas are dropped, and every part between
// commas is cut to the reader's 120 characters, ending in "..." where cut.
// An axis title is read as one part: its commas become ";".
std::string WrittenTitle(const std::string& title, bool axis = false);

// Whether `title`, as typed, is written without change by WrittenTitle
// apart from its percent escapes: no "*", no line break, and no part
// between commas longer than the reader takes.
bool TitleReadsBack(std::string_view title);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_DATA_FILE_H_
