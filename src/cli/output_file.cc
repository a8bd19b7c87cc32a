#include "cli/output_file.h"

#include <cctype>

#include "core/document/csv_export.h"
#include "core/document/data_file.h"

namespace zel::cli {

bool SaveDocument(const CZELwDoc& doc, const std::string& path,
                  MessageSink& messages) {
  const std::size_t dot = path.find_last_of('.');
  std::string extension = dot == std::string::npos ? "" : path.substr(dot + 1);
  for (char& c : extension) {
    // Bytes of non-ASCII names are negative chars: std::tolower takes them
    // only as unsigned char.
    c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  }
  if (extension == "csv") return WriteCsvFile(doc, path, messages);
  return WriteDataFile(doc, path, messages);
}

}  // namespace zel::cli
