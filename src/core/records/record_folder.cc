#include "core/records/record_folder.h"

#include <filesystem>
#include <system_error>

#include "core/records/record_catalog.h"

#ifndef ZEL_DATA_DIR
#define ZEL_DATA_DIR "/usr/local/share/zel"
#endif

namespace zel {
namespace {

bool HasRecordFolder(const std::string& folder) {
  std::error_code error;
  return !folder.empty() &&
         std::filesystem::is_directory(folder + "dbase", error);
}

}  // namespace

std::string ChooseRecordBaseFolder(const std::string& program_folder,
                                   const std::string& data_folder) {
  if (HasRecordFolder(program_folder)) return program_folder;
  if (HasRecordFolder(data_folder)) return data_folder;
  return program_folder;
}

std::string RecordBaseFolder() {
  return ChooseRecordBaseFolder(ProgramFolder(), ZEL_DATA_DIR "/");
}

}  // namespace zel
