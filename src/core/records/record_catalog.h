// The built-in catalog of earthquake records and the rule that finds a
// catalog entry's record file in the "dbase/" folder beside the program.
#ifndef ZEL_CORE_RECORDS_RECORD_CATALOG_H_
#define ZEL_CORE_RECORDS_RECORD_CATALOG_H_

#include <span>
#include <string>

#include "core/document/messages.h"

namespace zel {

struct CatalogEntry {
  const char* title;    // shown in the record list
  const char* file;     // record file name inside dbase/
  const char* caption;  // shown under the list; a literal, not computed
};

inline constexpr int kCatalogSize = 53;

// The catalog entries in list order.
std::span<const CatalogEntry> RecordCatalog();

// The folder of the running program, with a trailing '/'; empty when it
// cannot be found.
std::string ProgramFolder();

// The record file path of a catalog title: `program_folder` + "dbase/" +
// file name. A title that matches no entry shows "File Not Found" and yields
// the folder path with no file name, which then fails to open.
std::string FindCatalogFile(const std::string& title, MessageSink& messages,
                            const std::string& program_folder);
std::string FindCatalogFile(const std::string& title, MessageSink& messages);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_CATALOG_H_
