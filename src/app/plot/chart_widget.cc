#include "app/plot/chart_widget.h"

#include <QPainter>
#include <cmath>
#include <vector>

namespace zel::app {
namespace {

QColor ToQColor(const Rgb& c) { return QColor(c.red, c.green, c.blue); }

QString Text(const std::string& s) { return QString::fromStdString(s); }

}  // namespace

ChartWidget::ChartWidget(const CZELwDoc& doc, QWidget* parent)
    : QCustomPlot(parent), doc_(doc) {
  // Tick labels read the same on every desktop: 0.5, never 0,5.
  setLocale(QLocale::c());
  setNoAntialiasingOnDrag(true);
  plotLayout()->insertRow(0);
  QFont title_font = font();
  title_font.setPointSize(title_font.pointSize() + 2);
  title_font.setBold(true);
  title_ = new QCPTextElement(this, QString(), title_font);
  plotLayout()->addElement(0, 0, title_);
  SetUpAxes();
  display_ = new MyGraphDisplay(axisRect());
  legend->setVisible(false);
  setSelectionRectMode(QCP::srmZoom);
}

void ChartWidget::SetUpAxes() {
  for (QCPAxis* axis : {xAxis, yAxis}) {
    // MyGraphDisplay draws ticks, frame and grid; the axes keep only their
    // tick labels (which the library draws only while ticks are on).
    axis->setTicks(true);
    axis->setTickPen(Qt::NoPen);
    axis->setTickLength(0, 0);
    axis->setSubTicks(false);
    axis->setBasePen(Qt::NoPen);
    axis->grid()->setVisible(false);
    axis->grid()->setSubGridVisible(false);
    axis->setNumberFormat(QStringLiteral("g"));
    axis->setNumberPrecision(6);
  }
}

void ChartWidget::SetScale(QCPAxis* axis, bool log, double step) {
  const auto scale = log ? QCPAxis::stLogarithmic : QCPAxis::stLinear;
  const auto fixed = axis->ticker().dynamicCast<QCPAxisTickerFixed>();
  if (!log && step > 0.0) {
    // A document's axis step (a frequency spectrum's bin width) puts the
    // ticks on whole multiples of it.
    if (axis->scaleType() == scale && fixed && fixed->tickStep() == step) {
      return;
    }
    axis->setScaleType(scale);
    // Multiples of a bin width are seldom round: three digits suffice.
    axis->setNumberPrecision(3);
    auto ticker = QSharedPointer<QCPAxisTickerFixed>::create();
    ticker->setTickStep(step);
    ticker->setScaleStrategy(QCPAxisTickerFixed::ssMultiples);
    axis->setTicker(ticker);
    return;
  }
  if (axis->scaleType() == scale && axis->ticker() && !fixed) return;
  axis->setNumberPrecision(6);
  axis->setScaleType(scale);
  if (log) {
    auto ticker = QSharedPointer<QCPAxisTickerLog>::create();
    ticker->setLogBase(10.0);
    axis->setTicker(ticker);
  } else {
    axis->setTicker(QSharedPointer<QCPAxisTicker>::create());
  }
}

MyGraphDisplay* ChartWidget::FindDisplay(int id) {
  return id == MyGraphDisplay::kComponentId ? display_ : nullptr;
}

void ChartWidget::Rebuild() {
  QStringList lines;
  for (const std::string& line : doc_.chart.title_lines) lines << Text(line);
  title_->setText(lines.join(QLatin1Char('\n')));
  xAxis->setLabel(Text(doc_.chart.axis_titles[0]));
  yAxis->setLabel(Text(doc_.chart.axis_titles[1]));
  SetScale(xAxis, doc_.log_x != 0, doc_.x_axis_step);
  SetScale(yAxis, doc_.log_y != 0, 0.0);

  // The display's switches come from the document before every drawing.
  MyGraphDisplay* display = FindDisplay(MyGraphDisplay::kComponentId);
  display->style().x_grid = doc_.grid_x != 0;
  display->style().y_grid = doc_.grid_y != 0;
  display->SetDiagonalGrid(doc_.diagonal_grid);
  display->SetTripartite(doc_.tripartite);
  display->SetGravityFactor(doc_.gravity);

  const std::vector<PlotSeries> series = AllDrawablePoints();
  clearGraphs();
  AddCurves(series);
  AddLegend();
  clearItems();
  AddLabels();
  if (!(TakeFingerprint() == fitted_)) FitRanges(series);
  replot();
}

void ChartWidget::ZoomOutAll() {
  FitRanges(AllDrawablePoints());
  replot();
}

std::vector<PlotSeries> ChartWidget::AllDrawablePoints() const {
  std::vector<PlotSeries> series;
  series.reserve(kMaxCurves);
  for (int c = 0; c < kMaxCurves; ++c)
    series.push_back(DrawablePoints(doc_, c));
  return series;
}

void ChartWidget::AddCurves(const std::vector<PlotSeries>& series) {
  for (int c = 0; c < kMaxCurves; ++c) {
    if (doc_.StoredPoints(c) == 0) continue;
    const PlotSeries& s = series[c];
    QCPGraph* graph = addGraph();
    graph->setData(QVector<double>(s.x.begin(), s.x.end()),
                   QVector<double>(s.y.begin(), s.y.end()));
    const SeriesStyle& style = doc_.chart.series[c];
    graph->setPen(QPen(ToQColor(style.colour), style.width));
    const auto& entries = doc_.chart.legend.entries;
    if (c < static_cast<int>(entries.size())) {
      graph->setName(Text(entries[c]));
    } else {
      graph->removeFromLegend();
    }
  }
}

void ChartWidget::AddLegend() {
  const ChartLegend& model = doc_.chart.legend;
  legend->setVisible(!model.empty());
  if (model.empty()) return;
  if (!legend_title_) {
    legend_title_ = new QCPTextElement(this);
    // On the legend's layer, or the legend's background covers it.
    legend_title_->setLayer(legend->layer());
    legend->insertRow(0);
    legend->addElement(0, 0, legend_title_);
  }
  legend_title_->setText(Text(model.title));
}

void ChartWidget::AddLabels() {
  for (const ChartLabel& label : doc_.chart.labels) {
    auto* item = new QCPItemText(this);
    item->setClipToAxisRect(false);
    if (label.in_plot_area) {
      item->position->setAxisRect(axisRect());
      item->position->setType(QCPItemPosition::ptAxisRectRatio);
    } else {
      item->position->setType(QCPItemPosition::ptViewportRatio);
    }
    item->position->setCoords(label.x_percent / 100.0, label.y_percent / 100.0);
    item->setPositionAlignment(Qt::AlignLeft | Qt::AlignTop);
    item->setTextAlignment(Qt::AlignLeft);
    QString text = Text(label.content);
    if (!label.title.empty()) text.prepend(Text(label.title) + '\n');
    item->setText(text);
    QFont f = font();
    if (label.style == ChartLabel::kBoxed) {
      // Style2: a boxed note on white, readable over curves and grid.
      item->setPen(QPen(Qt::black));
      item->setBrush(QBrush(Qt::white));
      item->setPadding(QMargins(5, 3, 5, 3));
    } else {
      // Style1: free text in italics, nothing around it.
      f.setItalic(true);
    }
    item->setFont(f);
  }
}

ChartWidget::Fingerprint ChartWidget::TakeFingerprint() const {
  Fingerprint f;
  f.log_x = doc_.log_x;
  f.log_y = doc_.log_y;
  f.log_range = doc_.chart.log_range;
  for (int c = 0; c < kMaxCurves; ++c) {
    f.sizes[c] = doc_.StoredPoints(c);
    double sum = 0.0;
    for (const DataItem& item : doc_.store().Items(2 * c + 1)) {
      if (std::isfinite(item.value)) sum += item.value;
    }
    f.y_sums[c] = sum;
  }
  return f;
}

void ChartWidget::FitRanges(const std::vector<PlotSeries>& series) {
  const ChartRanges r = FitChartRanges(doc_, series);
  xAxis->setRange(r.x.lower, r.x.upper);
  yAxis->setRange(r.y.lower, r.y.upper);
  fitted_ = TakeFingerprint();
}

void ChartWidget::paintEvent(QPaintEvent* event) {
  QCustomPlot::paintEvent(event);
  // The frame around the chart: half a millimetre wide on a 4 px/mm screen.
  QPainter painter(this);
  const Rgb& c = kChartFrameColour;
  QPen pen(QColor(c.red, c.green, c.blue), ChartFrameWidth(kScreenPixelsPerMm),
           Qt::SolidLine);
  pen.setJoinStyle(Qt::MiterJoin);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  const QRect r = display_->PlotRect();
  const int right = r.left() + r.width();
  const int bottom = r.top() + r.height();
  painter.drawRect(
      QRect(QPoint(r.left() - 1, r.top() - 1), QPoint(right + 2, bottom + 2)));
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
  QCustomPlot::mouseMoveEvent(event);
  const QPointF p = event->position();
  if (axisRect()->rect().contains(p.toPoint())) {
    emit CursorMoved(xAxis->pixelToCoord(p.x()), yAxis->pixelToCoord(p.y()));
  }
}

QImage ChartWidget::RenderImage() { return grab().toImage(); }

}  // namespace zel::app
