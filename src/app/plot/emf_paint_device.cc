#include "app/plot/emf_paint_device.h"

#include <QFileInfo>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QTextItem>
#include <algorithm>
#include <climits>
#include <cmath>
#include <optional>
#include <vector>

#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/plot/chart_widget.h"
#include "core/plot/chart_geometry.h"
#include "core/plot/emf_records.h"

namespace zel::app {
namespace {

// Metafile units to a chart pixel: curves keep their shape when the picture
// is enlarged in a report.
constexpr int kUnitsPerPixel = 16;
constexpr int kUnitsPerMm =
    static_cast<int>(kUnitsPerPixel * kScreenPixelsPerMm);
// Coordinates far outside the picture are held here, well inside 32 bits.
constexpr double kFarAway = 1 << 28;

// LOGFONT pitch and family.
constexpr std::uint8_t kVariablePitch = 2;
constexpr std::uint8_t kFixedPitch = 1;
constexpr std::uint8_t kRoman = 0x10;
constexpr std::uint8_t kSwiss = 0x20;
constexpr std::uint8_t kModern = 0x30;

EmfColour ToEmf(const QColor& c) {
  const QColor rgb = c.toRgb();
  return {static_cast<std::uint8_t>(rgb.red()),
          static_cast<std::uint8_t>(rgb.green()),
          static_cast<std::uint8_t>(rgb.blue())};
}

// How much the transform enlarges lengths.
double ScaleOf(const QTransform& t) {
  return std::sqrt(std::abs(t.determinant()));
}

std::uint8_t PitchAndFamily(const QFont& font) {
  switch (font.styleHint()) {
    case QFont::Serif:
      return kRoman | kVariablePitch;
    case QFont::TypeWriter:
    case QFont::Monospace:
      return kModern | kFixedPitch;
    default:
      return kSwiss | kVariablePitch;
  }
}

// The family a reader should look for: the one asked for, unless it is
// one of the toolkit's generic names, which only this system resolves.
std::u16string FaceName(const QFont& font) {
  QString family = font.family();
  static const QStringList kGeneric = {
      QString(), QStringLiteral("Sans Serif"), QStringLiteral("Serif"),
      QStringLiteral("Monospace"), QStringLiteral("Sans")};
  if (kGeneric.contains(family)) family = QFontInfo(font).family();
  return family.toStdU16String();
}

}  // namespace

// Keeps the painter's state and turns each drawing call into records in
// metafile units. Pens, brushes and fonts are selected only when a drawing
// needs them; the writer reuses objects it has made before.
class EmfPaintEngine : public QPaintEngine {
 public:
  EmfPaintEngine(QSize size, const QString& description)
      : QPaintEngine(PaintEngineFeatures(AllFeatures) &
                     ~PaintEngineFeatures(PerspectiveTransform)),
        writer_(size.width() * kUnitsPerPixel, size.height() * kUnitsPerPixel,
                kUnitsPerMm, description.toStdU16String()) {}

  bool begin(QPaintDevice* device) override {
    device_ = device;
    return !done_;
  }
  bool end() override {
    bytes_ = writer_.Finish();
    done_ = true;
    return true;
  }
  Type type() const override { return User; }
  const std::string& bytes() const { return bytes_; }

  void updateState(const QPaintEngineState& state) override;
  void drawLines(const QLineF* lines, int count) override;
  void drawPolygon(const QPointF* points, int count,
                   PolygonDrawMode mode) override;
  void drawRects(const QRectF* rects, int count) override;
  void drawEllipse(const QRectF& rect) override;
  void drawPath(const QPainterPath& path) override;
  void drawTextItem(const QPointF& p, const QTextItem& item) override;
  // Nothing of a chart is a picture; pixmaps are left out.
  void drawPixmap(const QRectF&, const QPixmap&, const QRectF&) override {}

  // Avoid hiding the integer overloads, which the base class turns into
  // the ones above.
  using QPaintEngine::drawEllipse;
  using QPaintEngine::drawLines;
  using QPaintEngine::drawPolygon;
  using QPaintEngine::drawRects;

 private:
  EmfPoint Map(const QPointF& p) const;
  std::vector<EmfPoint> Map(const QPointF* points, int count) const;
  // Selects the pen or brush; false when nothing is to be drawn with it.
  bool UsePen();
  bool UseBrush();
  void UpdateClip(const QPaintEngineState& state);
  // Axis-parallel rectangles stay rectangles under the transform.
  bool KeepsRectangles() const {
    return transform_.type() <= QTransform::TxScale;
  }
  EmfRect MapRect(const QRectF& r) const;

  EmfWriter writer_;
  QPaintDevice* device_ = nullptr;
  std::string bytes_;
  bool done_ = false;
  QPen pen_;
  QBrush brush_;
  QTransform transform_;
  std::optional<QRectF> clip_;  // in metafile units
};

void EmfPaintEngine::updateState(const QPaintEngineState& state) {
  const DirtyFlags flags = state.state();
  if (flags & DirtyPen) pen_ = state.pen();
  if (flags & DirtyBrush) brush_ = state.brush();
  if (flags & DirtyTransform) transform_ = state.transform();
  if (flags & (DirtyClipRegion | DirtyClipPath | DirtyClipEnabled)) {
    UpdateClip(state);
  }
}

void EmfPaintEngine::UpdateClip(const QPaintEngineState& state) {
  const DirtyFlags flags = state.state();
  if (!state.isClipEnabled() || state.clipOperation() == Qt::NoClip) {
    clip_.reset();
  } else if (flags & (DirtyClipRegion | DirtyClipPath)) {
    // A rectangle is all a chart clips to; other shapes clip to their box.
    const QRectF area = flags & DirtyClipPath
                            ? state.clipPath().boundingRect()
                            : QRectF(state.clipRegion().boundingRect());
    const QTransform to_units =
        state.transform() *
        QTransform::fromScale(kUnitsPerPixel, kUnitsPerPixel);
    QRectF mapped = to_units.mapRect(area);
    if (state.clipOperation() == Qt::IntersectClip && clip_) {
      mapped &= *clip_;
    }
    clip_ = mapped;
  }
  if (!clip_) {
    writer_.SetClip(nullptr);
    return;
  }
  const EmfRect box{static_cast<std::int32_t>(std::floor(clip_->left())),
                    static_cast<std::int32_t>(std::floor(clip_->top())),
                    static_cast<std::int32_t>(std::ceil(clip_->right())),
                    static_cast<std::int32_t>(std::ceil(clip_->bottom()))};
  writer_.SetClip(&box);
}

EmfPoint EmfPaintEngine::Map(const QPointF& p) const {
  const QPointF q = transform_.map(p) * kUnitsPerPixel;
  const auto held = [](double v) {
    if (!std::isfinite(v)) return 0;
    return static_cast<int>(std::lround(std::clamp(v, -kFarAway, kFarAway)));
  };
  return {held(q.x()), held(q.y())};
}

std::vector<EmfPoint> EmfPaintEngine::Map(const QPointF* points,
                                          int count) const {
  std::vector<EmfPoint> mapped;
  mapped.reserve(static_cast<std::size_t>(std::max(count, 0)));
  for (int i = 0; i < count; ++i) mapped.push_back(Map(points[i]));
  return mapped;
}

EmfRect EmfPaintEngine::MapRect(const QRectF& r) const {
  const EmfPoint a = Map(r.topLeft());
  const EmfPoint b = Map(r.bottomRight());
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
          std::max(a.y, b.y)};
}

bool EmfPaintEngine::UsePen() {
  if (pen_.style() == Qt::NoPen || pen_.color().alpha() == 0) {
    writer_.SelectNullPen();
    return false;
  }
  // A cosmetic pen keeps its width whatever the transform; a zero width
  // is one pixel.
  double width = pen_.widthF() > 0.0 ? pen_.widthF() : 1.0;
  if (!pen_.isCosmetic()) width *= ScaleOf(transform_);
  EmfPen pen;
  pen.colour = ToEmf(pen_.color());
  pen.width = std::max(1, static_cast<int>(std::lround(
                              std::min(width * kUnitsPerPixel, kFarAway))));
  switch (pen_.style()) {
    case Qt::DashLine:
    case Qt::CustomDashLine:
      pen.dash = EmfPen::kDash;
      break;
    case Qt::DotLine:
      pen.dash = EmfPen::kDot;
      break;
    case Qt::DashDotLine:
      pen.dash = EmfPen::kDashDot;
      break;
    case Qt::DashDotDotLine:
      pen.dash = EmfPen::kDashDotDot;
      break;
    default:
      pen.dash = EmfPen::kSolid;
  }
  pen.cap = pen_.capStyle() == Qt::RoundCap    ? EmfPen::kRoundCap
            : pen_.capStyle() == Qt::SquareCap ? EmfPen::kSquareCap
                                               : EmfPen::kFlatCap;
  pen.join = pen_.joinStyle() == Qt::RoundJoin   ? EmfPen::kRoundJoin
             : pen_.joinStyle() == Qt::BevelJoin ? EmfPen::kBevelJoin
                                                 : EmfPen::kMiterJoin;
  writer_.SelectPen(pen);
  return true;
}

bool EmfPaintEngine::UseBrush() {
  QColor colour = brush_.color();
  // A gradient is given its first colour.
  if (brush_.gradient() != nullptr && !brush_.gradient()->stops().isEmpty()) {
    colour = brush_.gradient()->stops().first().second;
  }
  if (brush_.style() == Qt::NoBrush || colour.alpha() == 0) {
    writer_.SelectNullBrush();
    return false;
  }
  writer_.SelectBrush(ToEmf(colour));
  return true;
}

void EmfPaintEngine::drawLines(const QLineF* lines, int count) {
  if (!UsePen()) return;
  // Lines that join end to start become one polyline.
  std::vector<EmfPoint> run;
  for (int i = 0; i < count; ++i) {
    const EmfPoint from = Map(lines[i].p1());
    const EmfPoint to = Map(lines[i].p2());
    if (run.empty() || run.back().x != from.x || run.back().y != from.y) {
      writer_.Polyline(run);
      run = {from};
    }
    run.push_back(to);
  }
  writer_.Polyline(run);
}

void EmfPaintEngine::drawPolygon(const QPointF* points, int count,
                                 PolygonDrawMode mode) {
  if (mode == PolylineMode) {
    if (UsePen()) writer_.Polyline(Map(points, count));
    return;
  }
  const bool stroked = UsePen();
  if (UseBrush() || stroked) writer_.Polygon(Map(points, count));
}

void EmfPaintEngine::drawRects(const QRectF* rects, int count) {
  const bool stroked = UsePen();
  if (!UseBrush() && !stroked) return;
  for (int i = 0; i < count; ++i) {
    if (KeepsRectangles()) {
      writer_.Rectangle(MapRect(rects[i]));
    } else {
      const QPolygonF corners(rects[i]);
      writer_.Polygon(Map(corners.constData(), 4));
    }
  }
}

void EmfPaintEngine::drawEllipse(const QRectF& rect) {
  if (!KeepsRectangles()) {
    QPainterPath path;
    path.addEllipse(rect);
    drawPath(path);
    return;
  }
  const bool stroked = UsePen();
  if (UseBrush() || stroked) writer_.Ellipse(MapRect(rect));
}

void EmfPaintEngine::drawPath(const QPainterPath& path) {
  const QList<QPolygonF> parts = path.toSubpathPolygons();
  if (UseBrush()) {
    writer_.SelectNullPen();
    for (const QPolygonF& part : parts) {
      writer_.Polygon(Map(part.constData(), static_cast<int>(part.size())));
    }
  }
  if (!UsePen()) return;
  for (const QPolygonF& part : parts) {
    writer_.Polyline(Map(part.constData(), static_cast<int>(part.size())));
  }
}

void EmfPaintEngine::drawTextItem(const QPointF& p, const QTextItem& item) {
  const QString text = item.text();
  if (text.isEmpty() || device_ == nullptr) return;
  const QFont font = item.font();
  const QFontMetricsF metrics(font, device_);
  const double units = ScaleOf(transform_) * kUnitsPerPixel;
  const double pixels = font.pixelSize() > 0
                            ? font.pixelSize()
                            : font.pointSizeF() * device_->logicalDpiY() / 72.0;
  EmfFont emf;
  emf.height = std::max(1, static_cast<int>(std::lround(pixels * units)));
  if (font.stretch() > 0 && font.stretch() != QFont::Unstretched) {
    emf.width =
        static_cast<int>(std::lround(metrics.averageCharWidth() * units));
  }
  // The baseline's direction on the page, counter-clockwise from the x
  // axis (the page's y axis points down).
  const double degrees =
      std::atan2(-transform_.m12(), transform_.m11()) * 180.0 / M_PI;
  emf.escapement = static_cast<int>(std::lround(degrees * 10.0));
  emf.escapement = (emf.escapement % 3600 + 3600) % 3600;
  emf.weight = font.weight();
  emf.italic = font.italic();
  emf.underline = font.underline();
  emf.pitch_and_family = PitchAndFamily(font);
  emf.face = FaceName(font);
  writer_.SelectFont(emf);
  writer_.SetTextColour(ToEmf(pen_.color()));

  // Each character where this layout put it, whatever font the reader
  // finds for the face.
  std::vector<std::int32_t> advances(static_cast<std::size_t>(text.size()));
  long placed = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i].isHighSurrogate() && i + 1 < text.size()) continue;
    const long end =
        std::lround(metrics.horizontalAdvance(text.left(i + 1)) * units);
    advances[static_cast<std::size_t>(i)] =
        static_cast<std::int32_t>(end - placed);
    placed = end;
  }
  writer_.TextOut(Map(p), text.toStdU16String(), advances);
}

EmfPaintDevice::EmfPaintDevice(QSize size, const QPaintDevice& like,
                               const QString& description)
    : size_(size.expandedTo(QSize(1, 1))),
      dpi_x_(like.logicalDpiX()),
      dpi_y_(like.logicalDpiY()),
      engine_(std::make_unique<EmfPaintEngine>(size_, description)) {}

EmfPaintDevice::~EmfPaintDevice() = default;

QPaintEngine* EmfPaintDevice::paintEngine() const { return engine_.get(); }

const std::string& EmfPaintDevice::Bytes() const { return engine_->bytes(); }

int EmfPaintDevice::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return size_.width();
    case PdmHeight:
      return size_.height();
    case PdmWidthMM:
      return static_cast<int>(std::lround(size_.width() / kScreenPixelsPerMm));
    case PdmHeightMM:
      return static_cast<int>(std::lround(size_.height() / kScreenPixelsPerMm));
    case PdmNumColors:
      return INT_MAX;
    case PdmDepth:
      return 32;
    case PdmDpiX:
    case PdmPhysicalDpiX:
      return dpi_x_;
    case PdmDpiY:
    case PdmPhysicalDpiY:
      return dpi_y_;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return QPaintDevice::metric(metric);
  }
}

bool SaveChartEmf(ChartWidget& chart, const QString& path) {
  const QSize size = chart.size();
  QString description = QStringLiteral("ZEL");
  description += QChar(0);
  description += QFileInfo(path).completeBaseName();
  description += QChar(0);
  EmfPaintDevice device(size, chart, description);
  // The chart's one drawing, frame included.
  if (!RenderChart(chart, device, QRectF(QPointF(0, 0), QSizeF(size)))) {
    return false;
  }
  return ReplaceFileWith(path, device.Bytes());
}

}  // namespace zel::app
