#include "core/records/record_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <string>

#include "core/records/chart_setup.h"
#include "core/records/record_catalog.h"
#include "core/records/record_fixtures.h"

namespace zel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using zel::testing::EvenRecord;
using zel::testing::Read;
using zel::testing::ReadRecord;
using zel::testing::ShowRecord;

TEST(RecordCatalogTest, FiftyThreeEntriesFoundBesideTheProgram) {
  const auto catalog = RecordCatalog();
  ASSERT_EQ(catalog.size(), 53u);
  EXPECT_STREQ(catalog[3].caption, "Peak = -0.1557   Duration = 54.38 sec");
  MessageLog log;
  EXPECT_EQ(
      FindCatalogFile("T2-III-3(1995, HYOUGOKEN_South, EW)", log, "/opt/zel"),
      "/opt/zel/dbase/T2-III-3.dbs");
  EXPECT_THAT(log.texts(), IsEmpty());
  // A title is compared whole.
  EXPECT_EQ(FindCatalogFile("1940, El Centro Site", log, "/opt/zel/"),
            "/opt/zel/dbase/");
  EXPECT_THAT(log.texts(), ElementsAre("File Not Found"));
  // The running program's own folder: the test binary's.
  EXPECT_TRUE(std::filesystem::exists(ProgramFolder() + "zelcore_tests"));
}

TEST(RecordReaderTest, ScalesTimeStepAndLastLineWithoutLineEnd) {
  CZELwDoc doc;
  doc.time_scale = 2.0;
  doc.amplitude_scale = 0.5;
  // Not in g: values become mm/s^2 through gravity.
  Read read = ReadRecord(doc,
                         "** a comment line, 1, 2\n"
                         "0.0, 0.1\n0.01, -0.2\r\n0.02 , 0.4\n"
                         "** another comment\n"
                         "\t0.03,0.8\n0.045, 1.0");
  ASSERT_EQ(read.result, 1);
  EXPECT_THAT(read.messages, IsEmpty());
  ASSERT_EQ(doc.record_samples.size(), 5u);
  EXPECT_DOUBLE_EQ(doc.record_samples[4].time, 0.09);
  EXPECT_DOUBLE_EQ(doc.record_samples[1].value, -0.1 * 9815.0);
  EXPECT_DOUBLE_EQ(doc.record_samples[4].value, 0.5 * 9815.0);
  // The step of samples 2 and 1, scaled.
  EXPECT_DOUBLE_EQ(doc.record_time_step, 0.02);

  // Results in g: no gravity factor. Three points leave the step as it was.
  CZELwDoc three;
  three.results_in_g = 1;
  three.record_time_step = 7.0;
  ASSERT_EQ(ReadRecord(three, "0,0.25\n1,2\n2,-1\n").result, 1);
  EXPECT_EQ(three.record_samples[0].value, 0.25);
  EXPECT_EQ(three.record_time_step, 7.0);

  // A lone "*" reads as time 0 and still needs its comma; text reads as 0.
  CZELwDoc star;
  ASSERT_EQ(ReadRecord(star, "*,1\n1,xyz\n").result, 1);
  EXPECT_EQ(star.record_samples[0].time, 0.0);
  EXPECT_EQ(star.record_samples[1].value, 0.0);
}

TEST(RecordReaderTest, BadRecordsAreRefusedNamingTheLineAndKeepTheOldOne) {
  CZELwDoc doc;
  doc.results_in_g = 1;
  ASSERT_EQ(ReadRecord(doc, "0,1\n1,2\n").result, 1);

  const std::string utf16(
      "\xFF\xFE"
      "0\0,\0 \0"
      "1\0\n\0",
      12);
  // Our own messages name the file and the line; the rest is checked in
  // full where it can be read.
  const struct {
    std::string bytes;
    double time_scale;
    const char* message;
  } bad[] = {
      {"", 1, "Error : No Data Found!"},
      {"0,1\n5\n", 1, "Error : Wrong Format!"},
      {"0,1\n0.01,2\n0.01,3\n", 1,
       "Error : Times must increase! test.dbs, "
       "line 3: 0.01 s follows 0.01 s."},
      {"0,1\n0.01,2\n", 0, "Error : Times must increase! test.dbs, line 2"},
      {"0,1\n0.01,2\n", -1, "Error : Times must increase! test.dbs, line 2"},
      {"0,1\n0.01,2\n", NAN,
       "Error : Time is not a finite number! test.dbs, line 1."},
      {"0,1\n1,1e400\n", 1,
       "Error : Value is not a finite number! test.dbs, line 2 (once "
       "scaled)."},
      {"-1.5e308,1\n-1e308,1\n1e308,1\n1.5e308,1\n", 1,
       "Error : Time step is not finite! test.dbs, line 4."},
      {utf16, 1,
       "Error : Not a text file! test.dbs, line 1 holds a NUL byte (UTF-16 "
       "or binary?)."},
      {"0,1\n1," + std::string(121, '7') + "\n", 1,
       "Error : Line too long! test.dbs, line 2: a value may have at most "
       "120 characters."},
  };
  for (const auto& b : bad) {
    doc.time_scale = b.time_scale;
    const Read read = ReadRecord(doc, b.bytes);
    EXPECT_EQ(read.result, 0) << b.bytes;
    EXPECT_THAT(read.messages, ElementsAre(StartsWith(b.message))) << b.bytes;
  }
  EXPECT_EQ(doc.record_samples.size(), 2u);
  EXPECT_EQ(doc.record_samples[1].value, 2.0);

  // A spectrum needs the time step, known from the fourth sample on.
  doc.time_scale = 1.0;
  MessageLog log;
  EXPECT_EQ(ReadRecordFile(doc, zel::testing::OpenBytes("0,1\n1,2\n2,3\n"), log,
                           TimeStepUse::kNeeded),
            0);
  EXPECT_THAT(log.texts(),
              ElementsAre("Error : Too few samples! test.dbs, line 3: 3; the "
                          "time step is known from the fourth sample on."));
}

TEST(RecordReaderTest, LongRecordsStopAtTheCapacityWithAMessage) {
  std::string text;
  for (int i = 0; i < kRecordCapacity; ++i) {
    text += std::to_string(i) + ", 0.5\n";
  }
  CZELwDoc doc;
  EXPECT_THAT(ReadRecord(doc, text).messages, IsEmpty());
  const Read cut = ReadRecord(doc, text + "1e9, 1\n");
  EXPECT_EQ(cut.result, 1);
  EXPECT_THAT(cut.messages, ElementsAre(kRecordCutMessage));
  EXPECT_EQ(doc.record_samples.size(),
            static_cast<std::size_t>(kRecordCapacity));
}

TEST(RecordCurveTest, TimeHistoryTitlesAndLastOfEqualPeaks) {
  CZELwDoc doc;
  const Read shown = ShowRecord(
      doc, EvenRecord({0.1, -0.6, 0.3, 0.6, -0.2}, 0.01), 0.5, 1.0, "Test");
  ASSERT_EQ(shown.result, 1);
  EXPECT_THAT(shown.messages, IsEmpty());
  // Amplitude scale 0.5: peaks of 0.3 at 0.01 s and 0.03 s; the later wins.
  // Titles and window are checked through the record dialog.
  EXPECT_EQ(ContextLabel(doc), "Max =   0.3000(g) at  0.030 sec");
  EXPECT_EQ(doc.AxisTitle(1), "Ground Accel. (g)");
  EXPECT_EQ(doc.point_count[0], 4);  // stored without the last mark
  EXPECT_DOUBLE_EQ(doc.store().Value(1, 1), -0.3);
  EXPECT_EQ(doc.record_flag, 1);

  // A failed read: the reader's message, then the curve's.
  CZELwDoc failed;
  const Read bad = ShowRecord(failed, "1 2\n");
  EXPECT_EQ(bad.result, 0);
  EXPECT_THAT(bad.messages,
              ElementsAre("Error : Wrong Format!",
                          "an Error occurred while reading data!"));
  EXPECT_EQ(failed.StoredPoints(0), 0u);
}

}  // namespace
}  // namespace zel
