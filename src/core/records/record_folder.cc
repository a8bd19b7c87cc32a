#include "core/records/record_folder.h"

#include <filesystem>
#include <system_error>

#include "core/records/record_catalog.h"

// The installed data folder relative to the installed program's folder.
#ifndef ZEL_DATA_FROM_BIN
#define ZEL_DATA_FROM_BIN "../share/zel"
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
  const std::string program = ProgramFolder();
  const std::filesystem::path data =
      (std::filesystem::path(program) / ZEL_DATA_FROM_BIN).lexically_normal();
  return ChooseRecordBaseFolder(program, (data / "").string());
}

}  // namespace zel
