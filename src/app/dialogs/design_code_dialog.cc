#include "app/dialogs/design_code_dialog.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPalette>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>
#include <cstddef>

#include "app/dialogs/ok_cancel_buttons.h"
#include "core/codes/field_table.h"

namespace zel::app {
namespace {

QString Q(const std::string& text) { return QString::fromStdString(text); }

constexpr int kEditWidth = 90;
// The period grid's fields stand side by side in one row.
constexpr char kRowGroup[] = "Output Period";

}  // namespace

DesignCodeDialog::DesignCodeDialog(DialogHost& host, const CodeEntry& code,
                                   QWidget* parent)
    : QDialog(parent), host_(host), code_(code) {
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
    AddField(param, *grid, param.group == kRowGroup);
    loose = nullptr;
  }
  auto* buttons = OkCancelButtons(this);
  page->addWidget(buttons);

  const ParamValues defaults = DefaultValues(code_);
  ShowValues(defaults);
  UpdateStates(defaults);
}

// Returns the group's box when it is new and belongs on the page; a nested
// group ("Outer/Inner") goes into its enclosing group, made first if need
// be.
QWidget* DesignCodeDialog::AddGroup(const std::string& path,
                                    QGridLayout*& grid) {
  if (const auto it = groups_.find(path); it != groups_.end()) {
    grid = it->second;
    return nullptr;
  }
  const std::size_t slash = path.rfind('/');
  auto* box = new QGroupBox(Q(path.substr(slash + 1)));
  grid = new QGridLayout(box);
  groups_[path] = grid;
  if (slash == std::string::npos) return box;
  QGridLayout* outer_grid = nullptr;
  QWidget* outer_box = AddGroup(path.substr(0, slash), outer_grid);
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

  if (param.kind == ParamKind::kCheck) {
    field.check = new QCheckBox(Q(param.label));
    field.check->setObjectName(name);
    connect(field.check, &QCheckBox::clicked, this,
            [this, n = param.name] { OnFieldChanged(n); });
    grid.addWidget(field.check, row, column, 1, -1);
    return;
  }
  if (param.kind == ParamKind::kChoice && param.radio) {
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
  if (param.kind == ParamKind::kList) {
    AddListField(field, grid, row);
    return;
  }
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
    // While the user types, a message waits until the field is left, so
    // that "-" on the way to "-2" raises nothing.
    connect(field.edit, &QLineEdit::textEdited, this,
            [this, n = param.name] { OnFieldChanged(n, /*typing=*/true); });
    field.edit->installEventFilter(this);
    edit_names_[field.edit] = param.name;
  }
  control->setObjectName(name);
  control->setMinimumWidth(kEditWidth);
  field.label->setBuddy(control);
  grid.addWidget(field.label, row, column);
  grid.addWidget(control, row, column + 1);
  if (!param.unit.empty()) {
    field.unit = new QLabel(Q(param.unit));
    grid.addWidget(field.unit, row, column + 2);
  }
}

// The number edit and the Insert button on one row, the list below them.
void DesignCodeDialog::AddListField(Field& field, QGridLayout& grid, int row) {
  const QString name = Q(field.param->name);
  field.edit = new QLineEdit;
  field.edit->setObjectName(name + QStringLiteral("_edit"));
  field.edit->setMinimumWidth(kEditWidth);
  field.insert = new QPushButton(QStringLiteral("Insert"));
  field.insert->setObjectName(name + QStringLiteral("_insert"));
  field.list = new QListWidget;
  field.list->setObjectName(name);
  field.list->setToolTip(QStringLiteral("Delete removes the selected value"));
  field.list->installEventFilter(this);
  edit_names_[field.list] = field.param->name;
  field.edit->installEventFilter(this);
  edit_names_[field.edit] = field.param->name;
  field.list->setMaximumHeight(field.list->fontMetrics().lineSpacing() *
                                   (field.param->capacity + 1) +
                               8);
  field.label->setBuddy(field.edit);
  auto* line = new QHBoxLayout;
  line->addWidget(field.edit);
  line->addWidget(field.insert);
  grid.addWidget(field.label, row, 0);
  grid.addLayout(line, row, 1);
  grid.addWidget(field.list, row + 1, 1);
  next_slot_[&grid]++;
  connect(field.insert, &QPushButton::clicked, this,
          [this, &field] { OnInsert(field); });
}

void DesignCodeDialog::OnInsert(Field& field) {
  const std::string typed = field.edit->text().trimmed().toStdString();
  if (typed.empty()) return;
  if (field.list->count() >= field.param->capacity) {
    host_.messages().Show(field.param->full_message);
    return;
  }
  field.list->addItem(Q(DisplayText(AtoF(typed))));
  field.edit->clear();
  OnFieldChanged(field.param->name);
}

QString DesignCodeDialog::FieldText(const Field& field) const {
  if (field.radios != nullptr) {
    return QString::number(field.radios->checkedId());
  }
  if (field.check != nullptr) {
    return field.check->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
  }
  if (field.list != nullptr) {
    QStringList items;
    for (int i = 0; i < field.list->count(); ++i) {
      items << field.list->item(i)->text();
    }
    return items.join(QLatin1Char(','));
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
    if (field.check != nullptr) {
      field.check->setChecked(IntegerText(it->second) != 0);
    } else if (field.list != nullptr) {
      field.list->clear();
      for (const double value : SplitListText(it->second)) {
        field.list->addItem(Q(DisplayText(value)));
      }
    } else if (field.param->kind == ParamKind::kChoice) {
      const int index = IntegerText(it->second);
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

void DesignCodeDialog::UpdateStates(const ParamValues& values) {
  // A group box is greyed, caption and all, once none of its fields (nor
  // those of the groups inside it) can be edited.
  std::map<std::string, bool> group_on;
  for (auto& [name, field] : fields_) {
    const FieldState state = GetFieldState(code_, values, name);
    const bool on = state == FieldState::kEnabled;
    for (std::string g = field.param->group; !g.empty();) {
      group_on[g] = group_on[g] || on;
      const std::size_t slash = g.rfind('/');
      g = slash == std::string::npos ? std::string() : g.substr(0, slash);
    }
    const bool read_only = state == FieldState::kReadOnly;
    if (field.edit != nullptr && field.list == nullptr) {
      field.edit->setReadOnly(read_only);
      // Grey like the dialog, so that a locked value reads as computed.
      QPalette colours = palette();
      if (read_only) {
        colours.setColor(QPalette::Base, colours.color(QPalette::Window));
      }
      field.edit->setPalette(colours);
    }
    for (QWidget* widget :
         {static_cast<QWidget*>(field.label),
          static_cast<QWidget*>(field.combo), static_cast<QWidget*>(field.edit),
          static_cast<QWidget*>(field.radio_box),
          static_cast<QWidget*>(field.check), static_cast<QWidget*>(field.list),
          static_cast<QWidget*>(field.insert),
          static_cast<QWidget*>(field.unit)}) {
      if (widget == nullptr) continue;
      widget->setVisible(state != FieldState::kHidden);
      // A read-only drop-down cannot be picked from either.
      widget->setEnabled(on || (read_only && widget != field.combo));
    }
  }
  for (const auto& [group, on] : group_on) {
    groups_.at(group)->parentWidget()->setEnabled(on);
  }
}

void DesignCodeDialog::OnFieldChanged(const std::string& name, bool typing) {
  // A notification refused while typing is made again, with its message,
  // when the user leaves the field.
  class Silent : public MessageSink {
   public:
    void Show(std::string_view) override {}
  } silent;
  ParamValues values = Values();
  const bool accepted =
      NotifyChanged(code_, values, name, typing ? silent : host_.messages());
  if (typing && !accepted) {
    refused_while_typing_.insert(name);
  } else {
    refused_while_typing_.erase(name);
  }
  ShowValues(values);
  UpdateStates(values);
}

bool DesignCodeDialog::eventFilter(QObject* watched, QEvent* event) {
  // In a list field Enter inserts the typed value (instead of pressing OK)
  // and Delete takes the selected value out.
  if (event->type() == QEvent::KeyPress && edit_names_.count(watched) > 0) {
    Field& field = fields_.at(edit_names_.at(watched));
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (field.list != nullptr && watched == field.edit &&
        (key == Qt::Key_Return || key == Qt::Key_Enter)) {
      OnInsert(field);
      return true;
    }
    if (watched == field.list && key == Qt::Key_Delete &&
        field.list->currentItem() != nullptr) {
      delete field.list->takeItem(field.list->currentRow());
      OnFieldChanged(field.param->name);
      return true;
    }
  }
  if (event->type() == QEvent::FocusOut) {
    const auto it = edit_names_.find(watched);
    if (it != edit_names_.end() && refused_while_typing_.count(it->second)) {
      OnFieldChanged(it->second, /*typing=*/false);
    }
  }
  return QDialog::eventFilter(watched, event);
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
