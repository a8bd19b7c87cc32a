// The diagonal grid of a tripartite chart in rendered pixels, the Newmark &
// Hall dialog's damping list, and the headless export.
#include <QImage>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "app/dialogs/design_code_dialog.h"
#include "app/shell/command_table.h"
#include "app/shell/headless_export.h"
#include "app_fixture.h"
#include "core/codes/newmark_hall.h"
#include "core/document/data_file.h"
#include "core/document/test_files.h"

namespace zel::app::testing {
namespace {

const QColor kBlue(100, 100, 255);
const QColor kRed(255, 90, 90);

int Count(const QImage& image, const QColor& colour) {
  int n = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x)
      n += image.pixelColor(x, y) == colour;
  }
  return n;
}

// Of nine points spread along the axis line, how many are drawn black.
int BlackAlong(const QImage& image, const CLogAxis& axis) {
  int black = 0;
  for (int i = 1; i <= 9; ++i) {
    const int x = axis.start.x + (axis.end.x - axis.start.x) * i / 10;
    const int y = axis.start.y + (axis.end.y - axis.start.y) * i / 10;
    bool hit = false;
    for (int dx = -1; dx <= 1; ++dx) {
      for (int dy = -1; dy <= 1; ++dy) {
        hit = hit || image.pixelColor(x + dx, y + dy) == QColor(Qt::black);
      }
    }
    black += hit;
  }
  return black;
}

class TripartiteChart : public AppFixture {
 protected:
  QImage Render() {
    CZELwView& view = child()->GetView();
    view.replot(QCustomPlot::rpImmediateRefresh);
    return view.RenderImage().convertToFormat(QImage::Format_RGB32);
  }
};

TEST_F(TripartiteChart, FamiliesOnlyWhenTripartiteAxesEitherWay) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentFromFile);
  // A green curve: no shade of it is one of the grid's colours.
  doc->SetPoint(0, 1, 0.02, 5.0, 0);
  doc->SetPoint(1, 1, 5.0, 500.0, 1);
  doc->ToggleLogX();
  doc->ToggleLogY();
  const MyGraphDisplay& display = child()->GetView().display();
  for (int tripartite : {1, 0}) {
    SCOPED_TRACE(tripartite);
    doc->tripartite = tripartite;
    doc->UpdateAllViews();
    const QImage image = Render();
    EXPECT_EQ(Count(image, kBlue) > 0, tripartite == 1);
    EXPECT_EQ(Count(image, kRed) > 0, tripartite == 1);
    EXPECT_GE(BlackAlong(image, display.displacement_axis()), 8);
    EXPECT_GE(BlackAlong(image, display.acceleration_axis()), 8);
    EXPECT_EQ(display.acceleration_axis().labels.empty(), tripartite != 1);
  }
  // Option / Diagonal Grid takes it all away.
  doc->tripartite = 1;
  frame().OnCommand(ID_OPTION_DIAGONAL_GRID);
  const QImage image = Render();
  EXPECT_EQ(Count(image, kBlue) + Count(image, kRed), 0);
  EXPECT_EQ(BlackAlong(image, display.displacement_axis()), 0);
}

TEST_F(TripartiteChart, NewmarkDampingListTakesSixValidRatios) {
  answer_ = [this](QDialog& dialog) {
    auto& d = dynamic_cast<DesignCodeDialog&>(dialog);
    auto* list = d.findChild<QListWidget*>("damping");
    auto* edit = d.findChild<QLineEdit*>("damping_edit");
    auto* insert = d.findChild<QPushButton*>("damping_insert");
    // Enter inserts too, and does not press OK.
    for (const char* ratio : {"0.3", "0.07", "0.01", "0.005", "0.15"}) {
      edit->setText(ratio);
      if (ratio[3] == '1') {
        QTest::keyClick(edit, Qt::Key_Return);
      } else {
        insert->click();
      }
    }
    EXPECT_EQ(WindowCount(), 0);
    EXPECT_EQ(messages(),
              (std::vector<std::string>{
                  "The damping ratio 0.3 must be between 0 and 0.2 (20 %)",
                  kNoMoreDampingMessage}));
    EXPECT_EQ(list->count(), 6);
    list->setCurrentRow(0);
    QTest::keyClick(list, Qt::Key_Delete);
    EXPECT_EQ(d.Values().at("damping"), "0.05,0.1,0.07,0.01,0.005");
    d.accept();
    return d.result();
  };
  frame().OnCommand(ID_DESIGN_NEWMARK);
  EXPECT_EQ(frame().ActiveDocument()->curve_count, 5);
  EXPECT_EQ(frame().ActiveDocument()->tripartite, 1);
}

TEST_F(TripartiteChart, ExportWritesThePictureOrSaysWhyNot) {
  const zel::testing::TempDir dir;
  const QString in = QString::fromStdString((dir / "nh.zel").string());
  const QString out = QString::fromStdString((dir / "nh.png").string());
  CZELwDoc doc;
  MessageLog log;
  ASSERT_TRUE(GenerateNewmarkHall(doc, {}, log));
  ASSERT_TRUE(WriteDataFile(doc, in.toStdString(), log));

  EXPECT_EQ(RunExport({"--export", in, out, "--size", "400x300"}), 0);
  const QImage image(out);
  EXPECT_EQ(image.size(), QSize(400, 300));
  EXPECT_GT(Count(image, kBlue), 0);
  EXPECT_EQ(RunExport({"--export", in, out + ".emf"}), 0);
  EXPECT_EQ(zel::testing::ReadAll((dir / "nh.png.emf")).substr(40, 4), " EMF");
  EXPECT_EQ(RunExport({"--export", in, out + "2", "--size=1x300"}), 2);
  EXPECT_EQ(RunExport({"--export", in, in + ".gif"}), 2);
  EXPECT_EQ(RunExport({"--export", in}), 2);
  EXPECT_EQ(RunExport({"--export", in + "x", out + ".png"}), 1);
  EXPECT_EQ(WindowCount(), 0);
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()),
                          std::filesystem::directory_iterator()),
            3);
}

}  // namespace
}  // namespace zel::app::testing
