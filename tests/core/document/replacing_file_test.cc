#include "core/document/replacing_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cerrno>
#include <climits>
#include <filesystem>

#include "core/document/test_files.h"

namespace zel {
namespace {

namespace fs = std::filesystem;
using zel::testing::ReadAll;
using zel::testing::WriteAll;

bool Save(const fs::path& path, const std::string& text, int* error = nullptr) {
  ReplacingFile file(path.string());
  const bool saved = file.Write(text) && file.Commit();
  if (error != nullptr) *error = file.error();
  return saved;
}

TEST(ReplacingFileTest, TheTargetChangesOnlyWhenTheNewFileIsComplete) {
  zel::testing::TempDir dir;
  const fs::path target = dir / "s.zel";
  WriteAll(target, "old");
  fs::permissions(target, fs::perms(0640));
  {
    ReplacingFile abandoned(target.string());
    ASSERT_TRUE(abandoned.Write("half a"));
  }
  EXPECT_EQ(ReadAll(target), "old");
  ASSERT_TRUE(Save(target, "new content"));
  EXPECT_EQ(ReadAll(target), "new content");
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0640));

  // A rename that fails leaves nothing behind.
  ReplacingFile blocked((dir / "late.zel").string());
  fs::create_directory(dir / "late.zel");
  ASSERT_TRUE(blocked.Write("x"));
  EXPECT_FALSE(blocked.Commit());
  EXPECT_NE(blocked.error(), 0);
  EXPECT_EQ(std::distance(fs::directory_iterator(dir.path()), {}), 2);
}

TEST(ReplacingFileTest, LinksLongNamesDevicesAndRefusals) {
  zel::testing::TempDir dir;
  // Through a symbolic link: the link stays, its target is replaced.
  fs::create_directory(dir / "real");
  WriteAll(dir / "real" / "s.zel", "old");
  fs::create_symlink("real/s.zel", dir / "link.zel");
  ASSERT_TRUE(Save(dir / "link.zel", "new"));
  EXPECT_TRUE(fs::is_symlink(dir / "link.zel"));
  EXPECT_EQ(ReadAll(dir / "real" / "s.zel"), "new");

  const std::string longest(NAME_MAX, 'n');
  ASSERT_TRUE(Save(dir / longest, "long"));
  EXPECT_EQ(ReadAll(dir / longest), "long");

  // A device is written to, never replaced.
  ASSERT_TRUE(Save("/dev/null", "nothing"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));

  int error = 0;
  WriteAll(dir / "ro.zel", "kept");
  fs::permissions(dir / "ro.zel", fs::perms(0444));
  EXPECT_FALSE(Save(dir / "ro.zel", "x", &error));
  EXPECT_EQ(error, EACCES);
  EXPECT_EQ(ReadAll(dir / "ro.zel"), "kept");
  EXPECT_FALSE(Save(dir / "real", "x", &error));
  EXPECT_EQ(error, EISDIR);
  EXPECT_FALSE(Save(dir / "no" / "such.zel", "x", &error));
  EXPECT_EQ(error, ENOENT);
}

}  // namespace
}  // namespace zel
