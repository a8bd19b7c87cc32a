// What the record dialogs show for the chosen record: a catalog entry's
// caption text, or the name of a record file the user imported.
#ifndef ZEL_CORE_RECORDS_RECORD_CHOICE_H_
#define ZEL_CORE_RECORDS_RECORD_CHOICE_H_

#include <string>

#include "core/records/range_check.h"

namespace zel {

// The file-open filter of the Import button.
inline constexpr const char* kRecordFileFilter = "ZEL dbase file *.dbs|*.dbs||";
// The record list's text once a file was imported.
inline constexpr const char* kImportedListText = "User-imported Data";

// The caption box text of catalog entry `index`: its title, a line break
// "\r\n" and its caption. Empty outside the catalog.
std::string CatalogCaptionText(int index);

// The record name (and caption) of an imported file: "User EQ : " and the
// file's name without its folder.
std::string ImportedRecordName(const std::string& path);

// The amplitude scale the record dialog accepts.
inline constexpr ValueRange kRecordAmplitudeRange{0.0, 100000.0};

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_CHOICE_H_
