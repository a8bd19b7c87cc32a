#include "core/document/save_kind.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

// The extensions of the save dialog, in either case, are checked through
// Save; here the names that only look like image names.
TEST(SaveKindTest, OnlyTheLastExtensionOfTheNameCounts) {
  for (const char* path :
       {"/tmp/a.jpeg", "/tmp/no_extension", "/tmp/dir.bmp/chart",
        "chart.bmp.zel", "/tmp/a.jPg"}) {
    EXPECT_EQ(SaveKindOfPath(path), SaveKind::kDataFile) << path;
  }
  EXPECT_EQ(SaveKindOfPath("C:\\charts\\a.EMF"), SaveKind::kMetafile);
}

}  // namespace
}  // namespace zel
