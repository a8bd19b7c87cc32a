// File Open, Save by extension with its question before emptying a file, and
// the framework's own opening.
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

constexpr const char* kTwoCurves =
    "*ZELw\n*TITLE, Two curves\n*TITLE, damping 2 and 5 %\n"
    "*X-AXIS, Period Tn (sec)\n*Y-AXIS, Pseudo Velocity (mm/sec)\n"
    "*UNIT&TYPE, MM, VELO\n*FLAGS, 0, 1\n"
    "*DATA\n*DAMPING, 0.02\n1.0E-2\t, 5.0\n1.0\t, 900.0\n5.0\t, 400.0\n"
    "*DATA\n*DAMPING, 0.05\n1.0E-2\t, 3.0\n1.0\t, 600.0\n5.0\t, 300.0\n"
    "*ENDDATA";

// Writes `bytes` to `name` in `dir`; the path as the file dialog gives it.
QString Written(const TempDir& dir, const char* name,
                const std::string& bytes) {
  WriteAll(dir / name, bytes);
  return QString::fromStdString((dir / name).string());
}

TEST_F(AppFixture, FileOpenAndSavingTheDocumentAgain) {
  TempDir dir;
  next_open_ = Written(dir, "comma.zel",
                       "*ZELw\n*TITLE, Partly read\n*FLAGS, 0, 0\n*DATA\n"
                       "1.0, 2.0\n2.0 3.0\n");
  frame().OnCommand(ID_FILE_OPEN);
  // The reader's message, then the program's; the document stays open.
  EXPECT_EQ(messages(),
            (std::vector<std::string>{"Error : Wrong Format!",
                                      "An Error occured while reading data"}));
  EXPECT_EQ(child()->GetView().graphCount(), 1);
  const QString path = Written(dir, "two.zel", kTwoCurves);
  next_open_ = path;
  frame().OnCommand(ID_FILE_OPEN);
  EXPECT_EQ(app_->new_document_mode(), kNewDocumentFromFile);
  CZELwView& view = child()->GetView();
  EXPECT_EQ(child()->windowTitle(), "Two curves");
  EXPECT_EQ(view.yAxis->label(), "Pseudo Velocity (mm/sec)");
  ASSERT_EQ(view.graphCount(), 2);
  EXPECT_EQ(view.graph(1)->data()->size(), 3);
  EXPECT_EQ(view.graph(1)->name(), " 0.05");
  EXPECT_EQ(open_filters_.first(),
            "ZEL Files (*.zel)|*.zel|ALL Files (*.*)|*.*|");

  // The opened document keeps no point counts: saving over a file asks
  // first, and No (the default) leaves the file as it was.
  next_save_ = path;
  frame().OnCommand(ID_FILE_SAVE);
  EXPECT_EQ(questions_,
            QStringList{"The document holds no saved points; saving will "
                        "write curves without data. Save anyway?"});
  EXPECT_EQ(ReadAll(dir / "two.zel"), kTwoCurves);
  next_save_ = QString::fromStdString((dir / "new.zel").string());
  frame().OnCommand(ID_FILE_SAVE);  // a new file: no question
  EXPECT_EQ(questions_.size(), 1);
  answer_yes_ = true;  // Yes writes the empty blocks, as the format does
  next_save_ = path;
  frame().OnCommand(ID_FILE_SAVE);
  EXPECT_EQ(ReadAll(dir / "two.zel"), ReadAll(dir / "new.zel"));
  EXPECT_NE(ReadAll(dir / "two.zel").find("*DAMPING, 0.05\n*ENDDATA"),
            std::string::npos);
}

TEST_F(AppFixture, SaveWritesByExtension) {
  TempDir dir;
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->title = "Saved";
  for (int i = 0; i < 5; ++i) doc->SetPoint(i, 0, 0.5 * i, 0.1 * i, 1);
  doc->UpdateAllViews();
  const struct {
    const char* name;
    const char* starts;
  } cases[] = {{"a.zel", "*ZELw\n*TITLE, Saved\n"},
               {"c.bmp", "BM"},
               {"d.JPG", "\xFF\xD8\xFF"},
               {"e.emf", "\x01"}};  // the metafile's header record
  for (const auto& c : cases) {
    messages_->Clear();
    next_save_ = QString::fromStdString((dir / c.name).string());
    frame().OnCommand(ID_FILE_SAVE);
    EXPECT_EQ(ReadAll(dir / c.name).rfind(c.starts, 0), 0u) << c.name;
    EXPECT_TRUE(messages().empty());
  }
  EXPECT_EQ(QImage(QString::fromStdString((dir / "c.bmp").string())).size(),
            child()->GetView().size());
  EXPECT_EQ(save_filters_.first(),
            "ZEL Data File (*.zel)|*.zel|BMP Image (*.bmp)|*.bmp|JPEG Image "
            "(*.jpg)|*.jpg|Enhanced Metafile Image(*.emf)|*.emf|| default zel");
  messages_->Clear();
  next_save_ = QString::fromStdString((dir / "none" / "x.bmp").string());
  frame().OnCommand(ID_FILE_SAVE);
  EXPECT_EQ(messages(), std::vector<std::string>{"ERROR! File Not Found!"});
  next_save_ = QString::fromStdString((dir / "a.zel").string());
  frame().OnCommand(ID_FILE_SAVE);  // generated curves keep their points
  EXPECT_TRUE(questions_.empty());
}

TEST_F(AppFixture, FrameworkOpeningMakesAnEmptyChartNamedAfterTheFile) {
  TempDir dir;
  const QString path = Written(dir, "two.zel", kTwoCurves);
  app_->AddToRecentFileList(  // never written
      QString::fromStdString((dir / "gone.zel").string()));
  CZELwDoc* doc = app_->OpenDocumentFile(path);
  ASSERT_NE(doc, nullptr);
  EXPECT_EQ(doc->window_title, "two.zel");
  EXPECT_EQ(child()->GetView().graphCount(), 0);
  // Through the recent-file list, the same; an entry that no longer opens
  // leaves the list.
  const auto recent = [this](int i) {
    for (QAction* a : frame().findChildren<QAction*>()) {
      if (a->data().toInt() == ID_FILE_MRU_FILE1 + i) return a;
    }
    return static_cast<QAction*>(nullptr);
  };
  ASSERT_NE(recent(1), nullptr);
  EXPECT_EQ(recent(0)->text(), "&1 " + path);
  recent(0)->trigger();
  EXPECT_EQ(frame().ActiveDocument()->window_title, "two.zel");
  recent(1)->trigger();
  EXPECT_EQ(messages(), std::vector<std::string>{"ERROR! File Not Found!"});
  EXPECT_EQ(app_->RecentFiles(), QStringList{path});
  EXPECT_EQ(WindowCount(), 2);
  // The list lives in the framework's settings, four entries at most.
  for (int i = 0; i < 5; ++i) {
    app_->AddToRecentFileList(QStringLiteral("/tmp/r%1.zel").arg(i));
  }
  QSettings settings("Local AppWizard-Generated Applications", "ZEL");
  EXPECT_EQ(settings.value("Recent File List/File1").toString(), "/tmp/r4.zel");
  EXPECT_FALSE(settings.contains("Recent File List/File5"));
}

}  // namespace
}  // namespace zel::app::testing
