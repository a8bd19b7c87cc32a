#include "app/dialogs/dlg_png_export.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/document/c_format.h"

namespace zel::app {
namespace {

// 12000 pixels is a metre at 300 dpi, more than any report needs; a
// picture too large for the memory fails with a message.
constexpr int kLeastSide = 16;
constexpr int kMostSide = 12000;

QSpinBox* SpinBox(int low, int high, const QString& suffix) {
  auto* box = new QSpinBox;
  box->setRange(low, high);
  box->setSuffix(suffix);
  box->setAccelerated(true);
  return box;
}

}  // namespace

DLG_PNG_EXPORT::DLG_PNG_EXPORT(QWidget* parent)
    : QDialog(parent),
      width_(SpinBox(kLeastSide, kMostSide, QStringLiteral(" px"))),
      height_(SpinBox(kLeastSide, kMostSide, QStringLiteral(" px"))),
      dpi_(SpinBox(36, 2400, QStringLiteral(" dpi"))),
      printed_size_(new QLabel) {
  setWindowTitle(QStringLiteral("PNG Export"));
  auto* form = new QFormLayout;
  form->addRow(QStringLiteral("&Width:"), width_);
  form->addRow(QStringLiteral("&Height:"), height_);
  form->addRow(QStringLiteral("&Resolution:"), dpi_);
  form->addRow(QStringLiteral("Printed size:"), printed_size_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(form);
  layout->addWidget(OkCancelButtons(this));
  for (QSpinBox* box : {width_, height_, dpi_}) {
    connect(box, &QSpinBox::valueChanged, this,
            &DLG_PNG_EXPORT::ShowPrintedSize);
  }
  SetPixels(QSize(2400, 1800));
  SetDpi(kDefaultDpi);
}

void DLG_PNG_EXPORT::SetPixels(QSize pixels) {
  // Within the limits, the proportions kept.
  const double shrink =
      std::min({1.0, double(kMostSide) / std::max(1, pixels.width()),
                double(kMostSide) / std::max(1, pixels.height())});
  width_->setValue(qRound(pixels.width() * shrink));
  height_->setValue(qRound(pixels.height() * shrink));
}

void DLG_PNG_EXPORT::SetDpi(int dpi) { dpi_->setValue(dpi); }

QSize DLG_PNG_EXPORT::Pixels() const {
  return {width_->value(), height_->value()};
}

int DLG_PNG_EXPORT::Dpi() const { return dpi_->value(); }

void DLG_PNG_EXPORT::ShowPrintedSize() {
  const double cm_per_pixel = 2.54 / dpi_->value();
  printed_size_->setText(QString::fromStdString(
      CFormat("%.1f x %.1f cm", width_->value() * cm_per_pixel,
              height_->value() * cm_per_pixel)));
}

}  // namespace zel::app
