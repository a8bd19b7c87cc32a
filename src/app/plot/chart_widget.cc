#include "app/plot/chart_widget.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "app/plot/chart_render.h"
#include "core/plot/legend_placement.h"
#include "core/plot/text_fit.h"

namespace zel::app {
namespace {

QColor ToQColor(const Rgb& c) { return QColor(c.red, c.green, c.blue); }

QString Text(const std::string& s) { return QString::fromStdString(s); }

// Fitted lines as one text of several lines.
QString Joined(const std::vector<std::string>& lines) {
  QStringList texts;
  for (const std::string& line : lines) texts << Text(line);
  return texts.join(QLatin1Char('\n'));
}

QFont Sized(QFont font, double points) {
  font.setPointSizeF(points);
  return font;
}

TextWidth WidthIn(const QFont& font) {
  return [font](const std::string& text, double points) {
    return QFontMetricsF(Sized(font, points))
        .horizontalAdvance(QString::fromStdString(text));
  };
}

// Room kept free beside a title, in pixels.
constexpr int kTitlePadding = 8;
// Titles shrink this far at most before they wrap: wrapped text reads better
// than tiny text.
constexpr double kLeastTitleShrink = 0.85;
// Share of the chart's height the title may take, and lines of an axis title.
constexpr double kMostTitleHeight = 0.25;
constexpr int kMostAxisTitleLines = 2;

Qt::Alignment CornerAlignment(LegendPlace place) {
  switch (place) {
    case LegendPlace::kTopLeft:
      return Qt::AlignTop | Qt::AlignLeft;
    case LegendPlace::kBottomRight:
      return Qt::AlignBottom | Qt::AlignRight;
    case LegendPlace::kBottomLeft:
      return Qt::AlignBottom | Qt::AlignLeft;
    default:
      return Qt::AlignTop | Qt::AlignRight;
  }
}

// The frame around the chart, drawn over everything else: half a
// millimetre wide on a 4 px/mm screen, and on a printer by its own pixels
// per millimetre.
class ChartFrame : public QCPLayerable {
 public:
  ChartFrame(QCustomPlot* plot, const MyGraphDisplay& display)
      : QCPLayerable(plot, QStringLiteral("overlay")), display_(display) {}

 protected:
  void applyDefaultAntialiasingHint(QCPPainter* painter) const override {
    painter->setAntialiasing(false);
  }
  QRect clipRect() const override {
    return mParentPlot ? mParentPlot->viewport() : QRect();
  }
  void draw(QCPPainter* painter) override {
    const QPaintDevice* device = painter->device();
    double pixels_per_mm = kScreenPixelsPerMm;
    if (device != nullptr && device->devType() == QInternal::Printer &&
        device->widthMM() > 0) {
      pixels_per_mm = double(device->width()) / device->widthMM();
    }
    const Rgb& c = kChartFrameColour;
    QPen pen(QColor(c.red, c.green, c.blue),
             std::max(1, ChartFrameWidth(pixels_per_mm)), Qt::SolidLine);
    pen.setJoinStyle(Qt::MiterJoin);
    painter->setPen(pen);
    painter->setBrush(Qt::NoBrush);
    const QRect r = display_.PlotRect();
    const int right = r.left() + r.width();
    const int bottom = r.top() + r.height();
    painter->drawRect(QRect(QPoint(r.left() - 1, r.top() - 1),
                            QPoint(right + 2, bottom + 2)));
  }

 private:
  const MyGraphDisplay& display_;
};

}  // namespace

ChartWidget::ChartWidget(const CZELwDoc& doc, QWidget* parent)
    : QCustomPlot(parent), doc_(doc), base_font_(font()) {
  if (base_font_.pointSizeF() <= 0.0) base_font_.setPointSizeF(9.0);
  // Tick labels read the same on every desktop: 0.5, never 0,5.
  setLocale(QLocale::c());
  setNoAntialiasingOnDrag(true);
  plotLayout()->insertRow(0);
  QFont title_font = base_font_;
  title_font.setBold(true);
  title_ = new QCPTextElement(this, QString(), title_font);
  plotLayout()->addElement(0, 0, title_);
  SetUpAxes();
  display_ = new MyGraphDisplay(axisRect());
  new ChartFrame(this, *display_);
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
  auto x = QSharedPointer<ChartAxisTicker>::create(xAxis);
  auto y = QSharedPointer<ChartAxisTicker>::create(yAxis);
  x_ticker_ = x.data();
  y_ticker_ = y.data();
  xAxis->setTicker(x);
  yAxis->setTicker(y);
}

void ChartWidget::SetScale(QCPAxis* axis, ChartAxisTicker* ticker, bool log,
                           double step) {
  axis->setScaleType(log ? QCPAxis::stLogarithmic : QCPAxis::stLinear);
  ticker->SetLog(log);
  // A frequency spectrum's ticks stay round numbers, never finer than its
  // bin width.
  ticker->SetMinimumStep(log ? 0.0 : step);
}

MyGraphDisplay* ChartWidget::FindDisplay(int id) {
  return id == MyGraphDisplay::kComponentId ? display_ : nullptr;
}

void ChartWidget::Rebuild() {
  SetScale(xAxis, x_ticker_, doc_.log_x != 0, doc_.x_axis_step);
  SetScale(yAxis, y_ticker_, doc_.log_y != 0, 0.0);

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
    QFont f = base_font_;
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

void ChartWidget::updateLayout() {
  FitTexts();
  // The corners are judged with the plot at its full width.
  MoveLegendInside();
  QCustomPlot::updateLayout();
  bool again = legend->visible() && PlaceLegendAwayFromCurves();
  // Ticks are made for the axis length of the layout before; a new length
  // needs new ticks (and so new label widths and margins).
  for (int pass = 0; pass < 3 && (again || TicksOutOfDate()); ++pass) {
    QCustomPlot::updateLayout();
    again = false;
  }
  if (legend_outside_) {
    AlignLegendBesidePlot();
    QCustomPlot::updateLayout();
  }
}

void ChartWidget::FitTexts() {
  // The size laid out for: the window's, or a printer's or a picture's.
  const QRect chart = viewport();
  const double points =
      ChartFontSize(chart.width(), chart.height(), base_font_.pointSizeF(),
                    kLegibleMinimumPoints);
  const QFont text = Sized(base_font_, points);
  for (QCPAxis* axis : {xAxis, yAxis}) axis->setTickLabelFont(text);
  legend->setFont(text);
  // Line samples as high as a line of text keep the legend compact.
  const double text_height = QFontMetricsF(text).height();
  legend->setIconSize(QSize(static_cast<int>(2.5 * text_height),
                            static_cast<int>(text_height)));
  legend->setRowSpacing(0);
  if (legend_title_) legend_title_->setFont(text);
  for (int i = 0; i < itemCount(); ++i) {
    if (auto* label = qobject_cast<QCPItemText*>(item(i))) {
      label->setFont(Sized(label->font(), points));
    }
  }

  // Axis titles fit the axis they stand by (before the first layout, the
  // chart's size stands in), the title the chart's width.
  const QRect plot = axisRect()->rect().isEmpty() ? chart : axisRect()->rect();
  const std::array<int, 2> axis_room = {plot.width(), plot.height()};
  const std::array<QCPAxis*, 2> axes = {xAxis, yAxis};
  for (int a = 0; a < 2; ++a) {
    const FittedText fit =
        FitLines({doc_.chart.axis_titles[a]}, axis_room[a], points,
                 std::max(kLegibleMinimumPoints, kLeastTitleShrink * points),
                 WidthIn(text), kMostAxisTitleLines);
    axes[a]->setLabelFont(Sized(text, fit.points));
    axes[a]->setLabel(Joined(fit.lines));
  }

  QFont bold = base_font_;
  bold.setBold(true);
  const double title_points =
      ChartFontSize(chart.width(), chart.height(),
                    base_font_.pointSizeF() + 2.0, kLegibleMinimumPoints);
  // The title takes a quarter of the chart's height at most.
  const double line_height = QFontMetricsF(Sized(bold, title_points)).height();
  const int most_lines = std::max(
      1, static_cast<int>(chart.height() * kMostTitleHeight / line_height));
  const FittedText fit = FitLines(
      doc_.chart.title_lines, chart.width() - 2 * kTitlePadding, title_points,
      std::max(kLegibleMinimumPoints, kLeastTitleShrink * title_points),
      WidthIn(bold), most_lines);
  title_->setFont(Sized(bold, fit.points));
  title_->setText(Joined(fit.lines));
}

bool ChartWidget::TicksOutOfDate() const {
  return x_ticker_->laid_out_length() != axisRect()->width() ||
         y_ticker_->laid_out_length() != axisRect()->height();
}

bool ChartWidget::PlaceLegendAwayFromCurves() {
  std::vector<std::vector<PixelPointF>> curves;
  for (int g = 0; g < graphCount(); ++g) {
    const QCPGraph* graph = this->graph(g);
    std::vector<PixelPointF> points;
    points.reserve(graph->data()->size());
    for (const QCPGraphData& d : *graph->data()) {
      points.push_back(
          {xAxis->coordToPixel(d.key), yAxis->coordToPixel(d.value)});
    }
    curves.push_back(std::move(points));
  }
  // The legend keeps the inset layout's margins from the plot's frame.
  const QRect r = axisRect()->insetLayout()->rect();
  const QSize size = legend->minimumOuterSizeHint();
  const LegendPlace place =
      PlaceLegend({double(r.left()), double(r.top()), double(r.right() + 1),
                   double(r.bottom() + 1)},
                  size.width(), size.height(), curves);
  if (place == LegendPlace::kOutside) {
    MoveLegendOutside();
    return true;
  }
  QCPLayoutInset* inset = axisRect()->insetLayout();
  const int index = LegendInsetIndex();
  if (index < 0 || inset->insetAlignment(index) == CornerAlignment(place)) {
    return false;
  }
  inset->setInsetAlignment(index, CornerAlignment(place));
  return true;
}

void ChartWidget::MoveLegendInside() {
  if (!legend_outside_) return;
  QCPLayoutInset* inset = axisRect()->insetLayout();
  const int index = LegendInsetIndex();
  if (index >= 0) {
    inset->setInsetPlacement(index, QCPLayoutInset::ipBorderAligned);
    inset->setInsetAlignment(index, Qt::AlignTop | Qt::AlignRight);
  }
  axisRect()->setMinimumMargins(QMargins());
  legend_outside_ = false;
}

void ChartWidget::MoveLegendOutside() {
  if (legend_outside_) return;
  // Right of the plot, level with its top, in a margin as wide as the
  // legend; the title above still spans the whole chart.
  QCPLayoutInset* inset = axisRect()->insetLayout();
  const int index = LegendInsetIndex();
  if (index < 0) return;
  inset->setInsetPlacement(index, QCPLayoutInset::ipFree);
  axisRect()->setMinimumMargins(
      QMargins(0, 0, legend->minimumOuterSizeHint().width(), 0));
  legend_outside_ = true;
}

void ChartWidget::AlignLegendBesidePlot() {
  // The inset layout places in parts of its own rectangle, which lies
  // inside the plot's.
  QCPLayoutInset* inset = axisRect()->insetLayout();
  const int index = LegendInsetIndex();
  const QRect in = inset->rect();
  const QRect plot = axisRect()->rect();
  if (index < 0 || in.width() <= 0 || in.height() <= 0) return;
  inset->setInsetRect(
      index, QRectF(double(plot.left() + plot.width() - in.left()) / in.width(),
                    double(plot.top() - in.top()) / in.height(), 0.0, 0.0));
}

int ChartWidget::LegendInsetIndex() const {
  return axisRect()->insetLayout()->elements(false).indexOf(legend);
}

QRect ChartWidget::LegendRect() const {
  return legend->visible() ? legend->rect() : QRect();
}

void ChartWidget::mouseMoveEvent(QMouseEvent* event) {
  QCustomPlot::mouseMoveEvent(event);
  const QPointF p = event->position();
  if (axisRect()->rect().contains(p.toPoint())) {
    emit CursorMoved(xAxis->pixelToCoord(p.x()), yAxis->pixelToCoord(p.y()));
  }
}

QImage ChartWidget::RenderImage() {
  return ChartImage(*this, viewport().size(), ChartDpi());
}

}  // namespace zel::app
