#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>

#include "cli/cli_runner.h"
#include "core/codes/code_registry.h"
#include "core/codes/ibc2000.h"
#include "core/codes/kbc2005.h"
#include "core/codes/kds2018.h"
#include "core/codes/kds2019.h"
#include "core/codes/newmark_hall.h"
#include "core/codes/ntc2018.h"
#include "core/codes/us_codes.h"
#include "core/document/data_file.h"
#include "core/document/test_files.h"

namespace zel {
namespace {

using ::testing::HasSubstr;
using zel::testing::ReadAll;
using zel::testing::RunCli;
using zel::testing::TempDir;

// The .zel bytes the dialog would save after `generate` fills a document.
template <typename Params>
std::string Saved(bool (*generate)(CZELwDoc&, const Params&, MessageSink&),
                  const Params& params, const TempDir& dir) {
  CZELwDoc doc;
  MessageLog log;
  EXPECT_TRUE(generate(doc, params, log));
  EXPECT_TRUE(log.texts().empty());
  EXPECT_TRUE(WriteDataFile(doc, (dir / "direct.zel").string(), log));
  return ReadAll(dir / "direct.zel");
}

std::string RunDesign(const std::string& arguments, const TempDir& dir) {
  const auto path = dir / "cli.zel";
  const auto r = RunCli("design " + arguments + " -o '" + path.string() + "'");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_EQ(r.out, "");
  return ReadAll(path);
}

TEST(DesignCommandTest, SameBytesAsTheCoreGenerators) {
  TempDir dir;
  const std::string ubc97 =
      Saved(GenerateUbc97, {.ca = 0.4, .cv = 0.56, .grid = {}}, dir);
  EXPECT_THAT(ubc97, HasSubstr("*TITLE, Ca=0.4  Cv=0.56\n"));
  EXPECT_EQ(RunDesign("ubc97 --ca 0.4 --cv 0.56", dir), ubc97);
  EXPECT_EQ(RunDesign("UBC97 --option user --cv 0.56 --ca 0.40", dir), ubc97);
  // Zone 4, Sc, type C: the automatic option gives the same Ca and Cv.
  EXPECT_EQ(RunDesign("ubc97 --soil sc --source C", dir), ubc97);

  EXPECT_EQ(
      RunDesign("ubc88-94 --soil S2 --z 0.4 --from 0.5 --to 3 --steps 50", dir),
      Saved(GenerateUbc88, {.soil = 1, .z = 0.4, .grid = {0.5, 3.0, 50}}, dir));
  EXPECT_EQ(
      RunDesign("atc3-06 --soil s3 --aa 0.3 --av 0.2 --r 4.5", dir),
      Saved(GenerateAtc306,
            {.soil = 2, .aa = 0.3, .av = 0.2, .r = 4.5, .grid = {}}, dir));
  EXPECT_EQ(RunDesign("ibc2000 --site D --ss 0.6 --importance 1.25", dir),
            Saved(GenerateIbc2000,
                  {.ss = 0.6, .importance = 1.25, .site = 3, .grid = {}}, dir));

  const std::string kds = Saved(GenerateKds2019, Kds2019Params{}, dir);
  EXPECT_EQ(RunDesign("kds2019", dir), kds);
  // 103 points, all saved by the array hand-off.
  EXPECT_EQ(std::count(kds.begin(), kds.end(), '\n'), 7 + 1 + 103);
  // Zone 1 rewrites EPA to 0.22 and refreshes: the defaults again.
  EXPECT_EQ(RunDesign("kds2019 --zone 1", dir), kds);
  // S6 by hand: the typed values go straight into the record.
  EXPECT_EQ(
      RunDesign("kds2019 --site S6 --fa 1.5 --fv 2 --sds 0.5 --sd1 0.3", dir),
      Saved(
          GenerateKds2019,
          {.site = 5, .fa = 1.5, .fv = 2.0, .sds = 0.5, .sd1 = 0.3, .grid = {}},
          dir));
  EXPECT_EQ(RunDesign("newmark-hall --damping 0.02,0.05 --scale 0.5 --type "
                      "ACCEL",
                      dir),
            Saved(GenerateNewmarkHall,
                  {.scale = 0.5, .type = 0, .damping = {0.02, 0.05}}, dir));

  // A typed field selects what opens it: S6, User Defined, user-defined
  // topography (the refreshed values stay).
  EXPECT_EQ(RunDesign("kds2018 --fa 1.5 --fv 2", dir),
            Saved(GenerateKds2018,
                  {.site = 5, .fa = 1.5, .fv = 2.0, .grid = {}}, dir));
  EXPECT_EQ(RunDesign("kbc2005 --sds 0.6", dir),
            Saved(GenerateKbc2005, {.mode = 1, .sds = 0.6, .grid = {}}, dir));
  EXPECT_EQ(
      RunDesign("ntc2018 --tb 0.2 --tc 0.6", dir),
      Saved(GenerateNtc2018,
            {.topography = 4, .tb = 0.2, .tc = 0.6, .td = 1.92, .grid = {}},
            dir));
}

TEST(DesignCommandTest, ListsCodesAndWritesCsv) {
  auto r = RunCli("design --list");
  EXPECT_EQ(r.status, 0);
  for (const CodeEntry& code : DesignCodes()) {
    EXPECT_THAT(r.out, HasSubstr(code.id));
  }
  EXPECT_THAT(r.out, HasSubstr("UBC(1997) Design Spectrum"));
  r = RunCli("design ubc97 --help");
  EXPECT_EQ(r.status, 0);
  EXPECT_THAT(r.out, HasSubstr("--distance"));

  TempDir dir;
  r = RunCli("design ibc2000 -o '" + (dir / "s.csv").string() + "'");
  EXPECT_EQ(r.status, 0) << r.out;
  const std::string csv = ReadAll(dir / "s.csv");
  EXPECT_THAT(csv, HasSubstr("Period Tn (sec)"));
  EXPECT_THAT(csv, HasSubstr("\n6,"));
}

TEST(DesignCommandTest, BadInputGivesItsMessageAndNoFile) {
  TempDir dir;
  const std::string out = " -o '" + (dir / "x.zel").string() + "'";
  const auto fails = [&](const std::string& arguments,
                         const std::string& message) {
    const auto r = RunCli("design " + arguments + out);
    EXPECT_NE(r.status, 0) << arguments;
    EXPECT_THAT(r.out, HasSubstr(message)) << arguments;
    EXPECT_FALSE(std::filesystem::exists(dir / "x.zel")) << arguments;
  };
  fails("ubc97 --from -1 --to -2 --steps 0", kFromMessage);
  fails("ubc97 --from 3 --to 3", kToMessage);
  fails("atc3-06 --steps 0", kStepMessage);
  fails("kds2019 --steps 2147483647", kStepTooLargeMessage);
  fails("kds2019 --to nan", kToMessage);
  fails("ubc97 --ca 0 --cv 0", "The value Ca must be greater than zero");
  fails("ubc97 --ca 0.4 --cv -1", "The value Cv must be greater than zero");
  fails("ubc97 --distance -1", "Error! Distance must not be negative value.");
  fails("atc3-06 --aa inf", "The value Aa must be a finite number");
  fails("ibc2000 --site E --ss 1.1", "Note! In case of Site Class 'E'");
  fails("ubc97 --zone 3 --source A", "--source cannot be used");
  fails("ubc97 --ca x", "'x' is not a number");
  fails("ubc97 --steps 1.5", "'1.5' is not a whole number");
  fails("kds2019 --site S7", "'S7' is not one of S1, S2, S3, S4, S5, S6");
  fails("newmark-hall --damping 0.05,0.25", "The damping ratio 0.25 must be");
  fails("newmark-hall --damping 0,0,0,0,0,0,0", "at most 6 values");
  fails("kds2018 --site s6 --risk 0", "Error! I  must be positive value.");
  fails("ntc2018 --tcstar 0", "Tc* > 0");
  fails("eurocode", "");
  const auto r = RunCli("design");
  EXPECT_NE(r.status, 0);
  EXPECT_THAT(r.out, HasSubstr("name a code"));
}

}  // namespace
}  // namespace zel
