#include "app/dialogs/ok_cancel_buttons.h"

#include <QDialog>
#include <QDialogButtonBox>

namespace zel::app {

QDialogButtonBox* OkCancelButtons(QDialog* dialog) {
  auto* buttons = new QDialogButtonBox(
      QDialogButtonBox::Ok | QDialogButtonBox::Cancel, dialog);
  QObject::connect(buttons, &QDialogButtonBox::accepted, dialog,
                   &QDialog::accept);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog,
                   &QDialog::reject);
  return buttons;
}

}  // namespace zel::app
