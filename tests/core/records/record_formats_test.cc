// Records in the formats the data centres publish, written here by hand with
// known values, units, time steps and metadata.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "core/records/record.h"
#include "core/records/record_reader.h"
#include "core/records/record_writer.h"

namespace zel {
namespace {

using ::testing::DoubleNear;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Pointwise;

struct Outcome {
  ReadResult result;
  Record record;
  std::vector<std::string> messages;
};

Outcome Read(const std::string& bytes, const std::string& name,
             ImportChoices choices = {},
             TimeStepUse use = TimeStepUse::kNotNeeded) {
  RecordReading reading;
  reading.choices = choices;
  reading.use = use;
  MessageLog log;
  Outcome out;
  out.result =
      ReadRecord(InputFile::FromBytes(bytes, name), reading, out.record, log);
  out.messages = log.texts();
  return out;
}

std::vector<double> Values(const Record& record) {
  std::vector<double> values;
  for (const RecordSample& s : record.samples) values.push_back(s.value);
  return values;
}

// Expects the record to hold `values` (in g) every `dt` seconds.
void ExpectSamples(const Outcome& out, const std::vector<double>& values,
                   double dt) {
  ASSERT_EQ(out.result, ReadResult::kRead)
      << ::testing::PrintToString(out.messages);
  ASSERT_EQ(out.record.samples.size(), values.size());
  EXPECT_NEAR(out.record.time_step, dt, 1e-12);
  for (std::size_t i = 0; i < values.size(); ++i) {
    EXPECT_NEAR(out.record.samples[i].value, values[i], 1e-9) << i;
    EXPECT_NEAR(out.record.samples[i].time, dt * i, 1e-9) << i;
  }
}

TEST(RecordFormatsTest, PeerBothHeaderLayoutsShortLastLineAndCrlf) {
  const std::string values =
      "  .1000000E-01  .2000000E-01 -.3000000E-01  .4000000E-01  "
      ".5000000E-01\r\n -.6000000E-01  .7000000E-01\r\n";
  const Outcome peer = Read(
      "PEER NGA STRONG MOTION DATABASE RECORD\r\n"
      "Imperial Valley 1979, El Centro Array 6, 230\r\n"
      "ACCELERATION TIME SERIES IN UNITS OF G\r\n"
      "NPTS=      7, DT=   .0050 SEC\r\n" +
          values,
      "RSN1_230.AT2");
  ExpectSamples(peer, {0.01, 0.02, -0.03, 0.04, 0.05, -0.06, 0.07}, 0.005);
  EXPECT_EQ(peer.record.format, RecordFormat::kPeer);
  EXPECT_EQ(peer.record.station, "El Centro Array 6");
  EXPECT_EQ(RecordDescription(peer.record),
            "Imperial Valley 1979, El Centro Array 6, 230");

  const Outcome old = Read(
      "PEER STRONG MOTION DATABASE RECORD. PROCESSING BY PACIFIC ENGINEERING.\n"
      "Northridge 1994, Test, 090\nACCELERATION TIME HISTORY IN UNITS OF G\n"
      "    7    0.0100    NPTS, DT\n" +
          values,
      "x.at2");
  ExpectSamples(old, {0.01, 0.02, -0.03, 0.04, 0.05, -0.06, 0.07}, 0.01);

  // Wrong step, counts that disagree, a header claiming 10^9 points, a
  // value that is not a number: a message naming the file and line.
  const auto refusal = [&](const std::string& line4, const std::string& data) {
    const Outcome bad =
        Read("a\nb\nACCELERATION IN G\n" + line4 + "\n" + data, "bad.AT2");
    EXPECT_EQ(bad.result, ReadResult::kRefused);
    return bad.messages.empty() ? std::string() : bad.messages[0];
  };
  EXPECT_THAT(refusal("NPTS= 7, DT= 0.0 SEC", values),
              HasSubstr("bad.AT2, line 4"));
  EXPECT_THAT(refusal("NPTS= 7, DT= -.01 SEC", values),
              HasSubstr("Time step must be above 0"));
  EXPECT_THAT(refusal("NPTS= 9, DT= .01 SEC", values), HasSubstr("line 6"));
  EXPECT_THAT(refusal("NPTS= 1000000000, DT= .01 SEC", values),
              HasSubstr("bad.AT2"));
  EXPECT_THAT(refusal("NPTS= 2, DT= .01 SEC", "0.1 abc\n"),
              HasSubstr("\"abc\""));
}

std::string KnetHeader(const std::string& direction, const std::string& max) {
  const std::pair<const char*, std::string> lines[] = {
      {"Origin Time", "2003/05/26 18:24:00"},
      {"Lat.", "38.800"},
      {"Long.", "141.700"},
      {"Depth. (km)", "71"},
      {"Mag.", "7.0"},
      {"Station Code", "IWTH20"},
      {"Station Lat.", "39.000"},
      {"Station Lon.", "141.600"},
      {"Station Height(m)", "100"},
      {"Record Time", "2003/05/26 18:24:10"},
      {"Sampling Freq(Hz)", "100Hz"},
      {"Duration Time(s)", "0.1"},
      {"Dir.", direction},
      {"Scale Factor", "980.665(gal)/1000"},
      {"Max Acc. (gal)", max},
      {"Last Correction", "2003/05/26 18:24:09"},
      {"Memo.", ""}};
  std::string text;
  for (const auto& [label, value] : lines) {
    std::string line = label;
    line.resize(18, ' ');
    text += line + value + "\n";
  }
  return text;
}

TEST(RecordFormatsTest, KnetScaleFactorMeanRemovalAndKiknetSensors) {
  // Counts 1..10 average 5.5; one count is 0.980665 gal = 0.001 g.
  const std::string counts =
      "       1       2       3       4       5       6       7       8\n"
      "       9      10\n";
  const Outcome surface =
      Read(KnetHeader("4", "4.413") + counts, "IWTH200305261824.NS2");
  ExpectSamples(surface,
                {-0.0045, -0.0035, -0.0025, -0.0015, -0.0005, 0.0005, 0.0015,
                 0.0025, 0.0035, 0.0045},
                0.01);
  EXPECT_EQ(surface.record.event, "2003/05/26 18:24:00 M7.0");
  EXPECT_EQ(surface.record.station, "IWTH20");
  EXPECT_EQ(RecordDescription(surface.record),
            "2003/05/26 18:24:00 M7.0, IWTH20, N-S, surface");

  const Outcome borehole =
      Read(KnetHeader("E-W", "4.413") + counts, "IWTH200305261824.EW1");
  ASSERT_EQ(borehole.result, ReadResult::kRead);
  EXPECT_EQ(borehole.record.component, "E-W");
  EXPECT_EQ(borehole.record.sensor, "borehole");

  std::string bad_scale = KnetHeader("N-S", "1") + counts;
  bad_scale.replace(bad_scale.find("980.665(gal)"), 12, "980.665(kine)");
  EXPECT_THAT(Read(bad_scale, "k.NS").messages,
              ElementsAre(HasSubstr("k.NS, line 14")));
  // Truncated header.
  EXPECT_THAT(Read(KnetHeader("N-S", "1").substr(0, 200), "k.NS").messages,
              ElementsAre(HasSubstr("Header too short")));
}

TEST(RecordFormatsTest, EsmUnitsColonsInValuesAndCounts) {
  const std::string header =
      "EVENT_NAME: Central Italy\n"
      "EVENT_DATE_YYYYMMDD: 20161030\n"
      "NETWORK: IT\nSTATION_CODE: NRC\nSTREAM: HGE\n"
      "DATE_TIME_FIRST_SAMPLE_YYYYMMDD_HHMMSS: 20161030_064019.440\n"
      "EVENT_TIME_HHMMSS: 06:40:18\n"
      "SAMPLING_INTERVAL_S: 0.005\nUSER5:\n";
  const std::string data = " 0.980665\n-1.96133\n 0.0\n 9.80665";
  const Outcome esm =
      Read(header + "NDATA: 4\nUNITS: m/s^2\n" + data, "IT.NRC.HGE.ACC.ASC");
  ExpectSamples(esm, {0.1, -0.2, 0.0, 1.0}, 0.005);
  EXPECT_EQ(RecordDescription(esm.record),
            "Central Italy 2016-10-30, IT.NRC, HGE");

  const Outcome gal = Read(header + "UNITS: cm/s^2\n" + data, "e.asc");
  ASSERT_EQ(gal.result, ReadResult::kRead);
  EXPECT_NEAR(gal.record.samples[3].value, 0.01, 1e-12);

  EXPECT_THAT(
      Read(header + "NDATA: 5\nUNITS: g\n" + data, "e.asc").messages,
      ElementsAre(HasSubstr("Counts disagree! e.asc, line 10: NDATA is 5")));
  EXPECT_THAT(Read(header + "UNITS: furlongs\n" + data, "e.asc").messages,
              ElementsAre(HasSubstr("Unit not understood")));
}

// A COSMOS V2 block of five accelerations in gal (units code 4 in the
// integer header) every 10 ms; fields touch each other.
std::string CosmosFile() {
  std::string text =
      "Corrected acceleration  (Format v01.20 with 13 text lines) Src: hand\n"
      "Test Earthquake 2004 M6.0\n";
  for (int i = 3; i <= 13; ++i) {
    text += i == 5   ? "Station 9999: Test Site\n"
            : i == 7 ? "Sta Chan   1:  90 deg (Rcrdr Chan 1)\n"
                     : "-\n";
  }
  text += "  20 Integer-header values follow on   2 lines, Format= (10I8)\n";
  text += "       2       1       4";
  for (int i = 4; i <= 20; ++i) text += i == 11 ? "\n    -999" : "    -999";
  text += "\n  65 Real-header values follow on  13 lines, Format= (5F15.6)\n";
  for (int i = 1; i <= 65; ++i) {
    text += i == 62 ? "      10.000000" : "    -999.000000";
    if (i % 5 == 0) text += "\n";
  }
  text +=
      "   1 Comment line(s) follow, each starting with a \"|\":\n"
      "| made by hand\n"
      "       5 acceleration pts, approx    0 secs, Format=(8F10.5)\n"
      "  98.06650-196.13300   0.00000 490.33250   9.80665\n"
      "End-of-data for Chan  1 acceleration\n";
  return text;
}

TEST(RecordFormatsTest, CosmosUnitsCodeAndFixedFields) {
  const Outcome cosmos = Read(CosmosFile(), "test.V2");
  ExpectSamples(cosmos, {0.1, -0.2, 0.0, 0.5, 0.01}, 0.01);
  EXPECT_EQ(cosmos.record.format, RecordFormat::kCosmos);
  EXPECT_EQ(RecordDescription(cosmos.record),
            "Test Earthquake 2004 M6.0, Station 9999: Test Site, Sta Chan 1: "
            "90 deg");

  std::string truncated = CosmosFile();
  truncated.resize(truncated.find(" 490.33"));
  EXPECT_THAT(Read(truncated, "test.V2").messages,
              ElementsAre(HasSubstr("Data end early")));
  std::string corrupt = CosmosFile();
  corrupt.replace(corrupt.find("  65 Real"), 9, "  xx Real");
  EXPECT_THAT(Read(corrupt, "test.V2").messages,
              ElementsAre(HasSubstr("Header not understood! test.V2")));
}

// Two V2 channels (acceleration then velocity, then the second channel's
// acceleration) and the Ctrl-Z bytes old files end with.
const char kCsmip[] =
    "Corrected accelerogram  CSMIP hand-made\n"
    "Test Earthquake of 2004\n"
    "Station No. 12345  Test Site\n"
    "Chan  1:   90 Deg\n"
    "     4 points of accel data equally spaced at  .010 sec, in cm/sec2.  "
    "(8f10.6)\n"
    "  9.806650-19.613300  0.000000 98.066500\n"
    "     4 points of veloc data equally spaced at  .010 sec, in cm/sec.  "
    "(8f10.6)\n"
    "  1.000000  2.000000  3.000000  4.000000\n"
    "Corrected accelerogram  CSMIP hand-made\n"
    "Test Earthquake of 2004\n"
    "Station No. 12345  Test Site\n"
    "Chan  2:  360 Deg\n"
    "     3 POINTS OF ACCEL DATA EQUALLY SPACED AT  .020 SEC, IN CM/SEC2.\n"
    " 19.613300 19.613300 19.613300\n"
    "\x1A\x1A";

TEST(RecordFormatsTest, CsmipChannelsByChoice) {
  const Outcome first = Read(kCsmip, "test.v2");
  ExpectSamples(first, {0.01, -0.02, 0.0, 0.1}, 0.01);
  EXPECT_EQ(first.record.component, "Chan 1: 90 Deg");

  ImportChoices second;
  second.channel = 2;
  ExpectSamples(Read(kCsmip, "test.v2", second), {0.02, 0.02, 0.02}, 0.02);
  second.channel = 3;
  EXPECT_THAT(Read(kCsmip, "test.v2", second).messages,
              ElementsAre("Error : No channel 3! test.v2 holds 2 channels."));

  const std::optional<RecordLayout> layout =
      InspectRecordFile(InputFile::FromBytes(kCsmip, "test.v2"));
  ASSERT_TRUE(layout.has_value());
  EXPECT_THAT(layout->channels,
              ElementsAre("Chan 1: 90 Deg", "Chan 2: 360 Deg"));
  EXPECT_TRUE(layout->NeedsImportStep());
}

TEST(RecordFormatsTest, PlainTextColumnsUnitsAndTimeStep) {
  // One column with a byte-order mark: the user gives the step.
  const std::string column =
      "\xEF\xBB\xBF"
      "0.1\n-0.2\n0.3";
  EXPECT_THAT(Read(column, "one.txt").messages,
              ElementsAre(HasSubstr("Time step needed! one.txt")));
  ImportChoices one;
  one.time_step = 0.02;
  ExpectSamples(Read(column, "one.txt", one), {0.1, -0.2, 0.3}, 0.02);

  // A table with a header row, separated by semicolons, values in gal.
  const std::string table =
      "# hand-made\ntime;NS;EW\n0.00;9.80665;1\n0.01;-19.6133;2\n"
      "0.02;0;3\n0.03;98.0665;4\n";
  ImportChoices gal;
  gal.unit = AccelUnit::kGal;
  ExpectSamples(Read(table, "t.csv", gal), {0.01, -0.02, 0.0, 0.1}, 0.01);
  ImportChoices ew;
  ew.time_column = 1;
  ew.accel_column = 3;
  ExpectSamples(Read(table, "t.csv", ew), {1, 2, 3, 4}, 0.01);
  const std::optional<RecordLayout> layout =
      InspectRecordFile(InputFile::FromBytes(table, "t.csv"));
  ASSERT_TRUE(layout.has_value());
  EXPECT_THAT(layout->columns, ElementsAre("time", "NS", "EW"));

  // Uneven times, a missing sample, text among numbers.
  EXPECT_THAT(Read("0 1\n0.01 2\n0.03 3\n", "u.txt").messages,
              ElementsAre(HasSubstr("Times are not evenly spaced! u.txt, "
                                    "line 3")));
  EXPECT_THAT(Read("0 1\n0.01 x\n", "u.txt").messages,
              ElementsAre(HasSubstr("u.txt, line 2")));
}

TEST(RecordFormatsTest, LongRecordsUnknownFilesAndTheDbsLayoutRoundTrip) {
  std::string longer;
  for (int i = 0; i <= kRecordCapacity; ++i) longer += "0.5\n";
  ImportChoices step;
  step.time_step = 0.01;
  const Outcome cut = Read(longer, "long.txt", step);
  ASSERT_EQ(cut.result, ReadResult::kRead);
  EXPECT_EQ(cut.record.samples.size(),
            static_cast<std::size_t>(kRecordCapacity));
  EXPECT_THAT(cut.messages, ElementsAre(kRecordCutMessage));

  EXPECT_THAT(Read("hello\nworld\n", "notes.txt").messages,
              ElementsAre(HasSubstr("Unknown record format! notes.txt is none "
                                    "of the formats ZEL reads")));
  // A .dbs file keeps its old failures, for the empty document they leave.
  const Outcome dbs = Read("hello\n", "notes.dbs");
  EXPECT_EQ(dbs.result, ReadResult::kFailed);
  EXPECT_THAT(dbs.messages, ElementsAre("Error : Wrong Format!"));

  // A converted record reads back as the same samples.
  const Outcome cosmos = Read(CosmosFile(), "test.V2");
  const Outcome back = Read(DbsText(cosmos.record), "back.dbs");
  EXPECT_EQ(back.record.format, RecordFormat::kDbs);
  EXPECT_THAT(Values(back.record),
              Pointwise(DoubleNear(1e-12), Values(cosmos.record)));
  EXPECT_THAT(back.messages, IsEmpty());
}

}  // namespace
}  // namespace zel
