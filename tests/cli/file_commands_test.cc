#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/cli_runner.h"
#include "core/document/test_files.h"

namespace zel {
namespace {

using ::testing::HasSubstr;
using zel::testing::RunCli;
using zel::testing::TempDir;

constexpr char kSpectrum[] =
    "*ZELw\n*TITLE, Earthquake Response Spectrum\n*TITLE, El Centro\n"
    "*X-AXIS, Period Tn (sec)\n*Y-AXIS, Pseudo Velocity (cm/sec)\n"
    "*UNIT&TYPE, CM, VELO\n*FLAGS, 0, 1\n"
    "*DATA\n*DAMPING, 0.02\n1.00000E-001\t, 2.50000E+000\n"
    "2.00000E-001\t,-3.00000E+000\n"
    "*DATA\n*DAMPING, 0.05\n1.00000E-001\t, 1.00000E+000\n*ENDDATA";

TEST(FileCommandsTest, InfoPrintsTitlesFlagsAndCurves) {
  TempDir dir;
  zel::testing::WriteAll(dir / "s.zel", kSpectrum);
  const auto r = RunCli("info '" + (dir / "s.zel").string() + "'");
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(
      r.out,
      "Title: Earthquake Response Spectrum\nSubtitle: El Centro\n"
      "X axis: Period Tn (sec)\nY axis: Pseudo Velocity (cm/sec)\n"
      "Unit: CM\nType: VELO\nTripartite: 0\nDamping flag: 1\n"
      "Curve count: 2\n"
      "Curve 0: 2 points, damping 0.02\nCurve 1: 1 points, damping 0.05\n");
}

TEST(FileCommandsTest, InfoReportsTheReadersMessageAndFails) {
  TempDir dir;
  zel::testing::WriteAll(dir / "bad.zel", "*ZELw\n*TITLE, x\n*DATA\n");
  auto r = RunCli("info '" + (dir / "bad.zel").string() + "'");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("Error : Wrong Format! FLAGS not found"));

  r = RunCli("info '" + (dir / "missing.zel").string() + "'");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("ERROR! File Not Found!"));

  r = RunCli("");
  EXPECT_NE(r.status, 0);
  r = RunCli("--help");
  EXPECT_EQ(r.status, 0);
  EXPECT_THAT(r.out, HasSubstr("convert"));
}

TEST(FileCommandsTest, ConvertWritesColumnPairsWithAHeader) {
  TempDir dir;
  zel::testing::WriteAll(dir / "s.zel", kSpectrum);
  const auto r = RunCli("convert '" + (dir / "s.zel").string() + "' '" +
                        (dir / "s.csv").string() + "'");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_EQ(zel::testing::ReadAll(dir / "s.csv"),
            "\"Period Tn (sec)\",\"Earthquake Response Spectrum: Pseudo "
            "Velocity (cm/sec) (damping 0.02)\",\"Period Tn (sec)\","
            "\"Earthquake Response Spectrum: Pseudo Velocity (cm/sec) "
            "(damping 0.05)\"\n"
            "0.1,2.5,0.1,1\n"
            "0.2,-3,,\n");
}

TEST(FileCommandsTest, ConvertChoosesTheFormatByTheExtensionInAnyCase) {
  TempDir dir;
  zel::testing::WriteAll(dir / "s.zel", kSpectrum);
  const std::string in = "convert '" + (dir / "s.zel").string() + "' '";
  auto r = RunCli(in + (dir / "upper.CSV").string() + "'");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(zel::testing::ReadAll(dir / "upper.CSV"),
              ::testing::StartsWith("\"Period Tn (sec)\","));
  // A non-ASCII extension is not CSV: the data file is written.
  r = RunCli(in + (dir / "s.\xc3\x89csv").string() + "'");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(zel::testing::ReadAll(dir / "s.\xc3\x89csv"),
              ::testing::StartsWith("*ZELw\n"));
}

}  // namespace
}  // namespace zel
