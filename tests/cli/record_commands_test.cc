#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <string>
#include <vector>

#include "cli/cli_runner.h"
#include "core/document/c_format.h"
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

TEST(RecordCommandsTest, RecordAndFftWriteWhatTheDialogWould) {
  TempDir dir;
  const std::string record = SmallRecord(1000);
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

  r = RunTo(dir, "fft " + quake, "fft.zel");
  ASSERT_EQ(r.status, 0) << r.out;
  CZELwDoc fft;
  ASSERT_EQ(ShowRecord(fft, record, 1.0, 1.0, "User EQ : quake.dbs").result, 1);
  MessageLog log;
  ASSERT_TRUE(SwitchTimeFrequency(fft, log));
  EXPECT_EQ(r.out, "Maximum at 2.93 Hz\n");
  EXPECT_EQ(ReadAll(dir / "fft.zel"), SavedBytes(fft, dir));

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
  WriteAll(dir / "one.dbs", "0, 1\n");
  const struct {
    std::string arguments;
    ::testing::Matcher<std::string> out;
  } failures[] = {
      {"record 5" + base,
       Eq("ERROR! File Not Found!\n" + (dir / "dbase/Taft_t.dbs").string() +
          ": No such file or directory\n")},
      {"record 54", Eq("No catalog entry 54 (1 to 53)\n")},
      {"record " + Quoted(dir / "empty.dbs"),
       Eq("Error : No Data Found!\nan Error occurred while reading data!\n")},
      {"record " + quake + " --amp-scale 1,5",
       HasSubstr("--amp-scale: not a number: 1,5")},
      {"fft " + Quoted(dir / "one.dbs"), _}};
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
  // Left out, every setting is the dialog's, to the last bit of "From";
  // --log raises "from" to the same 0.01.
  r = RunTo(dir, spectrum, "defaults.csv");
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(ReadAll(dir / "defaults.csv"),
              HasSubstr("\n0.009999999776482582,"));
  r = RunTo(dir, spectrum + " --kind sd --from 0 --to 2 --steps 20 --log",
            "k.csv");
  EXPECT_THAT(ReadAll(dir / "k.csv"), HasSubstr("\n0.009999999776482582,"));
  // ...and spaces the periods geometrically up to "to" itself.
  EXPECT_THAT(ReadAll(dir / "k.csv"), HasSubstr("\n2,"));
  r = RunTo(dir, spectrum + " --exact --damping 0.1", "exact.zel");
  EXPECT_THAT(ReadAll(dir / "exact.zel"),
              HasSubstr("*TITLE, Earthquake Response Spectrum (exact)\n"));

  // Out-of-range settings are refused before anything is written.
  for (const char* bad :
       {"--steps 0", "--steps 5001", "--steps 2.5", "--kind xyz",
        "--damping 1.5", "--damping 0,0,0,0,0,0,0", "--from -1", "--to 101",
        "--damping abc", "--amp-scale 101", "--log-grid --from 0"}) {
    r = RunTo(dir, spectrum + " " + bad, "bad.zel");
    EXPECT_EQ(r.status, 1) << bad;
    EXPECT_FALSE(r.out.empty()) << bad;
  }
  EXPECT_FALSE(std::filesystem::exists(dir / "bad.zel"));
  // A time scale of 0 leaves no time step: the reader refuses the record.
  r = RunTo(dir, spectrum + " --time-scale 0", "zero.zel");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("Times must increase!"));
}

TEST(RecordCommandsTest, ParamsPrintTextOrCsv) {
  TempDir dir;
  WriteAll(dir / "quake.dbs", SmallRecord());
  const std::string params = "params " + Quoted(dir / "quake.dbs");
  auto r = RunCli(params);
  ASSERT_EQ(r.status, 0) << r.out;
  EXPECT_THAT(r.out, StartsWith("Record : User EQ : quake.dbs\nPGA : "));
  r = RunCli(params + " " + Quoted(dir / "missing.dbs") + " --csv");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, StartsWith("\"Record\",\"PGA (g)\",\"Time of PGA (s)\""));
  EXPECT_THAT(r.out, HasSubstr("\n\"User EQ : quake.dbs\","));
  EXPECT_THAT(r.out, HasSubstr("ERROR! File Not Found!"));
}

TEST(RecordCommandsTest, BatchesSkipABadRecordAndFinishTheOthers) {
  TempDir dir;
  std::filesystem::create_directory(dir / "suite");
  const std::string a = SmallRecord(500), c = SmallRecord(700);
  WriteAll(dir / "suite" / "a.dbs", a);
  WriteAll(dir / "suite" / "b.dbs", "no commas here\n");
  WriteAll(dir / "suite" / "c.dbs", c);
  WriteAll(dir / "suite" / ".hidden", "skipped\n");
  const std::string options = " --damping 0.05 --steps 20 --to 2";

  // A folder stands for its files, in name order; one output each, and the
  // summary's rows hold what each output holds.
  auto r =
      RunCli("spectrum " + Quoted(dir / "suite") + options + " -o " +
             Quoted(dir / "out") + " --summary " + Quoted(dir / "table.csv"));
  EXPECT_EQ(r.status, 1);
  const std::string b = (dir / "suite" / "b.dbs").string();
  EXPECT_EQ(r.out, b + ": Error : Wrong Format!\n" + b +
                       ": an Error occurred while reading data!\n");
  EXPECT_FALSE(std::filesystem::exists(dir / "out" / "b.zel"));
  const std::string table = ReadAll(dir / "table.csv");
  EXPECT_THAT(table, StartsWith("\"Record\",\"PGA (g)\",\"Pseudo Acceleration "
                                "(g) at T=0.01 s, damping 0.05\","));
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 3);
  for (const auto& [name, n] : {std::pair{"a", 500}, std::pair{"c", 700}}) {
    const std::string id = std::string("User EQ : ") + name + ".dbs";
    const CZELwDoc doc =
        SpectrumOf(SmallRecord(n),
                   Settings(0, {0.05}, static_cast<double>(0.01f), 2, 20, id));
    EXPECT_EQ(ReadAll(dir / "out" / (std::string(name) + ".zel")),
              SavedBytes(doc, dir));
    const std::size_t start = table.find("\n\"" + id + "\",");
    ASSERT_NE(start, std::string::npos);
    std::vector<double> row;
    for (std::size_t at = table.find(',', start);
         at < table.find('\n', start + 1); at = table.find(',', at + 1)) {
      row.push_back(AtoF(table.substr(at + 1)));
    }
    ASSERT_EQ(row.size(), 21u);
    double pga = 0;
    for (double v : zel::testing::Sine(n, 3, 0.01, 0.4, 0.3)) {
      pga = std::max(pga, std::fabs(v));
    }
    EXPECT_NEAR(row[0], pga, 1e-10);  // ten significant digits
    for (int j = 0; j < 20; ++j) EXPECT_EQ(row[j + 1], doc.store().Value(j, 1));
  }

  // Several arguments, catalog entries among them; the time histories'
  // labels are printed, each after its record.
  r = RunCli("record " + Quoted(dir / "suite" / "c.dbs") + " 54 " +
             Quoted(dir / "suite" / "a.dbs") + " -o " + Quoted(dir / "h/") +
             " --csv");
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("54: No catalog entry 54 (1 to 53)\n"));
  EXPECT_THAT(r.out, HasSubstr("/c.dbs: Max = "));
  EXPECT_TRUE(std::filesystem::exists(dir / "h" / "a.csv"));
  EXPECT_TRUE(std::filesystem::exists(dir / "h" / "c.csv"));
  // The same name twice: the second would overwrite the first.
  r = RunCli("record " + Quoted(dir / "suite" / "a.dbs") + " " +
             Quoted(dir / "suite" / "a.dbs") + " -o " + Quoted(dir / "h2"));
  EXPECT_EQ(r.status, 1);
  EXPECT_THAT(r.out, HasSubstr("a.zel is the output of "));
}

TEST(RecordCommandsTest, OtherFormatsTheirChoicesAndConvertRecord) {
  TempDir dir;
  // A semicolon table in gal; the second column by default, the third by
  // --columns, and one column with --dt.
  WriteAll(dir / "t.csv",
           "time;NS;EW\n0;98.0665;1\n0.01;-196.133;2\n0.02;0;3\n");
  const std::string table = Quoted(dir / "t.csv");
  auto r = RunTo(dir, "record " + table + " --unit gal", "ns.csv");
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_EQ(r.out, "Max =   0.2000(g) at  0.010 sec\n");
  r = RunTo(dir, "record " + table + " --columns 1,3", "ew.csv");
  EXPECT_EQ(r.out, "Max =   3.0000(g) at  0.020 sec\n");
  r = RunTo(dir, "record " + table + " --columns 0,3 --dt 0.5", "dt.csv");
  EXPECT_EQ(r.out, "Max =   3.0000(g) at  1.000 sec\n");
  for (const char* bad : {"--unit furlong", "--columns 1", "--columns 1,x",
                          "--dt 0", "--columns 1,4", "--channel 2"}) {
    r = RunTo(dir, "record " + table + " " + bad, "bad.csv");
    EXPECT_EQ(r.status, 1) << bad;
    EXPECT_FALSE(r.out.empty()) << bad;
  }

  // convert-record writes a .dbs file that reads back the same.
  r = RunCli("convert-record " + table + " --unit gal " +
             Quoted(dir / "t.dbs"));
  EXPECT_EQ(r.status, 0) << r.out;
  EXPECT_EQ(r.out, "3 samples, dt = 0.01 s\n");
  EXPECT_THAT(ReadAll(dir / "t.dbs"),
              HasSubstr("\n0, 0.1\n0.01, -0.2\n0.02, 0\n"));
  r = RunTo(dir, "record " + Quoted(dir / "t.dbs"), "back.csv");
  EXPECT_EQ(r.out, "Max =   0.2000(g) at  0.010 sec\n");
}

}  // namespace
}  // namespace zel
