#include "core/document/replacing_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "core/document/test_files.h"

namespace zel {
namespace {

using zel::testing::ReadAll;

TEST(ReplacingFileTest, TheTargetChangesOnlyWhenTheNewFileIsComplete) {
  zel::testing::TempDir dir;
  const std::filesystem::path target = dir / "s.zel";
  zel::testing::WriteAll(target, "old");
  {
    ReplacingFile abandoned(target.string());
    ASSERT_TRUE(abandoned.Write("half a"));
  }
  EXPECT_EQ(ReadAll(target), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}),
            1);

  ReplacingFile file(target.string());
  ASSERT_TRUE(file.Write("new "));
  ASSERT_TRUE(file.Write("content"));
  ASSERT_TRUE(file.Commit());
  EXPECT_EQ(ReadAll(target), "new content");

  // A folder in the way: the rename fails and nothing is left behind.
  std::filesystem::create_directory(dir / "folder.zel");
  ReplacingFile blocked((dir / "folder.zel").string());
  ASSERT_TRUE(blocked.Write("x"));
  EXPECT_FALSE(blocked.Commit());
  EXPECT_TRUE(std::filesystem::is_directory(dir / "folder.zel"));
  EXPECT_FALSE(std::filesystem::exists(dir / "folder.zel.zel.tmp"));

  ReplacingFile nowhere((dir / "no/such/dir.zel").string());
  EXPECT_FALSE(nowhere.is_open());
  EXPECT_FALSE(nowhere.Write("x"));
  EXPECT_FALSE(nowhere.Commit());
}

}  // namespace
}  // namespace zel
