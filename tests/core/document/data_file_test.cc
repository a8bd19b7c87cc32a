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
using zel::testing::OpenBytes;
using zel::testing::ReadAll;
using zel::testing::TempDir;

using ReadResult = zel::testing::ReadOutcome;

ReadResult Read(CZELwDoc& doc, const std::string& bytes) {
  return zel::testing::ReadBytesWith(bytes, [&](std::FILE* f, MessageSink& m) {
    return ReadDataFile(doc, f, m);
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

TEST(DataFileTest, WriterWritesDampingLinesAndInterpretsPercentInTitles) {
  CZELwDoc doc;
  doc.title = "5%% damped %d";
  doc.unit = "MM";
  doc.type = "VELO";
  doc.damping_flag = 1;
  doc.tripartite = 1;
  doc.curve_count = 2;
  doc.damping = {0.05, 0.1};
  doc.SetPoint(0, 0, 0.02, 12.5, 1);
  doc.SetPoint(0, 1, 0.02, 7.0, 1);
  TempDir dir;
  MessageLog log;
  ASSERT_TRUE(WriteDataFile(doc, dir / "s.zel", log));
  EXPECT_EQ(ReadAll(dir / "s.zel"),
            "*ZELw\n*TITLE, 5% damped \n*TITLE, \n*X-AXIS, \n*Y-AXIS, \n"
            "*UNIT&TYPE, MM, VELO\n*FLAGS, 1, 1\n"
            "*DATA\n*DAMPING, 0.05\n2.00000E-002\t, 1.25000E+001\n"
            "*DATA\n*DAMPING, 0.10\n2.00000E-002\t, 7.00000E+000\n"
            "*ENDDATA");
}

TEST(DataFileTest, WriterReportsAnUnwritablePath) {
  TempDir dir;
  MessageLog log;
  EXPECT_FALSE(WriteDataFile(DesignSpectrum(), dir / "no/such/x.zel", log));
  EXPECT_THAT(log.texts(), ElementsAre("ERROR! File Not Found!"));
}

TEST(DataFileTest, RoundTripKeepsTitlesUnitFlagsAndValues) {
  CZELwDoc doc;
  doc.title = "Earthquake Response Spectrum";
  doc.subtitle = "El Centro, 1940";
  doc.SetAxisTitle(0, "Period Tn (sec)");
  doc.SetAxisTitle(1, "Pseudo Velocity (cm/sec)");
  doc.unit = "CM";
  doc.type = "VELO";
  doc.damping_flag = 1;
  doc.tripartite = 1;
  doc.curve_count = 3;
  doc.damping = {0.02, 0.05, 0.1};
  for (int c = 0; c < 3; ++c) {
    for (int i = 0; i < 5; ++i)
      doc.SetPoint(i, c, 0.1 * (i + 1), 10.0 / (c + 1) + i, 1);
  }
  TempDir dir;
  MessageLog log;
  ASSERT_TRUE(WriteDataFile(doc, dir / "rs.zel", log));

  CZELwDoc back;
  ASSERT_EQ(ReadDataFile(back, (dir / "rs.zel").string(), log), 1);
  EXPECT_THAT(log.texts(), IsEmpty());
  EXPECT_EQ(back.title, "Earthquake Response Spectrum");
  EXPECT_EQ(back.subtitle, "El Centro, 1940");
  EXPECT_EQ(back.window_title, back.title);
  EXPECT_THAT(back.chart.title_lines,
              ElementsAre("Earthquake Response Spectrum", "El Centro, 1940"));
  EXPECT_EQ(back.AxisTitle(0), "Period Tn (sec)");
  EXPECT_EQ(back.AxisTitle(1), "Pseudo Velocity (cm/sec)");
  EXPECT_EQ(back.unit, "CM");
  EXPECT_EQ(back.unit_index, 1);
  EXPECT_EQ(back.length_unit, 1);
  EXPECT_EQ(back.spectrum_kind, kLengthUnitFile);
  EXPECT_EQ(back.type, "VELO");
  EXPECT_EQ(back.tripartite, 1);
  EXPECT_EQ(back.log_x + back.log_y, 2);
  EXPECT_EQ(back.curve_count, 3);
  EXPECT_EQ(back.damping[2], 0.1);
  EXPECT_EQ(back.loaded, 1);
  EXPECT_EQ(back.thick_lines, 1);  // a freshly opened file is drawn thick
  EXPECT_EQ(back.chart.legend.title, "Damping :");
  EXPECT_THAT(back.chart.legend.entries,
              ElementsAre(" 0.02", " 0.05", " 0.10"));
  for (int c = 0; c < 3; ++c) {
    ASSERT_EQ(back.StoredPoints(c), 5u);
    for (int i = 0; i < 5; ++i) {
      EXPECT_DOUBLE_EQ(back.store().Value(i, 2 * c), 0.1 * (i + 1));
      EXPECT_NEAR(back.store().Value(i, 2 * c + 1), 10.0 / (c + 1) + i, 1e-5);
    }
  }
  // Reading leaves the point counts at 0, so saving again writes no points.
  EXPECT_EQ(back.point_count[0], 0);
  ASSERT_TRUE(WriteDataFile(back, dir / "again.zel", log));
  const std::string again = ReadAll(dir / "again.zel");
  EXPECT_NE(
      again.find("*DATA\n*DAMPING, 0.05\n*DATA\n*DAMPING, 0.10\n*ENDDATA"),
      std::string::npos);
}

TEST(DataFileTest, LfAndCrlfFilesReadAlike) {
  std::string crlf;
  for (char c : std::string(kDesignSpectrumFile)) {
    if (c == '\n') crlf += '\r';
    crlf += c;
  }
  CZELwDoc lf_doc, crlf_doc;
  ASSERT_EQ(Read(lf_doc, kDesignSpectrumFile).result, 1);
  ASSERT_EQ(Read(crlf_doc, crlf).result, 1);
  EXPECT_EQ(crlf_doc.title, lf_doc.title);
  EXPECT_EQ(crlf_doc.AxisTitle(1), "Absolute Acceleration (g)");
  ASSERT_EQ(crlf_doc.StoredPoints(0), 3u);
  EXPECT_EQ(crlf_doc.store().Value(2, 1), -0.25);
  EXPECT_EQ(crlf_doc.negative_y_seen, 1);
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
  EXPECT_EQ(doc.AxisTitle(0), "");
  EXPECT_EQ(doc.unit, "IN.");
  EXPECT_EQ(doc.unit_index, 3);
  EXPECT_EQ(doc.type, "DISP");
  EXPECT_EQ(doc.store().Value(0, 1), 0.0);  // junk reads as 0
  EXPECT_EQ(doc.store().Value(1, 0), 0.0);
  EXPECT_EQ(doc.store().Value(1, 1), 2.0);
  // Without damping lines the curve count stays 1, yet every block is kept.
  EXPECT_EQ(doc.curve_count, 1);
  EXPECT_EQ(doc.store().Value(0, 3), 3.0);
}

TEST(DataFileTest, FailuresShowTheirMessages) {
  struct Case {
    const char* bytes;
    std::vector<std::string> messages;
  };
  const Case cases[] = {
      {"*ZEL\n*FLAGS, 0, 0\n", {"error: Invalid Data Format!!!"}},
      {"", {"error: Invalid Data Format!!!"}},
      {"*ZELw\n*TITLE, t\n*UNIT&TYPE, KM, DISP\n*FLAGS, 0, 0\n",
       {"Error : Wrong UNIT!"}},
      {"*ZELw\n*TITLE, t\n*DATA\n1, 2\n",
       {"Error : Wrong Format! FLAGS not found"}},
      // A comma in an axis title shifts the keywords.
      {"*ZELw\n*TITLE, t\n*X-AXIS, Period, sec\n*Y-AXIS, Sa (g)\n"
       "*UNIT&TYPE, GRAV, ACCEL\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n*ENDDATA",
       {"Error : Wrong Format! FLAGS not found"}},
      {"*ZELw\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n3 4\n*ENDDATA",
       {"Error : Wrong Format!"}},
  };
  for (const Case& c : cases) {
    CZELwDoc doc;
    const ReadResult r = Read(doc, c.bytes);
    EXPECT_EQ(r.result, 0) << c.bytes;
    EXPECT_EQ(r.messages, c.messages) << c.bytes;
    EXPECT_EQ(doc.loaded, 0);
  }
  // Values read before a format error stay in the document.
  CZELwDoc partial;
  Read(partial, "*ZELw\n*FLAGS, 0, 0\n*DATA\n1\t, 2\n3 4\n*ENDDATA");
  EXPECT_EQ(partial.store().Value(0, 1), 2.0);
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
  EXPECT_EQ(doc.log_x, 0);
  EXPECT_EQ(doc.log_y, 0);
  EXPECT_EQ(doc.tripartite, 1);
  EXPECT_EQ(doc.negative_x_seen, 1);
  EXPECT_EQ(doc.negative_y_seen, 1);

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

}  // namespace
}  // namespace zel
