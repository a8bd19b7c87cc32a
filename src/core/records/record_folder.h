// Where the catalog's record files are looked for: the "dbase/" folder beside
// the program wins (a build folder, or a copy of the program with its own
// records); an installed program without one uses the installed data
// folder's "dbase/".
#ifndef ZEL_CORE_RECORDS_RECORD_FOLDER_H_
#define ZEL_CORE_RECORDS_RECORD_FOLDER_H_

#include <string>

namespace zel {

// The folder whose "dbase/" holds the records, ending in "/".
std::string RecordBaseFolder();

// The same rule for given folders: `program_folder` when it holds a
// "dbase/" folder, else `data_folder` when that does, else
// `program_folder`.
std::string ChooseRecordBaseFolder(const std::string& program_folder,
                                   const std::string& data_folder);

}  // namespace zel

#endif  // ZEL_CORE_RECORDS_RECORD_FOLDER_H_
