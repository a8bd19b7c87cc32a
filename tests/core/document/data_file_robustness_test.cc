// Arbitrary bytes through the data file reader: a message or a clean read,
// never a crash, hang or overrun (run under the asan preset).
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "core/document/data_file.h"
#include "core/document/test_files.h"

namespace zel {
namespace {

using zel::testing::OpenBytes;

int ReadBytes(const std::string& bytes, MessageLog& log) {
  CZELwDoc doc;
  const int result = ReadDataFile(doc, OpenBytes(bytes), log);
  EXPECT_LE(doc.curve_count, kMaxCurves);
  return result;
}

constexpr char kSeed[] =
    "*ZELw\n*TITLE, Earthquake Response Spectrum\n*TITLE, El Centro\n"
    "*X-AXIS, Period Tn (sec)\n*Y-AXIS, Pseudo Velocity (mm/sec)\n"
    "*UNIT&TYPE, MM, VELO\n*FLAGS, 1, 1\n*DATA\n*DAMPING, 0.05\n"
    "1.00000E-002\t, 2.00000E+000\n2.00000E-002\t,-3.00000E+000\n"
    "*DATA\n*DAMPING, 0.10\n1.00000E-002\t, 1.00000E+000\n*ENDDATA";

TEST(DataFileRobustnessTest, RandomAndMutatedBuffersEndInAMessageOrACleanRead) {
  std::mt19937 random(20261121);
  const std::string alphabet = "*,\r\n\t -.0123456789eEnaif%ZELWDATFGSUMCH";
  for (int round = 0; round < 4000; ++round) {
    std::string bytes = kSeed;
    const int mutations = 1 + static_cast<int>(random() % 8);
    for (int m = 0; m < mutations && !bytes.empty(); ++m) {
      const std::size_t at = random() % bytes.size();
      switch (random() % 4) {
        case 0:
          bytes[at] = static_cast<char>(random());
          break;
        case 1:
          bytes[at] = alphabet[random() % alphabet.size()];
          break;
        case 2:
          bytes.erase(at, random() % 16);
          break;
        default:
          bytes.insert(at,
                       bytes.substr(random() % bytes.size(), random() % 40));
      }
    }
    if (round % 4 == 0)
      bytes.resize(random() % (bytes.size() + 1));  // truncated
    if (round % 7 == 0) {                           // pure noise
      bytes.assign(random() % 512, '\0');
      for (char& c : bytes) c = static_cast<char>(random());
    }
    MessageLog log;
    const int result = ReadBytes(bytes, log);
    EXPECT_TRUE(result == 1 || !log.texts().empty()) << bytes;
  }
}

TEST(DataFileRobustnessTest, AbsurdFieldsAndHugeLines) {
  const std::string head = "*ZELw\n*TITLE, t\n*FLAGS, 0, 1\n";
  MessageLog log;
  // A 10,000-character line where a title, a number and a unit stand.
  const std::string long_line(10000, '7');
  EXPECT_EQ(ReadBytes("*ZELw\n*TITLE, " + long_line + "\n*FLAGS, 0, 0\n", log),
            0);
  EXPECT_EQ(
      ReadBytes(head + "*DATA\n*DAMPING, 0.05\n" + long_line + "\t, 1\n", log),
      0);
  EXPECT_EQ(
      ReadBytes("*ZELw\n*UNIT&TYPE, " + long_line + ", X\n*FLAGS, 0, 0\n", log),
      0);
  // NaN, infinity and absurd flags.
  CZELwDoc doc;
  ASSERT_EQ(
      ReadDataFile(doc,
                   OpenBytes("*ZELw\n*FLAGS, nan, 1e300\n*DATA\n*DAMPING, inf\n"
                             "nan\t, -inf\ninf\t, nan\n*ENDDATA"),
                   log),
      1);
  EXPECT_EQ(doc.tripartite, 0);
  EXPECT_EQ(doc.damping_flag, 2147483647);
  EXPECT_EQ(doc.StoredPoints(0), 2u);
  // Seven curves cannot be held: a clear message, six curves kept.
  std::string seven = "*ZELw\n*FLAGS, 0, 0\n";
  for (int c = 0; c < 7; ++c) seven += "*DATA\n1\t, 2\n";
  log.Clear();
  CZELwDoc six;
  EXPECT_EQ(ReadDataFile(six, OpenBytes(seven + "*ENDDATA"), log), 0);
  EXPECT_EQ(log.texts().size(), 1u);
  EXPECT_EQ(six.StoredPoints(5), 1u);
  // A file cut off in the middle of its data reads what is there.
  CZELwDoc cut;
  EXPECT_EQ(
      ReadDataFile(cut, OpenBytes("*ZELw\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n3\t, 4"),
                   log),
      1);
  EXPECT_EQ(cut.store().Value(1, 1), 4.0);
}

TEST(DataFileRobustnessTest, ManyPointsReadAndTheStoreIsBounded) {
  std::string bytes = "*ZELw\n*FLAGS, 0, 0\n*DATA\n";
  const int points = 200000;
  bytes.reserve(bytes.size() + points * 28);
  for (int i = 0; i < points; ++i) bytes += "1.00000E-002\t, 2.00000E+000\n";
  CZELwDoc doc;
  MessageLog log;
  EXPECT_EQ(ReadDataFile(doc, OpenBytes(bytes + "*ENDDATA"), log), 1);
  EXPECT_EQ(doc.StoredPoints(0), static_cast<std::size_t>(points));

  DataStore store;
  EXPECT_FALSE(store.SetValue(DataStore::kMaxItems, 0, 1.0));
  EXPECT_FALSE(store.SetValue(0, kGroupCount, 1.0));
  EXPECT_EQ(store.Size(0), 0u);
}

}  // namespace
}  // namespace zel
