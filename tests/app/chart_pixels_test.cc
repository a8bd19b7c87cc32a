// Pixels of a rendered chart: grid lines only at the tick positions, none
// when a grid is off, the frames around the plot; bad values never break it.
#include <QImage>
#include <cmath>
#include <limits>

#include "app_fixture.h"

namespace zel::app::testing {
namespace {

// Positions from `from` to `to` along a row (or a column) that have `colour`.
QVector<int> Hits(const QImage& image, bool along_row, int fixed, int from,
                  int to, QColor colour) {
  QVector<int> hits;
  for (int p = from; p <= to; ++p) {
    if ((along_row ? image.pixelColor(p, fixed) : image.pixelColor(fixed, p)) ==
        colour) {
      hits << p;
    }
  }
  return hits;
}

TEST_F(AppFixture, GridLinesOnlyAtTickPositionsInsideTwoFrames) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  CZELwView& view = child()->GetView();
  MyGraphDisplay& display = view.display();
  for (const auto& [grid_x, grid_y] : {std::pair{1, 1}, {0, 1}, {1, 0}}) {
    SCOPED_TRACE(::testing::Message() << grid_x << grid_y);
    doc->grid_x = grid_x;
    doc->grid_y = grid_y;
    doc->UpdateAllViews();
    const QImage image =
        view.RenderImage().convertToFormat(QImage::Format_RGB32);
    const QRect r = display.PlotRect();
    const int right = r.left() + r.width();
    const int bottom = r.top() + r.height();
    QVector<int> xs = display.XTickPixels();
    QVector<int> ys = display.YTickPixels();
    ASSERT_GE(xs.size(), 3);
    ASSERT_GE(ys.size(), 3);
    // A row and a column halfway between two ticks cross only the lines of
    // the other axis (ticks on the frame are covered by it).
    const QColor grid = display.style().grid_colour;
    xs.removeIf([&](int x) { return x <= r.left() || x >= right; });
    ys.removeIf([&](int y) { return y <= r.top() || y >= bottom; });
    std::sort(ys.begin(), ys.end());
    EXPECT_EQ(
        Hits(image, true, (ys[0] + ys[1]) / 2, r.left() + 1, right - 1, grid),
        grid_x ? xs : QVector<int>());
    EXPECT_EQ(
        Hits(image, false, (xs[0] + xs[1]) / 2, r.top() + 1, bottom - 1, grid),
        grid_y ? ys : QVector<int>());
    // The plot's own black frame, and outside it the chart's frame, two
    // pixels of (150, 150, 250) on every side.
    const QColor frame(150, 150, 250);
    const int mid_x = (xs[0] + xs[1]) / 2;
    const int mid_y = (ys[0] + ys[1]) / 2;
    EXPECT_EQ(image.pixelColor(mid_x, bottom), QColor(Qt::black));
    EXPECT_EQ(
        Hits(image, true, mid_y, r.left() - 4, r.left() - 1, frame).size(), 2);
    EXPECT_EQ(Hits(image, true, mid_y, right + 1, right + 4, frame).size(), 2);
    EXPECT_EQ(Hits(image, false, mid_x, r.top() - 4, r.top() - 1, frame).size(),
              2);
    EXPECT_EQ(Hits(image, false, mid_x, bottom + 1, bottom + 4, frame).size(),
              2);
  }
}

TEST_F(AppFixture, BadValuesNeverBreakTheChart) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInf = std::numeric_limits<double>::infinity();
  CZELwDoc* doc = app_->NewDocument(kNewDocumentFromFile);
  const double xs[] = {0.0, kNaN, 0.2, 1e300, 0.4, -kInf, 0.6, 0.8};
  const double ys[] = {0.1, 1.0, kInf, 0.3, -1e300, 0.5, kNaN, 1e-320};
  for (int i = 0; i < 8; ++i) doc->SetPoint(i, 0, xs[i], ys[i], 1);
  doc->SetPoint(0, 1, 1e308, 1e308, 1);  // nothing drawable at all
  CZELwView& view = child()->GetView();
  for (int step = 0; step < 3; ++step) {
    if (step == 1) doc->ToggleLogX();
    if (step == 2) doc->ToggleLogY();
    doc->UpdateAllViews();
    EXPECT_FALSE(view.RenderImage().isNull());
    for (QCPAxis* axis : {view.xAxis, view.yAxis}) {
      EXPECT_TRUE(std::isfinite(axis->range().lower));
      EXPECT_LT(axis->range().lower, axis->range().upper);
    }
  }
  ASSERT_EQ(view.graphCount(), 2);
  EXPECT_EQ(view.graph(1)->data()->size(), 0);
}

}  // namespace
}  // namespace zel::app::testing
