// The chart as the user handles and reads it: rubber-band zoom, tick labels
// that neither follow the desktop's number format nor overlap, a legend that
// hides no curve, titles and labels inside the chart.
#include <QFontMetricsF>
#include <QLocale>
#include <QTest>
#include <cmath>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/plot/text_fit.h"
#include "core/records/chart_setup.h"

namespace zel::app::testing {
namespace {

class ChartView : public AppFixture {
 protected:
  CZELwView& Show(CZELwDoc* doc, QSize size = QSize(640, 440)) {
    doc->UpdateAllViews();
    child()->resize(size);
    child()->GetView().replot(QCustomPlot::rpImmediateRefresh);
    return child()->GetView();
  }
};

// The shown tick labels of `axis` as sorted pixel spans along it.
std::vector<std::pair<double, double>> LabelSpans(QCPAxis* axis) {
  const QFontMetricsF m(axis->tickLabelFont());
  std::vector<std::pair<double, double>> spans;
  for (qsizetype i = 0; i < axis->tickVector().size(); ++i) {
    const QString text = axis->tickVectorLabels()[i];
    const double at = axis->coordToPixel(axis->tickVector()[i]);
    const double half = axis->orientation() == Qt::Horizontal
                            ? m.horizontalAdvance(text) / 2
                            : m.height() / 2;
    if (!text.isEmpty()) spans.emplace_back(at - half, at + half);
  }
  std::sort(spans.begin(), spans.end());
  return spans;
}

TEST_F(ChartView, RubberBandZoomAndZoomOutAll) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 60; ++i) doc->SetPoint(i, 0, 0.1 * i, 1.0 + 0.01 * i, 0);
  CZELwView& view = Show(doc);
  EXPECT_EQ(view.xAxis->range(), QCPRange(0.0, 6.0));
  const QRect r = view.axisRect()->rect();
  const QPoint from = r.topLeft() + QPoint(r.width() / 4, r.height() / 4);
  const QPoint to = r.topLeft() + QPoint(r.width() / 2, r.height() / 2);
  QTest::mousePress(&view, Qt::LeftButton, Qt::NoModifier, from);
  QTest::mouseMove(&view, to);
  QTest::mouseRelease(&view, Qt::LeftButton, Qt::NoModifier, to);
  EXPECT_NEAR(view.xAxis->range().lower, 1.5, 0.05);
  EXPECT_NEAR(view.xAxis->range().upper, 3.0, 0.05);
  frame().OnCommand(ID_VIEW_ZOOM_OUT_ALL);
  EXPECT_EQ(view.xAxis->range(), QCPRange(0.0, 6.0));
}

TEST_F(ChartView, TickLabelsReadWellInAnyWindow) {
  const QLocale saved;
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 300; ++i) {
    doc->SetPoint(i, 0, 0.01 * (i + 1), 1000.0 * std::sin(0.01 * i + 0.1), 0);
  }
  CZELwView& view = Show(doc);
  QLocale::setDefault(saved);
  EXPECT_TRUE(view.xAxis->tickVectorLabels().contains("0.5"));  // not 0,5
  // A zoom inside one decade of log axes still carries several labels.
  doc->ToggleLogX();
  doc->ToggleLogY();
  doc->UpdateAllViews();
  view.xAxis->setRange(0.01, 0.1);
  view.yAxis->setRange(100.0, 1000.0);
  view.replot(QCustomPlot::rpImmediateRefresh);
  EXPECT_EQ(view.xAxis->tickVector().size(), 10);  // 0.01, 0.02 ... 0.1
  EXPECT_GE(LabelSpans(view.xAxis).size(), 5u);
  EXPECT_GE(LabelSpans(view.yAxis).size(), 3u);
  // Here (where 0.08, 0.09 and 0.1 crowd) and tiled among many windows:
  // text never below the legible minimum, a blank at least between labels.
  for (const QSize size : {QSize(640, 440), QSize(250, 160)}) {
    Show(doc, size);
    for (QCPAxis* axis : {view.xAxis, view.yAxis}) {
      const QFontMetricsF m(axis->tickLabelFont());
      EXPECT_GE(axis->tickLabelFont().pointSizeF(), kLegibleMinimumPoints);
      const auto spans = LabelSpans(axis);
      ASSERT_GE(spans.size(), 2u) << size.width();
      for (std::size_t i = 1; i < spans.size(); ++i) {
        EXPECT_LT(spans[i - 1].second +
                      (axis == view.xAxis) * m.horizontalAdvance(' '),
                  spans[i].first)
            << size.width();
      }
    }
  }
}

TEST_F(ChartView, LegendHidesNoCurve) {
  // Six damping curves rising to the top right, like relative displacement
  // spectra at long periods: the legend takes a free corner.
  CZELwDoc* doc = app_->NewDocument(1);
  doc->curve_count = 6;
  for (int c = 0; c < 6; ++c) {
    doc->damping[c] = 0.02 * (c + 1);
    for (int i = 0; i <= 100; ++i) {
      const double t = 0.03 * i;
      doc->SetPoint(i, c, t, (6 - c) * t * t * (1 + 0.1 * std::sin(9 * t)), 0);
    }
  }
  doc->SetDampingLegend();
  CZELwView& view = Show(doc);
  const QRect legend = view.LegendRect();
  EXPECT_TRUE(view.axisRect()->rect().contains(legend));
  for (int g = 0; g < view.graphCount(); ++g) {
    for (const QCPGraphData& d : *view.graph(g)->data()) {
      ASSERT_FALSE(legend.contains(view.xAxis->coordToPixel(d.key),
                                   view.yAxis->coordToPixel(d.value)));
    }
  }
  // A curve zigzagging over the whole plot: beside it.
  for (int i = 0; i <= 100; ++i) doc->SetPoint(i, 5, 0.03 * i, 54 * (i % 2), 0);
  Show(doc);
  EXPECT_TRUE(view.LegendOutsidePlot());
  EXPECT_GE(view.LegendRect().left(), view.axisRect()->rect().right());
}

TEST_F(ChartView, TitlesAndLabelsStayInsideTheChart) {
  CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
  for (int i = 0; i <= 100; ++i) doc->SetPoint(i, 0, 0.06 * i, 0.1, 0);
  doc->title = "KDS(41-17-00:2019)";
  doc->subtitle =
      "KDS(41-17-00:2019): Zone=1, S=0.22, Site=S2, Fa=1.38, Fv=1.38, "
      "Sds=0.51, Sd1=0.20, Ie=1.2, R=4.0";
  SetUpChart(*doc);
  SetContextLabel(*doc, "Max =   0.3000(g) at  0.030 sec");
  for (const QSize size : {QSize(560, 400), QSize(250, 160)}) {
    CZELwView& view = Show(doc, size);
    auto* title =
        static_cast<QCPTextElement*>(view.plotLayout()->element(0, 0));
    EXPECT_GE(title->font().pointSizeF(), kLegibleMinimumPoints);
    for (const QString& line : title->text().split('\n')) {
      EXPECT_LE(QFontMetricsF(title->font()).horizontalAdvance(line),
                view.width());
    }
    const QPointF label =
        static_cast<QCPItemText*>(view.item(0))->topLeft->pixelPosition();
    EXPECT_TRUE(view.axisRect()->rect().contains(label.toPoint()));
  }
}

}  // namespace
}  // namespace zel::app::testing
