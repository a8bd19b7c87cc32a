// The .zel spectrum data file: the only persistent form of a curve document.
#ifndef ZEL_CORE_DOCUMENT_DATA_FILE_H_
#define ZEL_CORE_DOCUMENT_DATA_FILE_H_

#include <cstdio>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel {

// Writes `doc` to `path`. Shows "ERROR! File Not Found!" when the file cannot
// be opened. The file is written beside the target and renamed over it only
// when complete, so a failed write never destroys an earlier save. Returns
// true when the file was written.
bool WriteDataFile(const CZELwDoc& doc, const std::string& path,
                   MessageSink& messages);

// Reads a data file into a new, empty document. Takes ownership of `file` and
// closes it whatever happens. Returns 1 on success, 0 on failure after the
// reader's own message; what was read before a failure stays in `doc`.
int ReadDataFile(CZELwDoc& doc, std::FILE* file, MessageSink& messages);

// Opens `path` and reads it; "ERROR! File Not Found!" when it cannot be
// opened.
int ReadDataFile(CZELwDoc& doc, const std::string& path, MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_DATA_FILE_H_
