// Pixels of a rendered chart: grid lines only at the tick positions, none
// when a grid is off, the frame around the plot; bad values never break it.
#include <QImage>
#include <cmath>
#include <limits>

#include "app_fixture.h"

namespace zel::app::testing {
namespace {

class ChartPixels : public AppFixture {
 protected:
  QImage Render() {
    CZELwView& view = child()->GetView();
    view.replot(QCustomPlot::rpImmediateRefresh);
    return view.RenderImage().convertToFormat(QImage::Format_RGB32);
  }
  MyGraphDisplay& display() { return child()->GetView().display(); }
};

// Positions along a row (or column) inside the plot that have `colour`.
QVector<int> Hits(const QImage& image, bool along_row, int fixed, int from,
                  int to, QColor colour) {
  QVector<int> hits;
  for (int p = from; p <= to; ++p) {
    const QColor c =
        along_row ? image.pixelColor(p, fixed) : image.pixelColor(fixed, p);
    if (c == colour) hits << p;
  }
  return hits;
}

QVector<int> Inside(const QVector<int>& ticks, int from, int to) {
  QVector<int> in;
  for (int t : ticks) {
    if (t >= from && t <= to) in << t;
  }
  return in;
}

TEST_F(ChartPixels, GridLinesOnlyAtTickPositions) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->UpdateAllViews();
  const QColor grid = display().style().grid_colour;

  const struct {
    int grid_x;
    int grid_y;
  } cases[] = {{1, 1}, {0, 1}, {1, 0}, {0, 0}};
  for (const auto& c : cases) {
    SCOPED_TRACE(::testing::Message() << c.grid_x << c.grid_y);
    doc->grid_x = c.grid_x;
    doc->grid_y = c.grid_y;
    doc->UpdateAllViews();
    const QImage image = Render();
    const QRect r = display().PlotRect();
    const int left = r.left() + 1;
    const int right = r.left() + r.width() - 1;
    const int top = r.top() + 1;
    const int bottom = r.top() + r.height() - 1;
    const QVector<int> xs = display().XTickPixels();
    const QVector<int> ys = display().YTickPixels();
    ASSERT_GE(xs.size(), 3);
    ASSERT_GE(ys.size(), 3);

    // A row and a column halfway between two ticks cross only the lines of
    // the other axis.
    const int row = (ys[0] + ys[1]) / 2;
    const int column = (xs[0] + xs[1]) / 2;
    EXPECT_EQ(Hits(image, true, row, left, right, grid),
              c.grid_x ? Inside(xs, left, right) : QVector<int>());
    QVector<int> expected_rows =
        c.grid_y ? Inside(ys, top, bottom) : QVector<int>();
    std::sort(expected_rows.begin(), expected_rows.end());
    EXPECT_EQ(Hits(image, false, column, top, bottom, grid), expected_rows);
  }
}

TEST_F(ChartPixels, FrameAroundThePlot) {
  app_->NewDocument(kNewDocumentDesignSpectrum)->UpdateAllViews();
  const QImage image = Render();
  const QRect r = display().PlotRect();
  const QColor frame(150, 150, 250);
  const int mid_x = r.left() + r.width() / 2;
  const int mid_y = r.top() + r.height() / 2;
  const int right = r.left() + r.width();
  const int bottom = r.top() + r.height();
  // Two pixels wide, just outside the plot's own black frame.
  EXPECT_EQ(Hits(image, true, mid_y, r.left() - 4, r.left() - 1, frame).size(),
            2);
  EXPECT_EQ(Hits(image, true, mid_y, right + 1, right + 4, frame).size(), 2);
  EXPECT_EQ(Hits(image, false, mid_x, r.top() - 4, r.top() - 1, frame).size(),
            2);
  EXPECT_EQ(Hits(image, false, mid_x, bottom + 1, bottom + 4, frame).size(), 2);
  // The plot's own frame, black where no grid line is drawn over it.
  const QVector<int> xs = display().XTickPixels();
  ASSERT_GE(xs.size(), 2);
  EXPECT_EQ(image.pixelColor((xs[0] + xs[1]) / 2, bottom), QColor(Qt::black));
}

TEST_F(ChartPixels, BadValuesNeverBreakTheChart) {
  constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
  constexpr double kInf = std::numeric_limits<double>::infinity();
  CZELwDoc* doc = app_->NewDocument(kNewDocumentFromFile);
  const double xs[] = {0.0, kNaN, 0.2, 1e300, 0.4, -kInf, 0.6, 0.8};
  const double ys[] = {0.1, 1.0, kInf, 0.3, -1e300, 0.5, kNaN, 1e-320};
  for (int i = 0; i < 8; ++i) doc->SetPoint(i, 0, xs[i], ys[i], 1);
  doc->SetPoint(0, 1, 1e308, 1e308, 1);  // nothing drawable at all
  CZELwView& view = child()->GetView();
  for (int step = 0; step < 4; ++step) {
    doc->UpdateAllViews();
    EXPECT_FALSE(Render().isNull());
    for (QCPAxis* axis : {view.xAxis, view.yAxis}) {
      EXPECT_TRUE(std::isfinite(axis->range().lower));
      EXPECT_TRUE(std::isfinite(axis->range().upper));
      EXPECT_LT(axis->range().lower, axis->range().upper);
    }
    if (step == 1) doc->ToggleLogX();
    if (step == 2) doc->ToggleLogY();
  }
  ASSERT_EQ(view.graphCount(), 2);
  EXPECT_EQ(view.graph(1)->data()->size(), 0);
  view.ZoomOutAll();
}

}  // namespace
}  // namespace zel::app::testing
