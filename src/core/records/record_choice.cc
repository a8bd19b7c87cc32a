#include "core/records/record_choice.h"

#include "core/document/file_name.h"
#include "core/records/record_catalog.h"

namespace zel {

std::string CatalogCaptionText(int index) {
  const auto catalog = RecordCatalog();
  if (index < 0 || index >= static_cast<int>(catalog.size())) return "";
  const CatalogEntry& entry = catalog[static_cast<std::size_t>(index)];
  return std::string(entry.title) + "\r\n" + entry.caption;
}

std::string ImportedRecordName(const std::string& path) {
  return "User EQ : " + std::string(FileNameOf(path));
}

}  // namespace zel
