#include "app/dialogs/dlg_ctxlabel.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/plot/chart_model.h"

namespace zel::app {

DLG_CTXLABEL::DLG_CTXLABEL(QWidget* parent)
    : QDialog(parent),
      title_(new QLineEdit),
      content_(new QPlainTextEdit),
      style1_(new QRadioButton(QStringLiteral("Style1"))),
      style2_(new QRadioButton(QStringLiteral("Style2"))) {
  setWindowTitle(QStringLiteral("Add Label"));
  auto* group = new QGroupBox(QStringLiteral("Input Context Label"));
  auto* form = new QFormLayout(group);
  form->addRow(QStringLiteral("Title :"), title_);
  form->addRow(QStringLiteral("Content:"), content_);
  auto* styles = new QHBoxLayout;
  styles->addWidget(style1_);
  styles->addWidget(style2_);
  styles->addStretch();
  form->addRow(styles);
  content_->setTabChangesFocus(true);
  style1_->setChecked(true);
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
}

void DLG_CTXLABEL::SetStyle(int style) {
  (style == ChartLabel::kBoxed ? style2_ : style1_)->setChecked(true);
}

int DLG_CTXLABEL::Style() const {
  return style2_->isChecked() ? ChartLabel::kBoxed : ChartLabel::kPlain;
}

}  // namespace zel::app
