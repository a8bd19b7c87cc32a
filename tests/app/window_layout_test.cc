// Placement of the child windows: new windows and Window / Cascade.
#include <QMdiArea>
#include <QMdiSubWindow>

#include "app/shell/child_placement.h"
#include "app/shell/command_table.h"
#include "app/shell/zelw_app.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

TEST(ChildPlacementTest, SizeIsThreeQuartersWithinTheArea) {
  EXPECT_EQ(ChildWindowSize(QSize(1000, 800)), QSize(750, 600));
  EXPECT_EQ(ChildWindowSize(QSize(600, 400)), QSize(480, 360));
  EXPECT_EQ(ChildWindowSize(QSize(300, 200)), QSize(300, 200));
}

TEST(ChildPlacementTest, CascadeWrapsBeforeLeavingTheArea) {
  const QRect area(0, 0, 1000, 800);
  const QSize size(750, 600);
  EXPECT_EQ(NextCascadePosition(area, QPoint(0, 0), size, 25), QPoint(25, 25));
  EXPECT_EQ(NextCascadePosition(area, QPoint(250, 175), size, 25),
            QPoint(0, 0));
}

class WindowLayoutTest : public AppFixture {
 protected:
  QRect Area() { return frame().mdi_area()->viewport()->rect(); }
  QList<QMdiSubWindow*> Windows() {
    return frame().mdi_area()->subWindowList(QMdiArea::CreationOrder);
  }
  // Every window lies inside the visible area at a usable size.
  void ExpectUsableAndVisible() {
    const QRect area = Area();
    for (QMdiSubWindow* w : Windows()) {
      EXPECT_TRUE(area.contains(w->geometry()))
          << w->windowTitle().toStdString();
      EXPECT_GE(w->width(), std::min(480, area.width()));
      EXPECT_GE(w->height(), std::min(360, area.height()));
    }
  }
};

TEST_F(WindowLayoutTest, NewWindowsCascadeInsideTheArea) {
  frame().resize(1000, 720);
  QApplication::processEvents();
  for (int i = 0; i < 12; ++i) app_->NewDocument(kNewDocumentDesignSpectrum);
  const QList<QMdiSubWindow*> windows = Windows();
  ASSERT_EQ(windows.size(), 12);
  ExpectUsableAndVisible();
  EXPECT_EQ(windows[0]->pos(), QPoint(0, 0));
  EXPECT_GT(windows[1]->x(), windows[0]->x());
  EXPECT_GT(windows[1]->y(), windows[0]->y());
}

TEST_F(WindowLayoutTest, CascadeKeepsAUsableSize) {
  frame().resize(1000, 720);
  QApplication::processEvents();
  for (int i = 0; i < 5; ++i) app_->NewDocument(kNewDocumentDesignSpectrum);
  QMdiSubWindow* active = frame().mdi_area()->activeSubWindow();
  Windows()[2]->showMaximized();
  frame().mdi_area()->setActiveSubWindow(active);
  frame().OnCommand(ID_WINDOW_CASCADE);
  ExpectUsableAndVisible();
  EXPECT_EQ(frame().mdi_area()->activeSubWindow(), active);
  // The active window ends in front, one step from the one behind it.
  const QList<QMdiSubWindow*> stack =
      frame().mdi_area()->subWindowList(QMdiArea::StackingOrder);
  EXPECT_EQ(stack.last(), active);
  EXPECT_GT(stack[4]->x(), stack[3]->x());
}

TEST_F(WindowLayoutTest, NewWindowFitsASmallMainWindow) {
  frame().resize(420, 320);
  QApplication::processEvents();
  app_->NewDocument(kNewDocumentDesignSpectrum);
  app_->NewDocument(kNewDocumentDesignSpectrum);
  ExpectUsableAndVisible();
}

}  // namespace
}  // namespace zel::app::testing
