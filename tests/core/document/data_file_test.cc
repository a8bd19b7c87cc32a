#include "core/document/data_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <clocale>
#include <string>

#include "core/document/test_files.h"

namespace zel {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using zel::testing::ReadAll;
using zel::testing::TempDir;

using ReadResult = zel::testing::ReadOutcome;

ReadResult Read(CZELwDoc& doc, const std::string& bytes) {
  return zel::testing::ReadBytesWith(bytes, [&](InputFile f, MessageSink& m) {
    return ReadDataFile(doc, std::move(f), m);
  });
}

CZELwDoc DesignSpectrum() {
  CZELwDoc doc;
  doc.title = "UBC(1997) Design Spectrum";
  doc.subtitle = "Ca=0.4  Cv=0.56";
  doc.spectrum_kind = kAbsoluteAcceleration;
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.SetAxisTitle(1, doc.BuildYAxisTitle());
  const double points[][2] = {
      {0.0, 0.4}, {0.1, 1.0}, {0.5, -0.25}, {1.0, 0.56}};
  for (int i = 0; i < 4; ++i) doc.SetPoint(i, 0, points[i][0], points[i][1], 0);
  return doc;
}

constexpr char kDesignSpectrumFile[] =
    "*ZELw\n"
    "*TITLE, UBC(1997) Design Spectrum\n"
    "*TITLE, Ca=0.4  Cv=0.56\n"
    "*X-AXIS, Period Tn (sec)\n"
    "*Y-AXIS, Absolute Acceleration (g)\n"
    "*UNIT&TYPE, GRAV, ACCEL\n"
    "*FLAGS, 0, 0\n"
    "*DATA\n"
    "0.00000E+000\t, 4.00000E-001\n"
    "1.00000E-001\t, 1.00000E+000\n"
    "5.00000E-001\t,-2.50000E-001\n"
    "*ENDDATA";

TEST(DataFileTest, WriterLayoutIsExactAndLeavesTheLastGeneratedPointOut) {
  TempDir dir;
  MessageLog log;
  ASSERT_TRUE(WriteDataFile(DesignSpectrum(), dir / "ubc.zel", log));
  EXPECT_EQ(ReadAll(dir / "ubc.zel"), kDesignSpectrumFile);
  EXPECT_THAT(log.texts(), IsEmpty());
}

// Titles the program composes (a record named after its file, here one
// whose name holds what the reader stops at) are written to read back.
TEST(DataFileTest, RoundTripOfTitlesDampedCurvesAndASecondSave) {
  CZELwDoc doc;
  doc.title = "User EQ : kobe*ns\n1995.dbs 5%% %d";  // printf-interpreted
  doc.subtitle = "User EQ : " + std::string(300, 'n') + ",, end,";
  doc.SetAxisTitle(0, "Period, sec");
  doc.SetAxisTitle(1, "Pseudo Velocity (cm/sec)");
  doc.unit = "CM";
  doc.type = "VELO";
  doc.damping_flag = 1;
  doc.tripartite = 1;
  doc.curve_count = 2;
  doc.damping = {0.05, 0.1};
  doc.SetPoint(0, 0, 0.02, 12.5, 1);
  doc.SetPoint(0, 1, 0.02, 7.0, 1);
  TempDir dir;
  MessageLog log;
  ASSERT_TRUE(WriteDataFile(doc, dir / "rs.zel", log));
  const std::string subtitle = "User EQ : " + std::string(107, 'n') + "...";
  EXPECT_EQ(ReadAll(dir / "rs.zel"),
            "*ZELw\n*TITLE, User EQ : kobe ns 1995.dbs 5% \n*TITLE, " +
                subtitle +
                ", end\n*X-AXIS, Period; sec\n*Y-AXIS, Pseudo Velocity "
                "(cm/sec)\n*UNIT&TYPE, CM, VELO\n*FLAGS, 1, 1\n"
                "*DATA\n*DAMPING, 0.05\n2.00000E-002\t, 1.25000E+001\n"
                "*DATA\n*DAMPING, 0.10\n2.00000E-002\t, 7.00000E+000\n"
                "*ENDDATA");

  // Colours and legend as read are checked through File Open.
  CZELwDoc back;
  ASSERT_EQ(ReadDataFile(back, (dir / "rs.zel").string(), log), 1);
  EXPECT_THAT(log.texts(), IsEmpty());
  EXPECT_EQ(back.title, "User EQ : kobe ns 1995.dbs 5%");
  EXPECT_EQ(back.subtitle, subtitle + ", end");
  EXPECT_EQ(back.AxisTitle(0), "Period; sec");
  EXPECT_EQ(back.unit_index, 1);
  EXPECT_EQ(back.spectrum_kind, kLengthUnitFile);
  EXPECT_EQ(back.log_x + back.log_y, 2);  // tripartite
  EXPECT_EQ(back.damping[1], 0.1);
  EXPECT_EQ(back.store().Value(0, 3), 7.0);
  // Reading leaves the point counts at 0, so saving again writes no points.
  ASSERT_TRUE(WriteDataFile(back, dir / "again.zel", log));
  EXPECT_THAT(ReadAll(dir / "again.zel"),
              ::testing::EndsWith(
                  "*DATA\n*DAMPING, 0.05\n*DATA\n*DAMPING, 0.10\n*ENDDATA"));

  // A cut never splits a character of several bytes.
  EXPECT_EQ(WrittenTitle(std::string(116, 'x') + "\xC3\xA9\xC3\xA9\xC3\xA9"),
            std::string(116, 'x') + "...");
  EXPECT_TRUE(TitleReadsBack(std::string(120, 'x') + ", 5% damped"));
  EXPECT_FALSE(TitleReadsBack(std::string(121, 'x')));
  EXPECT_FALSE(TitleReadsBack("a*b"));
}

TEST(DataFileTest, ReadingQuirksOfTitlesKeywordsCommentsAndNumbers) {
  CZELwDoc doc;
  const ReadResult r = Read(doc,
                            "** saved by hand\n"
                            "*zelw\n"
                            "*title, \n"
                            "*TITLE, Kobe, 1995, NS\n"
                            "*TITLE, third is dropped\n"
                            "** a comment between keywords\n"
                            "*unit&type, in., disp\n"
                            "*FLAGS, 0, 0\n"
                            "*DATA\n"
                            "0.5\t, junk\n"
                            "** a comment between points\n"
                            "abc\t, 2.0\n"
                            "*DATA\n"
                            "1\t, 3\n"
                            "*ENDDATA");
  ASSERT_EQ(r.result, 1);
  EXPECT_THAT(r.messages, IsEmpty());
  // The empty first title is skipped: the second one becomes the title.
  EXPECT_EQ(doc.title, "Kobe, 1995, NS");
  EXPECT_EQ(doc.subtitle, "third is dropped");
  EXPECT_EQ(doc.unit, "IN.");
  EXPECT_EQ(doc.unit_index, 3);
  EXPECT_EQ(doc.type, "DISP");
  EXPECT_EQ(doc.store().Value(0, 1), 0.0);  // junk reads as 0
  EXPECT_EQ(doc.store().Value(1, 1), 2.0);
  // Without damping lines the curve count stays 1, yet every block is kept.
  EXPECT_EQ(doc.curve_count, 1);
  EXPECT_EQ(doc.store().Value(0, 3), 3.0);
}

TEST(DataFileTest, FailuresShowTheirMessages) {
  struct Case {
    std::string bytes;
    std::vector<std::string> messages;
  };
  // A wrong magic, unit or comma, and what stays of a partly read file, are
  // checked through File Open.
  const Case cases[] = {
      {"", {"error: Invalid Data Format!!!"}},
      {"*ZELw\n*TITLE, t\n*DATA\n1, 2\n",
       {"Error : Wrong Format! FLAGS not found"}},
      // A comma in an axis title shifts the keywords.
      {"*ZELw\n*TITLE, t\n*X-AXIS, Period, sec\n*Y-AXIS, Sa (g)\n"
       "*UNIT&TYPE, GRAV, ACCEL\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n*ENDDATA",
       {"Error : Wrong Format! FLAGS not found"}},
      {"*ZELw\n*TITLE, " + std::string(10000, '7') + "\n*FLAGS, 0, 0\n",
       {"Error : Line too long! test.dbs, line 2: a text or number may "
        "have at most 120 characters."}},
      {"*ZELw\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n" + std::string(121, '3') +
           "\t, 1\n",
       {"Error : Line too long! test.dbs, line 5: a text or number may "
        "have at most 120 characters."}},
  };
  for (const Case& c : cases) {
    CZELwDoc doc;
    const ReadResult r = Read(doc, c.bytes);
    EXPECT_EQ(r.result, 0) << c.bytes;
    EXPECT_EQ(r.messages, c.messages) << c.bytes;
    EXPECT_EQ(doc.loaded, 0);
  }
}

TEST(DataFileTest, NegativeValuesSwitchLogAxesOffWithTheirOwnMessages) {
  CZELwDoc doc;
  const ReadResult r = Read(doc,
                            "*ZELw\n*TITLE, dva\n*FLAGS, 1, 0\n"
                            "*DATA\n"
                            "-1\t, 5\n"  // the first x is never checked
                            "2\t,-5\n"
                            "-3\t,-6\n"
                            "-4\t, 7\n"
                            "*ENDDATA");
  ASSERT_EQ(r.result, 1);
  EXPECT_THAT(r.messages,
              ElementsAre("error: Negative Value Cannot Be Log-Scaled!!!",
                          "error : Negative Value Cannot Be Log-Scaled"));
  EXPECT_EQ(doc.log_x + doc.log_y, 0);
  EXPECT_EQ(doc.negative_x_seen, 1);

  CZELwDoc first_only;
  const ReadResult quiet = Read(first_only,
                                "*ZELw\n*FLAGS, 1, 0\n*DATA\n-1\t, 5\n*DATA\n"
                                "-2\t, 1\n*ENDDATA");
  EXPECT_THAT(quiet.messages, IsEmpty());
  EXPECT_EQ(first_only.negative_x_seen, 0);
  EXPECT_EQ(first_only.log_x, 1);
}

TEST(DataFileTest, SameBytesUnderAGermanLocale) {
  const std::string previous = std::setlocale(LC_ALL, nullptr);
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) {
    GTEST_SKIP() << "locale de_DE.UTF-8 is not installed";
  }
  TempDir dir;
  MessageLog log;
  const bool written = WriteDataFile(DesignSpectrum(), dir / "de.zel", log);
  CZELwDoc back;
  const int read = ReadDataFile(back, (dir / "de.zel").string(), log);
  std::setlocale(LC_ALL, previous.c_str());
  ASSERT_TRUE(written);
  EXPECT_EQ(ReadAll(dir / "de.zel"), kDesignSpectrumFile);
  EXPECT_EQ(read, 1);
  EXPECT_EQ(back.store().Value(2, 1), -0.25);
  EXPECT_EQ(back.store().Value(1, 0), 0.1);
}

// Fields no writer makes, and more curves or points than usual.
TEST(DataFileTest, AbsurdFieldsAndManyPoints) {
  CZELwDoc absurd;
  ASSERT_EQ(Read(absurd,
                 "*ZELw\n*FLAGS, nan, 1e300\n*DATA\n*DAMPING, inf\n"
                 "nan\t, -inf\n*ENDDATA")
                .result,
            1);
  EXPECT_EQ(absurd.tripartite, 0);  // flags saturate, NaN gives 0
  EXPECT_EQ(absurd.damping_flag, 2147483647);
  // Seven curves cannot be held: a message, six curves kept.
  std::string seven = "*ZELw\n*FLAGS, 0, 0\n";
  for (int c = 0; c < 7; ++c) seven += "*DATA\n1\t, 2\n";
  CZELwDoc six;
  EXPECT_EQ(Read(six, seven + "*ENDDATA").messages.size(), 1u);
  EXPECT_EQ(six.StoredPoints(5), 1u);
  std::string many = "*ZELw\n*FLAGS, 0, 0\n*DATA\n";
  for (int i = 0; i < 200000; ++i) many += "1.00000E-002\t, 2.00000E+000\n";
  CZELwDoc big;
  EXPECT_EQ(Read(big, many + "*ENDDATA").result, 1);
  EXPECT_EQ(big.StoredPoints(0), 200000u);
}

}  // namespace
}  // namespace zel
