#include "app/dialogs/dlg_title.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QVBoxLayout>

#include "app/dialogs/ok_cancel_buttons.h"

namespace zel::app {

DLG_TITLE::DLG_TITLE(QWidget* parent)
    : QDialog(parent), main_title_(new QLineEdit), sub_title_(new QLineEdit) {
  setWindowTitle(QStringLiteral("Graph Title"));
  auto* group = new QGroupBox(QStringLiteral("Title of Graph"));
  auto* form = new QFormLayout(group);
  form->addRow(QStringLiteral("Main Title :"), main_title_);
  form->addRow(QStringLiteral("SubTitle :"), sub_title_);
  main_title_->setMinimumWidth(320);
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
}

}  // namespace zel::app
