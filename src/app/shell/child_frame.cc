#include "app/shell/child_frame.h"

#include <QClipboard>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMimeData>

#include "app/dialogs/dlg_png_export.h"
#include "app/dialogs/dlg_title.h"
#include "app/dialogs/dlg_unit.h"
#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/plot/emf_paint_device.h"
#include "app/shell/headless_export.h"
#include "app/shell/zelw_app.h"
#include "core/document/data_file.h"
#include "core/document/save_kind.h"

namespace zel::app {
namespace {

constexpr const char* kSaveFilter =
    "ZEL Data File (*.zel)|*.zel|BMP Image (*.bmp)|*.bmp|JPEG Image "
    "(*.jpg)|*.jpg|Enhanced Metafile Image(*.emf)|*.emf||";
constexpr const char* kNoPointsQuestion =
    "The document holds no saved points; saving will write curves without "
    "data. Save anyway?";

}  // namespace

CChildFrame::CChildFrame(CZELwApp& app, std::unique_ptr<CZELwDoc> doc,
                         QWidget* parent)
    : QMdiSubWindow(parent),
      app_(app),
      doc_(std::move(doc)),
      view_(new CZELwView(*doc_, app.ui())) {
  setAttribute(Qt::WA_DeleteOnClose);
  setWidget(view_);
  setWindowTitle(QString::fromStdString(doc_->window_title));
  doc_->on_update = [this] {
    view_->Rebuild();
    setWindowTitle(QString::fromStdString(doc_->window_title));
    emit DocumentUpdated();
  };
  view_->Rebuild();
}

CChildFrame::~CChildFrame() {
  doc_->on_update = nullptr;
  delete view_;  // before the document it draws
}

void CChildFrame::OnXScaleLog() {
  doc_->ToggleLogX();
  doc_->UpdateAllViews();
}

void CChildFrame::OnYScaleLog() {
  doc_->ToggleLogY();
  doc_->UpdateAllViews();
}

void CChildFrame::OnXGrid() {
  doc_->ToggleGridX();
  doc_->UpdateAllViews();
}

void CChildFrame::OnYGrid() {
  doc_->ToggleGridY();
  doc_->UpdateAllViews();
}

void CChildFrame::OnDiagonalGrid() {
  doc_->ToggleDiagonalGrid();
  doc_->UpdateAllViews();
}

void CChildFrame::OnLineThickness() {
  doc_->ApplySeriesStyles();
  doc_->UpdateAllViews();
}

void CChildFrame::OnUnit() {
  DLG_UNIT dialog(this);
  dialog.SetUnitIndex(doc_->unit_index);
  if (app_.RunDialog(dialog) != QDialog::Accepted) return;
  doc_->ConvertUnit(dialog.UnitIndex());
  doc_->UpdateAllViews();
}

void CChildFrame::OnEditGraphTitle() {
  DLG_TITLE dialog(this);
  dialog.SetMainTitle(QString::fromStdString(doc_->title));
  dialog.SetSubTitle(QString::fromStdString(doc_->subtitle));
  if (app_.RunDialog(dialog) == QDialog::Accepted) {
    doc_->title = dialog.MainTitle().toStdString();
    doc_->subtitle = dialog.SubTitle().toStdString();
  }
  // Refreshed on Cancel too.
  doc_->RefreshChartTitle();
  doc_->SetTitle(doc_->title);
  doc_->UpdateAllViews();
}

void CChildFrame::OnZoomOutAll() { view_->ZoomOutAll(); }

void CChildFrame::OnFileSave() {
  Interaction& ui = app_.ui();
  const QString path = ui.save_file(this, QString::fromLatin1(kSaveFilter),
                                    QStringLiteral("zel"));
  if (path.isEmpty()) return;
  MessageSink& messages = *ui.messages;
  switch (SaveKindOfPath(path.toStdString())) {
    case SaveKind::kDataFile:
      // A document read by File Open keeps no point counts: overwriting its
      // file (most likely the one it came from) would empty every curve.
      if (QFileInfo::exists(path) && WritesCurvesWithoutPoints(*doc_) &&
          !ui.ask_yes_no(this, QString::fromLatin1(kNoPointsQuestion))) {
        return;
      }
      if (WriteDataFile(*doc_, path.toStdString(), messages)) {
        app_.AddToRecentFileList(path);
      }
      break;
    case SaveKind::kBitmap:
      if (!SaveChartImage(*view_, path, "BMP"))
        messages.Show(kFileNotFoundMessage);
      break;
    case SaveKind::kJpeg:
      if (!SaveChartImage(*view_, path, "JPG"))
        messages.Show(kFileNotFoundMessage);
      break;
    case SaveKind::kMetafile:
      if (!SaveChartEmf(*view_, path)) messages.Show(kFileNotFoundMessage);
      break;
  }
}

}  // namespace zel::app

namespace zel::app {

void CChildFrame::OnFileExport() {
  Interaction& ui = app_.ui();
  const QString path =
      ui.save_file(this, ExportFilter(), QStringLiteral("png"));
  if (path.isEmpty()) return;
  MessageSink& messages = *ui.messages;
  const ExportFormat* format = FindExportFormat(path);
  if (format == nullptr) {
    messages.Show(QStringLiteral("Export writes the format its file name "
                                 "ends in: %1. Nothing was written.")
                      .arg(KnownExportSuffixes())
                      .toStdString());
    return;
  }
  bool written = false;
  if (QLatin1String(format->suffix) == QLatin1String("png")) {
    // By default the window's picture at print quality.
    DLG_PNG_EXPORT dialog(this);
    const double enlarge = double(DLG_PNG_EXPORT::kDefaultDpi) / ChartDpi();
    dialog.SetPixels(view_->viewport().size() * enlarge);
    if (app_.RunDialog(dialog) != QDialog::Accepted) return;
    written = ExportPng(*view_, path, dialog.Pixels(), dialog.Dpi());
  } else {
    written = format->write(*view_, path);
  }
  if (!written) messages.Show(kFileNotFoundMessage);
}

void CChildFrame::OnEditCopy() {
  auto* data = new QMimeData;
  data->setImageData(view_->RenderImage());
  const QByteArray svg =
      ChartSvg(*view_, view_->viewport().size(), ChartTitle(*view_));
  if (!svg.isEmpty()) data->setData(QStringLiteral("image/svg+xml"), svg);
  QGuiApplication::clipboard()->setMimeData(data);
}

}  // namespace zel::app
