// The chart as the user handles it: rubber-band zoom, and tick labels that do
// not follow the desktop's number format.
#include <QLocale>
#include <QTest>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/records/chart_setup.h"

namespace zel::app::testing {
namespace {

TEST_F(AppFixture, RubberBandZoomAndZoomOutAll) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 60; ++i) doc->SetPoint(i, 0, 0.1 * i, 1.0 + 0.01 * i, 0);
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  view.replot(QCustomPlot::rpImmediateRefresh);
  const QCPRange full_x = view.xAxis->range();
  const QCPRange full_y = view.yAxis->range();
  EXPECT_EQ(full_x, QCPRange(0.0, 6.0));

  const QRect r = view.axisRect()->rect();
  const QPoint from = r.topLeft() + QPoint(r.width() / 4, r.height() / 4);
  const QPoint to = r.topLeft() + QPoint(r.width() / 2, r.height() / 2);
  QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(&view, (from + to) / 2);
  QTest::mouseMove(&view, to);
  QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, to);
  EXPECT_NEAR(view.xAxis->range().lower, 1.5, 0.05);
  EXPECT_NEAR(view.xAxis->range().upper, 3.0, 0.05);
  EXPECT_LT(view.yAxis->range().size(), full_y.size());

  frame().OnCommand(ID_VIEW_ZOOM_OUT_ALL);
  EXPECT_EQ(view.xAxis->range(), full_x);
  EXPECT_EQ(view.yAxis->range(), full_y);
}

TEST_F(AppFixture, TickLabelsIgnoreTheDesktopLocale) {
  const QLocale saved;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  doc->SetPoint(0, 0, 0.0, 0.0, 1);
  doc->SetPoint(1, 0, 1.5, 1.25, 1);
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  view.RenderImage();  // lays the chart out and draws it
  QLocale::setDefault(saved);

  const QStringList labels = view.xAxis->tickVectorLabels();
  EXPECT_TRUE(labels.contains("0.5")) << labels.join(' ').toStdString();
  for (const QString& label : labels) EXPECT_FALSE(label.contains(','));
}

TEST_F(AppFixture, ContextLabelStaysInsideThePlotFrame) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 100; ++i) {
    doc->SetPoint(i, 0, 0.01 * i, (i % 7 - 3) * 0.1, 0);
  }
  doc->title = "Earthquake Record";
  doc->subtitle = "1940, El Centro Site, 270 Deg";
  SetUpChart(*doc);
  SetContextLabel(*doc, "Max =   0.3000(g) at  0.030 sec");
  doc->UpdateAllViews();
  CZELwView& view = child()->GetView();
  for (const QSize size : {QSize(900, 620), QSize(480, 300)}) {
    child()->resize(size);
    view.RenderImage();  // lays the chart out and draws it
    ASSERT_EQ(view.itemCount(), 1);
    auto* label = qobject_cast<QCPItemText*>(view.item(0));
    ASSERT_NE(label, nullptr);
    const QRect plot = view.axisRect()->rect();
    const QPointF top_left = label->topLeft->pixelPosition();
    const QPointF bottom_right = label->bottomRight->pixelPosition();
    EXPECT_GT(top_left.y(), plot.top()) << size.height();
    EXPECT_LT(bottom_right.y(), plot.bottom()) << size.height();
    EXPECT_GT(top_left.x(), plot.left()) << size.width();
  }
}

}  // namespace
}  // namespace zel::app::testing
