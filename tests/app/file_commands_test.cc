// File Open, Save by extension and the framework's own opening.
#include <QFile>
#include <QImage>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/test_files.h"

namespace zel::app::testing {
namespace {

using zel::testing::ReadAll;
using zel::testing::TempDir;
using zel::testing::WriteAll;

constexpr const char* kThreeCurves =
    "*ZELw\n*TITLE, Three curves\n*TITLE, damping 2, 5 and 10 %\n"
    "*X-AXIS, Period Tn (sec)\n*Y-AXIS, Pseudo Velocity (mm/sec)\n"
    "*UNIT&TYPE, MM, VELO\n*FLAGS, 0, 1\n"
    "*DATA\n*DAMPING, 0.02\n1.0E-2\t, 5.0\n1.0\t, 900.0\n5.0\t, 400.0\n"
    "*DATA\n*DAMPING, 0.05\n1.0E-2\t, 3.0\n1.0\t, 600.0\n5.0\t, 300.0\n"
    "*DATA\n*DAMPING, 0.10\n1.0E-2\t, 2.0\n1.0\t, 400.0\n5.0\t, 200.0\n"
    "*ENDDATA";

// Writes `bytes` to `name` in `dir`; the path as the file dialog gives it.
QString Written(const TempDir& dir, const char* name,
                const std::string& bytes) {
  WriteAll(dir / name, bytes);
  return QString::fromStdString((dir / name).string());
}

QAction* FirstRecentFile(CMainFrame& frame) {
  for (QAction* a : frame.findChildren<QAction*>()) {
    if (a->data().toInt() == ID_FILE_MRU_FILE1) return a;
  }
  return nullptr;
}

TEST_F(AppFixture, FileOpenReadsGoodAndBadFiles) {
  TempDir dir;
  const struct {
    const char* name;
    std::string bytes;
    std::vector<std::string> messages;  // in the order shown
    int graphs;
  } cases[] = {
      {"magic.zel",
       "*ZEL\n*TITLE, x\n*FLAGS, 0, 0\n",
       {"error: Invalid Data Format!!!", "An Error occured while reading data"},
       0},
      {"unit.zel",
       "*ZELw\n*TITLE, x\n*UNIT&TYPE, KM, DISP\n*FLAGS, 0, 0\n",
       {"Error : Wrong UNIT!", "An Error occured while reading data"},
       0},
      {"comma.zel",
       "*ZELw\n*TITLE, Partly read\n*FLAGS, 0, 0\n*DATA\n1.0, 2.0\n2.0 3.0\n",
       {"Error : Wrong Format!", "An Error occured while reading data"},
       1},
      {"good.zel", kThreeCurves, {}, 3},
  };
  int documents = 0;
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    messages_->Clear();
    next_open_ = Written(dir, c.name, c.bytes);
    frame().OnCommand(ID_FILE_OPEN);
    EXPECT_EQ(messages(), c.messages);
    EXPECT_EQ(app_->new_document_mode(), kNewDocumentFromFile);
    // The document stays open however the reading ended.
    EXPECT_EQ(WindowCount(), ++documents);
    ASSERT_NE(child(), nullptr);
    ASSERT_EQ(child()->GetView().graphCount(), c.graphs);
  }
  // The good file, last opened, shows its curves and titles.
  CZELwView& view = child()->GetView();
  EXPECT_EQ(child()->windowTitle(), "Three curves");
  EXPECT_EQ(view.xAxis->label(), "Period Tn (sec)");
  EXPECT_EQ(view.yAxis->label(), "Pseudo Velocity (mm/sec)");
  // Colours of the curve table; a freshly read file is drawn with width 2.
  EXPECT_EQ(view.graph(0)->pen().color(), QColor(255, 0, 0));
  EXPECT_EQ(view.graph(1)->pen().color(), QColor(0, 128, 0));
  EXPECT_EQ(view.graph(2)->pen().color(), QColor(0, 0, 255));
  EXPECT_EQ(view.graph(2)->pen().width(), 2);
  EXPECT_EQ(view.graph(1)->name(), " 0.05");
  EXPECT_TRUE(view.legend->visible());
  EXPECT_EQ(view.graph(0)->data()->size(), 3);
  EXPECT_EQ(open_filters_.first(),
            "ZEL Files (*.zel)|*.zel|ALL Files (*.*)|*.*|");
  frame().OnCommand(ID_FILE_OPEN);  // any document's title will do
  EXPECT_EQ(app_->RecentFiles().size(), 4);

  next_open_.clear();  // Cancel
  frame().OnCommand(ID_FILE_OPEN);
  EXPECT_EQ(WindowCount(), documents + 1);
}

TEST_F(AppFixture, SaveWritesByExtension) {
  TempDir dir;
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->title = "Saved";
  for (int i = 0; i < 5; ++i) doc->SetPoint(i, 0, 0.5 * i, 0.1 * i, 1);
  doc->UpdateAllViews();

  enum Expect { kData, kBmp, kJpeg, kNothing };
  const struct {
    const char* name;
    Expect expect;
  } cases[] = {
      {"a.zel", kData},    {"b.ZEL", kData}, {"c.bmp", kBmp},
      {"d.BMP", kBmp},     {"e.jpg", kJpeg}, {"f.JPG", kJpeg},
      {"g.Bmp", kData},    {"h.txt", kData}, {"i.emf", kNothing},
      {"j.EMF", kNothing},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    messages_->Clear();
    const auto path = dir / c.name;
    next_save_ = QString::fromStdString(path.string());
    frame().OnCommand(ID_FILE_SAVE);
    const std::string bytes = ReadAll(path);
    switch (c.expect) {
      case kData:
        EXPECT_EQ(bytes.rfind("*ZELw\n*TITLE, Saved\n", 0), 0u);
        EXPECT_TRUE(messages().empty());
        break;
      case kBmp:
        EXPECT_EQ(bytes.substr(0, 2), "BM");
        EXPECT_EQ(QImage(next_save_, "BMP").size(), child()->GetView().size());
        break;
      case kJpeg:
        EXPECT_EQ(bytes.substr(0, 3), "\xFF\xD8\xFF");
        break;
      case kNothing:
        EXPECT_FALSE(QFile::exists(next_save_));
        ASSERT_EQ(messages().size(), 1u);
        EXPECT_NE(messages()[0].find("not available"), std::string::npos);
        break;
    }
  }
  EXPECT_EQ(save_filters_.first(),
            "ZEL Data File (*.zel)|*.zel|BMP Image (*.bmp)|*.bmp|JPEG Image "
            "(*.jpg)|*.jpg|Enhanced Metafile Image(*.emf)|*.emf|| default zel");

  // A folder that does not exist.
  messages_->Clear();
  next_save_ = QString::fromStdString((dir / "none" / "x.bmp").string());
  frame().OnCommand(ID_FILE_SAVE);
  EXPECT_EQ(messages(), std::vector<std::string>{"ERROR! File Not Found!"});
}

TEST_F(AppFixture, FrameworkOpeningMakesAnEmptyChartNamedAfterTheFile) {
  TempDir dir;
  const QString path = Written(dir, "three.zel", kThreeCurves);
  CZELwDoc* doc = app_->OpenDocumentFile(path);
  ASSERT_NE(doc, nullptr);
  EXPECT_EQ(doc->window_title, "three.zel");
  EXPECT_EQ(doc->store().Size(0), 0u);
  EXPECT_EQ(child()->GetView().graphCount(), 0);
  EXPECT_EQ(app_->RecentFiles().first(), path);

  // Through the recent-file list, the same.
  QAction* recent = FirstRecentFile(frame());
  ASSERT_NE(recent, nullptr);
  EXPECT_EQ(recent->text(), "&1 " + path);
  recent->trigger();
  EXPECT_EQ(WindowCount(), 2);
  EXPECT_EQ(frame().ActiveDocument()->window_title, "three.zel");

  // The list lives in the framework's settings, four entries at most.
  for (int i = 0; i < 5; ++i) {
    app_->AddToRecentFileList(QStringLiteral("/tmp/r%1.zel").arg(i));
  }
  QSettings settings("Local AppWizard-Generated Applications", "ZEL");
  EXPECT_EQ(settings.value("Recent File List/File1").toString(), "/tmp/r4.zel");
  EXPECT_EQ(settings.value("Recent File List/File4").toString(), "/tmp/r1.zel");
  EXPECT_FALSE(settings.contains("Recent File List/File5"));
  EXPECT_EQ(app_->RecentFiles().size(), 4);

  EXPECT_EQ(app_->OpenDocumentFile(path + ".missing"), nullptr);
  EXPECT_EQ(messages(), std::vector<std::string>{"ERROR! File Not Found!"});
}

TEST_F(AppFixture, RecentFileThatNoLongerOpensLeavesTheList) {
  TempDir dir;
  const QString kept = Written(dir, "kept.zel", kThreeCurves);
  app_->AddToRecentFileList(kept);
  app_->AddToRecentFileList(  // entry 1, never written
      QString::fromStdString((dir / "gone.zel").string()));
  QAction* first = FirstRecentFile(frame());
  ASSERT_NE(first, nullptr);
  first->trigger();
  EXPECT_EQ(messages(), std::vector<std::string>{"ERROR! File Not Found!"});
  EXPECT_EQ(app_->RecentFiles(), QStringList{kept});
  QSettings settings("Local AppWizard-Generated Applications", "ZEL");
  EXPECT_EQ(settings.value("Recent File List/File1").toString(), kept);
  EXPECT_FALSE(settings.contains("Recent File List/File2"));
  EXPECT_EQ(WindowCount(), 0);
}

}  // namespace
}  // namespace zel::app::testing
