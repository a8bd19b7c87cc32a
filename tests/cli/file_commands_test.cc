#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "core/document/test_files.h"

namespace zel {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;
using zel::testing::ReadAll;
using zel::testing::RunCli;
using zel::testing::TempDir;
using zel::testing::WriteAll;

constexpr char kSpectrum[] =
    "*ZELw\n*TITLE, Earthquake Response Spectrum\n*TITLE, El Centro\n"
    "*X-AXIS, Period Tn (sec)\n*Y-AXIS, Pseudo Velocity (cm/sec)\n"
    "*UNIT&TYPE, CM, VELO\n*FLAGS, 0, 1\n"
    "*DATA\n*DAMPING, 0.02\n1.00000E-001\t, 2.50000E+000\n"
    "2.00000E-001\t,-3.00000E+000\n"
    "*DATA\n*DAMPING, 0.05\n1.00000E-001\t, 1.00000E+000\n*ENDDATA";

std::string Quoted(const std::filesystem::path& path) {
  return "'" + path.string() + "'";
}

TEST(FileCommandsTest, InfoPrintsTitlesFlagsAndCurvesOrTheReadersMessage) {
  TempDir dir;
  WriteAll(dir / "s.zel", kSpectrum);
  auto r = RunCli("info " + Quoted(dir / "s.zel"));
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(
      r.out,
      "Title: Earthquake Response Spectrum\nSubtitle: El Centro\n"
      "X axis: Period Tn (sec)\nY axis: Pseudo Velocity (cm/sec)\n"
      "Unit: CM\nType: VELO\nTripartite: 0\nDamping flag: 1\n"
      "Curve count: 2\n"
      "Curve 0: 2 points, damping 0.02\nCurve 1: 1 points, damping 0.05\n");

  WriteAll(dir / "bad.zel", "*ZELw\n*TITLE, x\n*DATA\n");
  r = RunCli("info " + Quoted(dir / "bad.zel"));
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "Error : Wrong Format! FLAGS not found\n");
  // The command line names the file and the system's reason.
  r = RunCli("info " + Quoted(dir / "missing.zel"));
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "ERROR! File Not Found!\n" + (dir / "missing.zel").string() +
                       ": No such file or directory\n");
  EXPECT_NE(RunCli("").status, 0);
}

TEST(FileCommandsTest, ConvertWritesCsvOnlyAndNeverOverItsInput) {
  TempDir dir;
  WriteAll(dir / "s.zel", kSpectrum);
  const std::string convert = "convert " + Quoted(dir / "s.zel") + " ";
  const std::string csv =
      "\"Period Tn (sec)\",\"Earthquake Response Spectrum: Pseudo "
      "Velocity (cm/sec) (damping 0.02)\",\"Period Tn (sec)\","
      "\"Earthquake Response Spectrum: Pseudo Velocity (cm/sec) "
      "(damping 0.05)\"\n"
      "0.1,2.5,0.1,1\n"
      "0.2,-3,,\n";
  // Whatever the output's name (a non-ASCII one included), CSV.
  for (const char* name : {"s.csv", "s.TXT",
                           "s.\xc3\x89"
                           "csv"}) {
    const auto r = RunCli(convert + Quoted(dir / name));
    EXPECT_EQ(r.status, 0) << r.out;
    EXPECT_EQ(ReadAll(dir / name), csv) << name;
  }
  // A .zel output would hold no points; the input itself would be lost.
  std::filesystem::create_symlink("s.zel", dir / "link.csv");
  for (const char* name : {"s.zel", "out.ZEL", "link.csv"}) {
    const auto r = RunCli(convert + Quoted(dir / name));
    EXPECT_EQ(r.status, 1) << name;
    EXPECT_THAT(r.out, StartsWith("convert ")) << name;
  }
  EXPECT_FALSE(std::filesystem::exists(dir / "out.ZEL"));
  EXPECT_EQ(ReadAll(dir / "s.zel"), kSpectrum);

  WriteAll(dir / "ro.csv", "kept");
  std::filesystem::permissions(dir / "ro.csv", std::filesystem::perms(0444));
  const auto r = RunCli(convert + Quoted(dir / "ro.csv"));
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out, "ERROR! File Not Found!\n" + (dir / "ro.csv").string() +
                       ": Permission denied\n");
  EXPECT_EQ(ReadAll(dir / "ro.csv"), "kept");

  // A generator writes the data file unless the name ends in .csv.
  const std::string name =
      "g.\xc3\x89"
      "csv";
  EXPECT_EQ(RunCli("design ubc97 -o " + Quoted(dir / name)).status, 0);
  EXPECT_THAT(ReadAll(dir / name), StartsWith("*ZELw\n"));
}

// Two programs saving to one name at once: every round leaves one of the
// two outputs whole, and both report success. Each save waits for the disk,
// so the suite runs 10 rounds; ZEL_SAVE_RACE_ROUNDS=100 makes the full trial.
TEST(FileCommandsTest, TwoWritersToOneNameLeaveOneCompleteOutput) {
  const char* rounds_text = std::getenv("ZEL_SAVE_RACE_ROUNDS");
  const int rounds = rounds_text != nullptr ? std::atoi(rounds_text) : 10;
  TempDir dir;
  std::string a = "*ZELw\n*FLAGS, 0, 0\n*DATA\n";
  std::string b = a;
  for (int i = 0; i < 20000; ++i) {
    a += "1.00000E-001\t, 1.00000E+000\n";
    b += "2.00000E-001\t, 2.00000E+000\n";
  }
  WriteAll(dir / "a.zel", a + "*ENDDATA");
  WriteAll(dir / "b.zel", b + "*ENDDATA");
  const std::string cli = std::string("'") + ZEL_CLI_PATH + "'";
  const auto r = zel::testing::RunShell(
      "cd " + Quoted(dir.path()) + " && " + cli + " convert a.zel a.csv && " +
      cli + " convert b.zel b.csv && for i in $(seq " + std::to_string(rounds) +
      "); do " + cli + " convert a.zel out.csv & " + cli +
      " convert b.zel out.csv; s=$?; wait $!; echo \"$? $s\"; "
      "cmp -s out.csv a.csv || cmp -s out.csv b.csv || echo mixed; done");
  EXPECT_EQ(r.status, 0);
  std::string expected;
  for (int i = 0; i < rounds; ++i) expected += "0 0\n";
  EXPECT_EQ(r.out, expected);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}),
            5);  // no temporary file left behind
}

}  // namespace
}  // namespace zel
