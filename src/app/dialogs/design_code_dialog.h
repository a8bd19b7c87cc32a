// DesignCodeDialog: the modal dialog of one design code, built from the
// code's registry entry. Every parameter becomes a labelled control (an edit
// box, a drop-down list, an editable drop-down or a group of radio buttons)
// inside the group box its descriptor names; the registry decides what a
// change rewrites, which controls can be edited and how OK fills the new
// document. The controls only hold texts: numbers arrive formatted by the
// core and go back as typed.
#ifndef ZEL_APP_DIALOGS_DESIGN_CODE_DIALOG_H_
#define ZEL_APP_DIALOGS_DESIGN_CODE_DIALOG_H_

#include <QDialog>
#include <map>
#include <set>
#include <string>

#include "app/dialogs/dialog_host.h"
#include "core/codes/code_registry.h"

class QButtonGroup;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace zel::app {

// What the registry leaves to the dialog: how a code's controls look.
struct DesignDialogLayout {
  // Choices shown as radio buttons in a group box captioned by the label
  // (the others are drop-down lists).
  std::set<std::string> radios;
  // Group boxes drawn inside another one: group -> enclosing group.
  std::map<std::string, std::string> nested_groups;
  // Groups whose controls stand side by side in one row.
  std::set<std::string> row_groups = {"Output Period"};
  // Edit boxes that become read-only, not disabled, while locked.
  std::set<std::string> read_only_when_locked;
  // A unit label after a control: field -> unit.
  std::map<std::string, std::string> units;
};

class DesignCodeDialog : public QDialog {
  Q_OBJECT

 public:
  DesignCodeDialog(DialogHost& host, const CodeEntry& code,
                   const DesignDialogLayout& layout, QWidget* parent = nullptr);

  const CodeEntry& code() const { return code_; }
  // The controls' texts as OK reads them (choices: the selected index).
  ParamValues Values() const;

  // OK: read the controls; the code's checks that come before any document
  // (the Site Class 'E' note); a new design-spectrum document; then the
  // generator, which validates in the code's order and fills the document.
  // A failure leaves the new, empty document and this dialog open.
  void accept() override;

 private:
  struct Field {
    const ParamDescriptor* param = nullptr;
    QLabel* label = nullptr;
    QLineEdit* edit = nullptr;   // edit box, or an editable drop-down's
    QComboBox* combo = nullptr;  // drop-down list or editable drop-down
    QGroupBox* radio_box = nullptr;
    QButtonGroup* radios = nullptr;
    QLabel* unit = nullptr;
  };

  QWidget* AddGroup(const std::string& name, QGridLayout*& grid);
  void AddField(const ParamDescriptor& param, QGridLayout& grid, bool in_row);
  QString FieldText(const Field& field) const;
  void ShowValues(const ParamValues& values);
  void UpdateEnabling(const ParamValues& values);
  // A control changed by the user: the registry's notification, then the
  // rewritten texts and the enabling.
  void OnFieldChanged(const std::string& name);

  DialogHost& host_;
  const CodeEntry& code_;
  DesignDialogLayout layout_;
  std::map<std::string, Field, std::less<>> fields_;
  std::map<std::string, QGridLayout*> groups_;
  std::map<QGridLayout*, int> next_slot_;  // next row (or column triple)
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DESIGN_CODE_DIALOG_H_
