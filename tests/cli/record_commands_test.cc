#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "core/document/data_file.h"
#include "core/records/chart_setup.h"
#include "core/records/frequency_switch.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::_;
using ::testing::Eq;
using ::testing::HasSubstr;
using ::testing::StartsWith;
using zel::testing::ReadAll;
using zel::testing::RunCli;
using zel::testing::Settings;
using zel::testing::ShowRecord;
using zel::testing::SpectrumOf;
using zel::testing::TempDir;
using zel::testing::WriteAll;

std::string Quoted(const std::filesystem::path& path) {
  return "'" + path.string() + "'";
}

// Runs zel-cli with `arguments`, writing `output` in `dir`.
zel::testing::CliResult RunTo(const TempDir& dir, const std::string& arguments,
                              const std::string& output) {
  return RunCli(arguments + " -o " + Quoted(dir / output));
}

// A small record: a decaying 3 Hz sine sampled at 0.01 s.
std::string SmallRecord(int n = 600) {
  return "** test record\n" +
         zel::testing::EvenRecord(zel::testing::Sine(n, 3, 0.01, 0.4, 0.3),
                                  0.01);
}

// What the GUI saves for the same inputs: the same document operations and
// the same writer.
std::string SavedBytes(const CZELwDoc& doc, const TempDir& dir) {
  MessageLog log;
  EXPECT_TRUE(WriteDataFile(doc, (dir / "expected.zel").string(), log));
  return ReadAll(dir / "expected.zel");
}

TEST(RecordCommandsTest, CatalogListsEveryEntryWithItsCaption) {
  const auto r = RunCli("catalog");
  EXPECT_EQ(r.status, 0);
  EXPECT_THAT(r.out, StartsWith(" 1  1940, El Centro Site, 270 Deg\n"
                                "    Peak = 0.3569 g  Duration = 53.72 sec\n"));
  EXPECT_THAT(r.out, HasSubstr("\n 4  1952, Taft Lincoln School, 69 Deg\n"
                               "    Peak = -0.1557   Duration = 54.38 sec\n"));
  EXPECT_THAT(r.out, HasSubstr("\n53  T2-III-3(1995, HYOUGOKEN_South, EW)\n"));
  EXPECT_EQ(std::count(r.out.begin(), r.out.end(), '\n'), 106);
}

TEST(RecordCommandsTest, RecordWritesWhatTheDialogWouldAndPrintsThePeak) {
  TempDir dir;
  const std::string record = SmallRecord();
  WriteAll(dir / "quake.dbs", record);
  const std::string quake = Quoted(dir / "quake.dbs");
  auto r = RunTo(dir, "record " + quake + " --amp-scale 0.5 --time-scale 2",
                 "out.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  CZELwDoc doc;
  ASSERT_EQ(ShowRecord(doc, record, 0.5, 2.0, "User EQ : quake.dbs").result, 1);
  EXPECT_EQ(r.out, ContextLabel(doc) + "\n");
  EXPECT_THAT(r.out, StartsWith("Max =   0.1"));
  EXPECT_EQ(ReadAll(dir / "out.zel"), SavedBytes(doc, dir));
  // Numbers read as the design options read them: a leading "+" is allowed.
  r = RunTo(dir, "record " + quake + " --amp-scale +0.5 --time-scale +2",
            "plus.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_EQ(ReadAll(dir / "plus.zel"), ReadAll(dir / "out.zel"));

  // A catalog entry by number or title, from the dbase/ folder of --base.
  const std::string base = " --base " + Quoted(dir.path());
  std::filesystem::create_directory(dir / "dbase");
  WriteAll(dir / "dbase" / "Taft_h.dbs", record);
  r = RunTo(dir, "record 4" + base, "taft.csv");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(ReadAll(dir / "taft.csv"),
              StartsWith("\"Time (sec)\",\"Earthquake Record: Ground Accel. "
                         "(g)\"\n0,0\n0.01,0.0"));
  r = RunTo(dir, "record '1952, Taft Lincoln School, 69 Deg'" + base,
            "taft.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(ReadAll(dir / "taft.zel"),
              HasSubstr("*TITLE, 1952, Taft Lincoln School, 69 Deg\n"));

  // Missing files and bad records end with the system's messages.
  WriteAll(dir / "empty.dbs", "");
  const struct {
    std::string arguments;
    ::testing::Matcher<std::string> out;
  } failures[] = {
      {"record 5" + base,
       Eq("ERROR! File Not Found!\n" + (dir / "dbase/Taft_t.dbs").string() +
          ": No such file or directory\n")},
      {"record 54", _},
      {"record " + Quoted(dir / "empty.dbs"),
       Eq("Error : No Data Found!\nan Error occurred while reading data!\n")},
      {"record " + quake + " --amp-scale 1,5",
       HasSubstr("--amp-scale: not a number: 1,5")}};
  for (const auto& f : failures) {
    r = RunTo(dir, f.arguments, "x.zel");
    EXPECT_EQ(r.status, 1) << f.arguments;
    EXPECT_THAT(r.out, f.out) << f.arguments;
  }
  EXPECT_FALSE(std::filesystem::exists(dir / "x.zel"));
}

TEST(RecordCommandsTest, SpectrumWritesWhatTheDialogWould) {
  TempDir dir;
  const std::string record = SmallRecord();
  WriteAll(dir / "quake.dbs", record);
  const std::string spectrum = "spectrum " + Quoted(dir / "quake.dbs");
  auto r = RunTo(dir,
                 spectrum +
                     " --damping 0.02,0.05 --kind dva --from 0 --to 5"
                     " --steps 50",
                 "out.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  const std::string expected =
      SavedBytes(SpectrumOf(record, Settings(kCombinedDVA, {0.02, 0.05}, 0, 5,
                                             50, "User EQ : quake.dbs")),
                 dir);
  EXPECT_EQ(ReadAll(dir / "out.zel"), expected);
  EXPECT_THAT(expected, HasSubstr("*FLAGS, 1, 1\n*DATA\n*DAMPING, 0.02\n"
                                  "1.00000E-002\t,"));

  // --log raises "from"; CSV output.
  r = RunTo(dir, spectrum + " --kind sd --from 0 --to 2 --steps 20 --log",
            "k.csv");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(ReadAll(dir / "k.csv"), HasSubstr("\n0.009999999776482582,"));

  // Out-of-range settings are refused before anything is written.
  for (const char* bad :
       {"--steps 0", "--steps 5001", "--steps 2.5", "--kind xyz",
        "--damping 1.5", "--damping 0,0,0,0,0,0,0", "--from -1", "--to 101",
        "--damping abc", "--amp-scale 101"}) {
    r = RunTo(dir, spectrum + " " + bad, "bad.zel");
    EXPECT_EQ(r.status, 1) << bad;
    EXPECT_FALSE(r.out.empty()) << bad;
  }
  // A file that is not a record.
  WriteAll(dir / "text.dbs", "no commas here\nat all\n");
  r = RunTo(dir, "spectrum " + Quoted(dir / "text.dbs"), "bad.zel");
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.out,
            "Error : Wrong Format!\nan Error occurred while reading data!\n");
  EXPECT_FALSE(std::filesystem::exists(dir / "bad.zel"));

  // From = to is a defined result; a time scale of 0 leaves no time step.
  r = RunTo(dir, spectrum + " --from 1 --to 1 --steps 3", "same.zel");
  EXPECT_EQ(r.status, 0) << r.out;
  r = RunTo(dir, spectrum + " --time-scale 0", "zero.zel");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("Times must increase!"));
}

TEST(RecordCommandsTest, FftWritesTheFrequencySpectrum) {
  TempDir dir;
  const std::string record = SmallRecord(1000);
  WriteAll(dir / "quake.dbs", record);
  const auto r = RunTo(dir, "fft " + Quoted(dir / "quake.dbs"), "out.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  CZELwDoc doc;
  ASSERT_EQ(ShowRecord(doc, record, 1.0, 1.0, "User EQ : quake.dbs").result, 1);
  MessageLog log;
  ASSERT_TRUE(SwitchTimeFrequency(doc, log));
  EXPECT_EQ(r.out, "Maximum at 2.93 Hz\n");
  EXPECT_EQ(ReadAll(dir / "out.zel"), SavedBytes(doc, dir));

  // A silent record has no spectrum to normalise: a message, no output.
  WriteAll(dir / "silent.dbs", "0, 0\n0.01, 0\n0.02, 0\n0.03, 0\n");
  const auto silent = RunTo(dir, "fft " + Quoted(dir / "silent.dbs"), "s.csv");
  EXPECT_EQ(silent.status, 1);
  EXPECT_THAT(silent.out, HasSubstr("No frequency content!"));
  EXPECT_FALSE(std::filesystem::exists(dir / "s.csv"));

  // One sample: no spectrum.
  WriteAll(dir / "one.dbs", "0, 1\n");
  const auto one = RunTo(dir, "fft " + Quoted(dir / "one.dbs"), "one.zel");
  EXPECT_EQ(one.status, 1);
  EXPECT_FALSE(one.out.empty());
}

}  // namespace
}  // namespace zel
