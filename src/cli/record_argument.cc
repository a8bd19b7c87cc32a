#include "cli/record_argument.h"

#include <charconv>

#include "core/document/c_format.h"
#include "core/records/record_choice.h"
#include "core/records/record_folder.h"

namespace zel::cli {
namespace {

// Whether `id` is a whole number, which names a catalog entry by position.
bool IsCatalogNumber(const std::string& id, int& number) {
  const auto [stop, error] =
      std::from_chars(id.data(), id.data() + id.size(), number);
  return !id.empty() && error == std::errc() && stop == id.data() + id.size();
}

}  // namespace

const CatalogEntry* CatalogEntryOf(const std::string& id) {
  const auto catalog = RecordCatalog();
  int number = 0;
  if (IsCatalogNumber(id, number)) {
    if (number < 1 || number > static_cast<int>(catalog.size())) {
      return nullptr;
    }
    return &catalog[number - 1];
  }
  for (const CatalogEntry& entry : catalog) {
    if (id == entry.title) return &entry;
  }
  return nullptr;
}

InputFile OpenRecordArgument(const std::string& id, const std::string& base,
                             MessageSink& messages, std::string& name) {
  const CatalogEntry* entry = CatalogEntryOf(id);
  int number = 0;
  if (entry == nullptr && IsCatalogNumber(id, number)) {
    messages.Show(CFormat("No catalog entry %d (1 to %d)", number,
                          static_cast<int>(RecordCatalog().size())));
    return InputFile();
  }
  std::string path = id;
  name = ImportedRecordName(id);
  if (entry != nullptr) {
    path = FindCatalogFile(entry->title, messages,
                           base.empty() ? RecordBaseFolder() : base);
    name = entry->title;
  }
  InputFile file = InputFile::Open(path);
  if (!file.is_open()) messages.ShowFileError(path, file.error());
  return file;
}

}  // namespace zel::cli
