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
using zel::testing::EvenRecord;
using zel::testing::Read;
using zel::testing::ReadRecord;
using zel::testing::ShowRecord;

TEST(RecordCatalogTest, FiftyThreeEntriesFoundBesideTheProgram) {
  const auto catalog = RecordCatalog();
  ASSERT_EQ(catalog.size(), 53u);
  EXPECT_STREQ(catalog[3].caption, "Peak = -0.1557   Duration = 54.38 sec");
  EXPECT_STREQ(catalog[28].caption, "Peak = -0.237 g  Duration = 26.18");

  MessageLog log;
  EXPECT_EQ(FindCatalogFile("1940, El Centro Site, 270 Deg", log, "/opt/zel"),
            "/opt/zel/dbase/Elcent_h.dbs");
  EXPECT_EQ(
      FindCatalogFile("T2-III-3(1995, HYOUGOKEN_South, EW)", log, "/opt/zel/"),
      "/opt/zel/dbase/T2-III-3.dbs");
  EXPECT_THAT(log.texts(), IsEmpty());
  // A title is compared whole.
  EXPECT_EQ(FindCatalogFile("1940, El Centro Site", log, "/opt/zel/"),
            "/opt/zel/dbase/");
  EXPECT_THAT(log.texts(), ElementsAre("File Not Found"));

  // The running program's own folder: the test binary's.
  const std::string folder = ProgramFolder();
  ASSERT_FALSE(folder.empty());
  EXPECT_EQ(folder.back(), '/');
  EXPECT_TRUE(std::filesystem::exists(folder + "zelcore_tests"));
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
  EXPECT_DOUBLE_EQ(doc.record_samples[1].time, 0.02);
  EXPECT_DOUBLE_EQ(doc.record_samples[4].time, 0.09);
  EXPECT_DOUBLE_EQ(doc.record_samples[1].value, -0.1 * 9815.0);
  EXPECT_DOUBLE_EQ(doc.record_samples[4].value, 0.5 * 9815.0);
  // The step of samples 2 and 1, scaled.
  EXPECT_DOUBLE_EQ(doc.record_time_step, 0.02);

  // Results in g: no gravity factor.
  CZELwDoc in_g;
  in_g.results_in_g = 1;
  ASSERT_EQ(ReadRecord(in_g, "0, 0.25\n0.5, -1").result, 1);
  EXPECT_EQ(in_g.record_samples[0].value, 0.25);
  EXPECT_EQ(in_g.record_samples[1].value, -1.0);

  // Three points leave the step as it was.
  CZELwDoc three;
  three.record_time_step = 7.0;
  ASSERT_EQ(ReadRecord(three, "0,1\n1,2\n2,3\n").result, 1);
  EXPECT_EQ(three.record_time_step, 7.0);
  EXPECT_EQ(three.record_samples.size(), 3u);

  // A lone "*" reads as time 0 and still needs its comma; text reads as 0.
  CZELwDoc star;
  ASSERT_EQ(ReadRecord(star, "*,1\nabc,xyz\n").result, 1);
  EXPECT_EQ(star.record_samples[0].time, 0.0);
  EXPECT_EQ(star.record_samples[1].value, 0.0);
}

TEST(RecordReaderTest, BadFilesGiveTheirMessagesAndKeepThePreviousRecord) {
  CZELwDoc doc;
  doc.results_in_g = 1;
  ASSERT_EQ(ReadRecord(doc, "0,1\n1,2\n").result, 1);

  std::string binary;
  for (int i = 0; i < 4096; ++i) binary.push_back(static_cast<char>(i * 37));
  const struct {
    std::string bytes;
    const char* message;
  } bad[] = {{"", "Error : No Data Found!"},
             {"** only a comment\n", "Error : No Data Found!"},
             {"0 1\n1 2\n", "Error : Wrong Format!"},
             {"0,1\n1;2\n2,3\n", "Error : Wrong Format!"},
             {"0,1\n5\n", "Error : Wrong Format!"},
             {binary, nullptr}};
  for (const auto& b : bad) {
    const Read read = ReadRecord(doc, b.bytes);
    EXPECT_EQ(read.result, 0);
    if (b.message != nullptr) {
      EXPECT_THAT(read.messages, ElementsAre(b.message));
    }
  }
  // Failed reads leave the record that was there; a null stream fails too.
  MessageLog log;
  EXPECT_EQ(ReadRecordFile(doc, nullptr, log), 0);
  EXPECT_EQ(doc.record_samples.size(), 2u);
  EXPECT_EQ(doc.record_samples[1].value, 2.0);

  // Not-a-number values are taken as they are.
  ASSERT_EQ(ReadRecord(doc, "0, nan\n0.01, inf\n0.02, -1e400\n").result, 1);
  EXPECT_TRUE(std::isnan(doc.record_samples[0].value));
  EXPECT_TRUE(std::isinf(doc.record_samples[1].value));
  EXPECT_TRUE(std::isinf(doc.record_samples[2].value));
}

TEST(RecordReaderTest, LongRecordsStopAtTheCapacityWithAMessage) {
  std::string exactly;
  for (int i = 0; i < kRecordCapacity; ++i) exactly += "0.01, 0.5\n";
  CZELwDoc doc;
  Read read = ReadRecord(doc, exactly);
  EXPECT_EQ(read.result, 1);
  EXPECT_THAT(read.messages, IsEmpty());
  EXPECT_EQ(doc.record_samples.size(),
            static_cast<std::size_t>(kRecordCapacity));

  // Ten million lines: cut at the capacity, with the message.
  std::string huge;
  huge.reserve(10'000'000 * 6);
  for (int i = 0; i < 10'000'000; ++i) huge += "1,-2\n";
  read = ReadRecord(doc, huge);
  EXPECT_EQ(read.result, 1);
  EXPECT_THAT(read.messages, ElementsAre(kRecordCutMessage));
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
  EXPECT_EQ(ContextLabel(doc), "Max =   0.3000(g) at  0.030 sec");
  EXPECT_EQ(doc.title, "Earthquake Record");
  EXPECT_EQ(doc.window_title, "Earthquake Record");
  EXPECT_EQ(doc.subtitle, "Test");
  EXPECT_EQ(doc.AxisTitle(0), "Time (sec)");
  EXPECT_EQ(doc.AxisTitle(1), "Ground Accel. (g)");
  // Points stored without the last mark.
  EXPECT_EQ(doc.point_count[0], 4);
  EXPECT_EQ(doc.StoredPoints(0), 5u);
  EXPECT_DOUBLE_EQ(doc.store().Value(3, 0), 0.03);
  EXPECT_DOUBLE_EQ(doc.store().Value(1, 1), -0.3);
  EXPECT_EQ(doc.store().Items(0)[0].style, kItemStyle);
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
