#include "app/dialogs/dlg_progress_bar.h"

#include <QCoreApplication>
#include <QVBoxLayout>

namespace zel::app {

DLG_ProgressBar::DLG_ProgressBar(QWidget* parent)
    : QDialog(parent), bar_(new QProgressBar) {
  setWindowTitle(QStringLiteral("Processing.... please wait."));
  setModal(false);
  // Nothing to cancel: the window has no close button.
  setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
  bar_->setTextVisible(false);
  bar_->setMinimumWidth(320);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(bar_);
}

void DLG_ProgressBar::SetRange(int lower, int upper) {
  bar_->setRange(lower, upper);
  bar_->setValue(lower);
}

void DLG_ProgressBar::SetPos(int position) {
  bar_->setValue(position);
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

}  // namespace zel::app
