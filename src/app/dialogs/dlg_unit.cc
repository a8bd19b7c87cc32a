#include "app/dialogs/dlg_unit.h"

#include <QDialogButtonBox>
#include <QGroupBox>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/document/units.h"

namespace zel::app {

DLG_UNIT::DLG_UNIT(QWidget* parent) : QDialog(parent) {
  setWindowTitle(QStringLiteral("Unit conversion"));
  auto* group = new QGroupBox(QStringLiteral("Select Unit"));
  auto* radios = new QVBoxLayout(group);
  for (int i = 0; i < kUnitCount; ++i) {
    auto* radio = new QRadioButton(QString::fromLatin1(kLengthUnits[i].choice));
    units_.addButton(radio, i);
    radios->addWidget(radio);
  }
  auto* buttons = OkCancelButtons(this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(group);
  layout->addWidget(buttons);
  SetUnitIndex(0);
}

void DLG_UNIT::SetUnitIndex(int index) {
  if (QAbstractButton* b = units_.button(IsValidUnitIndex(index) ? index : 0)) {
    b->setChecked(true);
  }
}

int DLG_UNIT::UnitIndex() const { return units_.checkedId(); }

}  // namespace zel::app
