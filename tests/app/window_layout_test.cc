// Placement of the child windows: new windows, and Window / Cascade with
// every title bar in sight.
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStyle>

#include "app/shell/child_placement.h"
#include "app/shell/command_table.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

TEST(ChildPlacementTest, SizesAndCascades) {
  EXPECT_EQ(ChildWindowSize(QSize(1000, 800)), QSize(750, 600));
  EXPECT_EQ(ChildWindowSize(QSize(600, 400)), QSize(480, 360));
  EXPECT_EQ(ChildWindowSize(QSize(300, 200)), QSize(300, 200));
  const QRect area(0, 0, 1000, 640);
  EXPECT_EQ(NextCascadePosition(area, QPoint(0, 0), QSize(750, 480), 25),
            QPoint(25, 25));
  EXPECT_EQ(NextCascadePosition(area, QPoint(250, 160), QSize(750, 480), 25),
            QPoint(0, 0));
  // Few windows keep their size; fourteen shrink into one column.
  std::vector<QRect> rects = CascadeLayout(area, 3, QSize(750, 480), 28);
  EXPECT_EQ(rects.back(), QRect(56, 56, 750, 480));
  rects = CascadeLayout(area, 14, QSize(750, 480), 28);
  EXPECT_EQ(rects.back(), QRect(364, 364, 636, 276));
  // Too many for one column: two side by side.
  rects = CascadeLayout(QRect(0, 0, 1200, 400), 14, QSize(900, 300), 28);
  EXPECT_EQ(rects[7].topLeft(), QPoint(rects[6].right() + 1, 0));
}

TEST_F(AppFixture, CascadeShowsEveryTitleBarAndNewWindowsFit) {
  frame().resize(1000, 720);
  QApplication::processEvents();
  for (int i = 0; i < 14; ++i) app_->NewDocument(kNewDocumentDesignSpectrum);
  QMdiArea* mdi = frame().mdi_area();
  const QRect area = mdi->viewport()->rect();
  for (QMdiSubWindow* w : mdi->subWindowList()) {
    EXPECT_TRUE(area.contains(w->geometry()));
    EXPECT_GE(w->width(), 480);
  }
  QMdiSubWindow* active = mdi->activeSubWindow();
  mdi->subWindowList()[2]->showMaximized();
  mdi->setActiveSubWindow(active);
  frame().OnCommand(ID_WINDOW_CASCADE);
  EXPECT_EQ(mdi->activeSubWindow(), active);
  // No window covers the title bar of one behind it.
  const int title = frame().style()->pixelMetric(QStyle::PM_TitleBarHeight);
  const QList<QMdiSubWindow*> stack =
      mdi->subWindowList(QMdiArea::StackingOrder);
  EXPECT_EQ(stack.last(), active);
  for (qsizetype i = 0; i < stack.size(); ++i) {
    EXPECT_TRUE(area.contains(stack[i]->geometry()));
    const QRect bar(stack[i]->pos(), QSize(stack[i]->width(), title));
    for (qsizetype j = i + 1; j < stack.size(); ++j) {
      EXPECT_FALSE(stack[j]->geometry().intersects(bar)) << i << " " << j;
    }
  }
}

}  // namespace
}  // namespace zel::app::testing
