#include "app/dialogs/design_code_dialog.h"

#include <QButtonGroup>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <cstddef>

#include "app/dialogs/ok_cancel_buttons.h"

namespace zel::app {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

constexpr int kEditWidth = 90;

}  // namespace

DesignCodeDialog::DesignCodeDialog(DialogHost& host, const CodeEntry& code,
                                   const DesignDialogLayout& layout,
                                   QWidget* parent)
    : QDialog(parent), host_(host), code_(code), layout_(layout) {
  setWindowTitle(Q(code.caption));
  auto* page = new QVBoxLayout(this);
  // Consecutive fields outside any group share one grid, so that their
  // labels line up; a group box ends it.
  QGridLayout* loose = nullptr;
  for (const ParamDescriptor& param : code.params) {
    if (param.group.empty()) {
      if (loose == nullptr) {
        loose = new QGridLayout;
        page->addLayout(loose);
      }
      AddField(param, *loose, false);
      continue;
    }
    QGridLayout* grid = nullptr;
    if (QWidget* box = AddGroup(param.group, grid)) page->addWidget(box);
    AddField(param, *grid, layout_.row_groups.count(param.group) != 0);
    loose = nullptr;
  }
  auto* buttons = OkCancelButtons(this);
  page->addWidget(buttons);

  const ParamValues defaults = DefaultValues(code_);
  ShowValues(defaults);
  UpdateEnabling(defaults);
}

// Returns the group's box when it is new and belongs on the page; a nested
// group's box goes into its enclosing group, made first if need be.
QWidget* DesignCodeDialog::AddGroup(const std::string& name,
                                    QGridLayout*& grid) {
  if (const auto it = groups_.find(name); it != groups_.end()) {
    grid = it->second;
    return nullptr;
  }
  auto* box = new QGroupBox(Q(name));
  grid = new QGridLayout(box);
  groups_[name] = grid;
  const auto outer = layout_.nested_groups.find(name);
  if (outer == layout_.nested_groups.end()) return box;
  QGridLayout* outer_grid = nullptr;
  QWidget* outer_box = AddGroup(outer->second, outer_grid);
  outer_grid->addWidget(box, next_slot_[outer_grid]++, 0, 1, -1);
  return outer_box;
}

void DesignCodeDialog::AddField(const ParamDescriptor& param, QGridLayout& grid,
                                bool in_row) {
  Field& field = fields_[param.name];
  field.param = &param;
  const QString name = Q(param.name);
  // A field takes a row of label, control and unit, or in a row group the
  // next three columns.
  const int slot = next_slot_[&grid]++;
  const int row = in_row ? 0 : slot;
  const int column = in_row ? 3 * slot : 0;

  if (param.kind == ParamKind::kChoice && layout_.radios.count(param.name)) {
    field.radio_box = new QGroupBox(Q(param.label));
    field.radio_box->setObjectName(name);
    field.radios = new QButtonGroup(this);
    auto* line = new QHBoxLayout(field.radio_box);
    for (std::size_t i = 0; i < param.items.size(); ++i) {
      auto* radio = new QRadioButton(Q(param.items[i]));
      radio->setObjectName(name + QString::number(i));
      field.radios->addButton(radio, static_cast<int>(i));
      line->addWidget(radio);
    }
    line->addStretch();
    connect(field.radios, &QButtonGroup::idClicked, this,
            [this, n = param.name] { OnFieldChanged(n); });
    grid.addWidget(field.radio_box, row, column, 1, -1);
    return;
  }

  field.label = new QLabel(Q(param.label));
  QWidget* control = nullptr;
  if (param.kind == ParamKind::kChoice || !param.items.empty()) {
    field.combo = new QComboBox;
    for (const std::string& item : param.items) field.combo->addItem(Q(item));
    connect(field.combo, &QComboBox::activated, this,
            [this, n = param.name] { OnFieldChanged(n); });
    if (param.kind != ParamKind::kChoice) {
      // An editable drop-down: any number may be typed, taken as typed.
      field.combo->setEditable(true);
      field.combo->setInsertPolicy(QComboBox::NoInsert);
      field.combo->setCompleter(nullptr);
      field.edit = field.combo->lineEdit();
    }
    control = field.combo;
  } else {
    field.edit = new QLineEdit;
    if (param.kind == ParamKind::kInteger) {
      field.edit->setValidator(new QRegularExpressionValidator(
          QRegularExpression(QStringLiteral("[0-9]*")), field.edit));
    }
    control = field.edit;
  }
  if (field.edit != nullptr) {
    connect(field.edit, &QLineEdit::textEdited, this,
            [this, n = param.name] { OnFieldChanged(n); });
  }
  control->setObjectName(name);
  control->setMinimumWidth(kEditWidth);
  field.label->setBuddy(control);
  grid.addWidget(field.label, row, column);
  grid.addWidget(control, row, column + 1);
  if (const auto unit = layout_.units.find(param.name);
      unit != layout_.units.end()) {
    field.unit = new QLabel(Q(unit->second));
    grid.addWidget(field.unit, row, column + 2);
  }
}

QString DesignCodeDialog::FieldText(const Field& field) const {
  if (field.radios != nullptr) {
    return QString::number(field.radios->checkedId());
  }
  if (field.edit != nullptr) return field.edit->text();
  return QString::number(field.combo->currentIndex());
}

ParamValues DesignCodeDialog::Values() const {
  ParamValues values;
  for (const auto& [name, field] : fields_) {
    values[name] = FieldText(field).toStdString();
  }
  return values;
}

void DesignCodeDialog::ShowValues(const ParamValues& values) {
  for (auto& [name, field] : fields_) {
    const auto it = values.find(name);
    if (it == values.end()) continue;
    const QString text = Q(it->second);
    if (FieldText(field) == text) continue;  // keeps the cursor while typing
    if (field.param->kind == ParamKind::kChoice) {
      const int index = IntegerValue(values, name);
      if (field.radios != nullptr) {
        if (QAbstractButton* radio = field.radios->button(index)) {
          radio->setChecked(true);
        }
      } else {
        field.combo->setCurrentIndex(index);
      }
    } else if (field.combo != nullptr) {
      const int item = field.combo->findText(text);
      if (item >= 0) {
        field.combo->setCurrentIndex(item);
      } else {
        field.combo->setEditText(text);
      }
    } else {
      field.edit->setText(text);
    }
  }
}

void DesignCodeDialog::UpdateEnabling(const ParamValues& values) {
  // A group box is greyed, caption and all, once none of its fields (nor
  // those of the groups inside it) can be edited.
  std::map<std::string, bool> group_on;
  for (const auto& [name, field] : fields_) {
    const bool on = IsFieldEnabled(code_, values, name);
    for (std::string g = field.param->group; !g.empty();) {
      group_on[g] = group_on[g] || on;
      const auto outer = layout_.nested_groups.find(g);
      g = outer == layout_.nested_groups.end() ? std::string() : outer->second;
    }
  }
  for (const auto& [group, on] : group_on) {
    groups_.at(group)->parentWidget()->setEnabled(on);
  }
  for (auto& [name, field] : fields_) {
    const bool on = IsFieldEnabled(code_, values, name);
    if (layout_.read_only_when_locked.count(name) && field.edit != nullptr) {
      field.edit->setReadOnly(!on);
      // Grey like the dialog, so that a locked value reads as computed.
      QPalette colours = palette();
      if (!on)
        colours.setColor(QPalette::Base, colours.color(QPalette::Window));
      field.edit->setPalette(colours);
      continue;
    }
    for (QWidget* widget :
         {static_cast<QWidget*>(field.label),
          static_cast<QWidget*>(field.combo), static_cast<QWidget*>(field.edit),
          static_cast<QWidget*>(field.radio_box),
          static_cast<QWidget*>(field.unit)}) {
      if (widget != nullptr) widget->setEnabled(on);
    }
  }
}

void DesignCodeDialog::OnFieldChanged(const std::string& name) {
  ParamValues values = Values();
  NotifyChanged(code_, values, name, host_.messages());
  ShowValues(values);
  UpdateEnabling(values);
}

void DesignCodeDialog::accept() {
  const ParamValues values = Values();
  MessageSink& messages = host_.messages();
  if (!PrecheckCode(code_, values, messages)) return;
  // The document is made before anything is validated; a failed check
  // leaves it open and empty, and this dialog open for another try.
  CZELwDoc* doc = host_.NewDocument(kNewDocumentDesignSpectrum);
  if (doc == nullptr || !code_.generate) return;
  if (!code_.generate(values, *doc, messages)) return;
  QDialog::accept();
}

}  // namespace zel::app
