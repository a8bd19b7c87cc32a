#include "core/document/save_kind.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(SaveKindTest, ExtensionDecidesCaseSensitively) {
  const struct {
    const char* path;
    SaveKind kind;
  } cases[] = {
      {"/tmp/a.zel", SaveKind::kDataFile},
      {"/tmp/a.ZEL", SaveKind::kDataFile},
      {"/tmp/a.bmp", SaveKind::kBitmap},
      {"/tmp/a.BMP", SaveKind::kBitmap},
      {"/tmp/a.Bmp", SaveKind::kDataFile},
      {"/tmp/a.jpg", SaveKind::kJpeg},
      {"/tmp/a.JPG", SaveKind::kJpeg},
      {"/tmp/a.jPg", SaveKind::kDataFile},
      {"/tmp/a.jpeg", SaveKind::kDataFile},
      {"/tmp/a.emf", SaveKind::kMetafile},
      {"/tmp/a.EMF", SaveKind::kMetafile},
      {"/tmp/a.txt", SaveKind::kDataFile},
      {"/tmp/no_extension", SaveKind::kDataFile},
      {"/tmp/dir.bmp/chart", SaveKind::kDataFile},
      {"C:\\charts\\a.jpg", SaveKind::kJpeg},
      {"chart.bmp.zel", SaveKind::kDataFile},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SaveKindOfPath(c.path), c.kind) << c.path;
  }
}

}  // namespace
}  // namespace zel
