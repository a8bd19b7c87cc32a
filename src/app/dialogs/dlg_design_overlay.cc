#include "app/dialogs/dlg_design_overlay.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QVBoxLayout>

#include "app/dialogs/design_code_dialog.h"
#include "app/dialogs/ok_cancel_buttons.h"
#include "app/dialogs/scratch_host.h"
#include "core/codes/code_registry.h"
#include "core/scaling/design_target.h"

namespace zel::app {

DLG_DESIGN_OVERLAY::DLG_DESIGN_OVERLAY(DialogHost& host, CZELwDoc& target,
                                       QWidget* parent)
    : QDialog(parent), host_(host), target_(target), codes_(new QComboBox) {
  setWindowTitle(tr("Add Design Spectrum"));
  for (const CodeEntry& code : DesignCodes()) {
    codes_->addItem(QString::fromStdString(code.menu_text));
  }
  auto* page = new QVBoxLayout(this);
  auto* form = new QFormLayout;
  form->addRow(tr("Design code :"), codes_);
  page->addLayout(form);
  page->addWidget(OkCancelButtons(this));
}

void DLG_DESIGN_OVERLAY::accept() {
  const int index = codes_->currentIndex();
  if (index < 0 || index >= static_cast<int>(DesignCodes().size())) return;
  ScratchHost scratch(host_);
  DesignCodeDialog dialog(scratch, DesignCodes()[index], this);
  if (host_.RunDialog(dialog) != QDialog::Accepted) return;
  if (AddDesignSpectrum(target_, scratch.document(), host_.messages())) {
    QDialog::accept();
  }
}

}  // namespace zel::app
