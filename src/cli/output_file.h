// Saving a document from the command line: .csv gives columns for a
// spreadsheet, every other name the .zel data file, as the GUI saves it.
#ifndef ZEL_CLI_OUTPUT_FILE_H_
#define ZEL_CLI_OUTPUT_FILE_H_

#include <string>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

namespace zel::cli {

bool SaveDocument(const CZELwDoc& doc, const std::string& path,
                  MessageSink& messages);

}  // namespace zel::cli

#endif  // ZEL_CLI_OUTPUT_FILE_H_
