// What the record dialogs show for the chosen record: a catalog entry's
// caption text, or the name of a record file the user imported.
#ifndef ZEL_CORE_RECORDS_RECORD_CHOICE_H_
#define ZEL_CORE_RECORDS_RECORD_CHOICE_H_

#include <string>

#include "core/records/range_check.h"

namespace zel {

// The file-open filter of the Import button: the catalog's own files
// first, then the formats the data centres publish (told apart by content,
// so the patterns only narrow the list), then every file.
inline constexpr const char* kRecordFileFilter =
    "ZEL dbase file *.dbs|*.dbs|"
    "PEER NGA record (*.AT2 *.at2)|*.AT2;*.at2|"
    "K-NET/KiK-net record (*.NS *.EW *.UD *.NS1 *.EW1 *.UD1 *.NS2 *.EW2 "
    "*.UD2)|*.NS;*.EW;*.UD;*.NS1;*.EW1;*.UD1;*.NS2;*.EW2;*.UD2|"
    "ESM/ITACA record (*.ASC *.asc *.txt)|*.ASC;*.asc;*.txt|"
    "COSMOS or CSMIP record (*.V0 *.V1 *.V2 *.v0 *.v1 *.v2 *.smc)|"
    "*.V0;*.V1;*.V2;*.v0;*.v1;*.v2;*.smc|"
    "Text columns (*.txt *.csv *.dat)|*.txt;*.csv;*.dat|"
    "All files (*)|*||";
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
