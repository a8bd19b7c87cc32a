#include "core/records/record_choice.h"

#include "core/records/record_catalog.h"

namespace zel {

std::string CatalogCaptionText(int index) {
  const auto catalog = RecordCatalog();
  if (index < 0 || index >= static_cast<int>(catalog.size())) return "";
  const CatalogEntry& entry = catalog[static_cast<std::size_t>(index)];
  return std::string(entry.title) + "\r\n" + entry.caption;
}

std::string ImportedRecordName(const std::string& path) {
  // Either separator may end the folder: a path typed on another system
  // still shows its bare file name.
  const std::size_t slash = path.find_last_of("/\\");
  const std::string title =
      slash == std::string::npos ? path : path.substr(slash + 1);
  return "User EQ : " + title;
}

}  // namespace zel
