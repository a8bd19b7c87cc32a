#include "core/records/record_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/document/test_files.h"

namespace zel {
namespace {

TEST(RecordFolderTest, TheProgramsOwnRecordsWinOverTheInstalledOnes) {
  const zel::testing::TempDir dir;
  const std::string program = (dir / "bin" / "").string();
  const std::string data = (dir / "share" / "zel" / "").string();
  std::filesystem::create_directories(program);
  EXPECT_EQ(ChooseRecordBaseFolder(program, data), program);  // neither
  std::filesystem::create_directories(data + "dbase");
  EXPECT_EQ(ChooseRecordBaseFolder(program, data), data);
  std::filesystem::create_directories(program + "dbase");
  EXPECT_EQ(ChooseRecordBaseFolder(program, data), program);
}

}  // namespace
}  // namespace zel
