#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "cli/cli_runner.h"
#include "core/document/c_format.h"
#include "core/document/data_file.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using zel::testing::ReadAll;
using zel::testing::RunCli;
using zel::testing::TempDir;
using zel::testing::WriteAll;

// A decaying 3 Hz sine sampled at 0.01 s, at `amplitude`.
std::string Record(double amplitude) {
  return zel::testing::EvenRecord(
      zel::testing::Sine(800, 3, 0.01, amplitude, 0.3), 0.01);
}

TEST(ScaleCommandTest, HalvedRecordsDoubleTheirFactorAndSuitesShareOne) {
  TempDir dir;
  const std::string full = (dir / "full.dbs").string();
  const std::string half = (dir / "half.dbs").string();
  WriteAll(full, Record(0.4));
  WriteAll(half, Record(0.2));
  const std::string code = " --code ubc97 --range 0.1:2 --rule min";
  const auto a = RunCli("scale '" + full + "'" + code);
  const auto b = RunCli("scale '" + half + "'" + code + " -o '" +
                        (dir / "scaled.zel").string() + "'");
  ASSERT_EQ(a.status, 0) << a.out;
  ASSERT_EQ(b.status, 0) << b.out;
  EXPECT_THAT(a.out, MatchesRegex("Factor = [0-9.]+  Misfit = [0-9.]+  at T "
                                  "= [0-9.]+ sec\n"));
  const double fa = AtoF(a.out.substr(9));
  const double fb = AtoF(b.out.substr(9));
  EXPECT_NEAR(fb, 2 * fa, 1e-4);

  // The scaled record is the half record at twice its amplitude.
  CZELwDoc scaled;
  MessageLog log;
  ASSERT_EQ(ReadDataFile(scaled, (dir / "scaled.zel").string(), log), 1);
  EXPECT_EQ(scaled.title, "Earthquake Record");

  // One factor for the suite: the mean of the two is 0.75 of the full one.
  const auto suite = RunCli("scale" + code + " --suite '" + full + "' '" +
                            half + "' -o '" + (dir / "f.csv").string() + "'");
  ASSERT_EQ(suite.status, 0) << suite.out;
  EXPECT_NEAR(AtoF(suite.out.substr(9)), fa / 0.75, 1e-4);
  EXPECT_THAT(ReadAll(dir / "f.csv"),
              MatchesRegex("record,factor,misfit\n(\"[^\"]+\",[0-9.]+,[0-9.]+"
                           "\n){3}"));

  // A code option the code does not have.
  const auto bad = RunCli("scale '" + full + "'" + code + " --zonee 4");
  EXPECT_EQ(bad.status, 1);
  EXPECT_THAT(bad.out, HasSubstr("--zonee is not an option of ubc97"));
}

}  // namespace
}  // namespace zel
