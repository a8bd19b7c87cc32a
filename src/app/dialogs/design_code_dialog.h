// DesignCodeDialog: the modal dialog of one design code, built from the
// code's registry entry. Every parameter becomes a labelled control (an edit
// box, a drop-down list, an editable drop-down, a group of radio buttons, a
// check box, or a list of numbers with an Insert button) inside the group
// box its descriptor names; the registry decides what a change rewrites,
// which controls can be edited, read or seen, and how OK fills the new
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
class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;

namespace zel::app {

class DesignCodeDialog : public QDialog {
  Q_OBJECT

 public:
  DesignCodeDialog(DialogHost& host, const CodeEntry& code,
                   QWidget* parent = nullptr);

  const CodeEntry& code() const { return code_; }
  // The controls' texts as OK reads them (choices: the selected index).
  ParamValues Values() const;

  // OK: read the controls; the code's checks that come before any document
  // (the Site Class 'E' note); a new design-spectrum document; then the
  // generator, which validates in the code's order and fills the document.
  // A failure leaves the new, empty document and this dialog open.
  void accept() override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct Field {
    const ParamDescriptor* param = nullptr;
    QLabel* label = nullptr;
    QLineEdit* edit = nullptr;   // edit box, or an editable drop-down's
    QComboBox* combo = nullptr;  // drop-down list or editable drop-down
    QGroupBox* radio_box = nullptr;
    QButtonGroup* radios = nullptr;
    QCheckBox* check = nullptr;
    QListWidget* list = nullptr;  // with `edit` and `insert`
    QPushButton* insert = nullptr;
    QLabel* unit = nullptr;
  };

  QWidget* AddGroup(const std::string& path, QGridLayout*& grid);
  void AddField(const ParamDescriptor& param, QGridLayout& grid, bool in_row);
  void AddListField(Field& field, QGridLayout& grid, int row);
  QString FieldText(const Field& field) const;
  void ShowValues(const ParamValues& values);
  void UpdateStates(const ParamValues& values);
  // A control changed by the user: the registry's notification, then the
  // rewritten texts and the states. `typing`: an edit's text is still being
  // typed, and a message waits until the field is left.
  void OnFieldChanged(const std::string& name, bool typing = false);
  // Insert: the list field's typed number joins its list.
  void OnInsert(Field& field);

  DialogHost& host_;
  const CodeEntry& code_;
  std::map<std::string, Field, std::less<>> fields_;
  std::map<std::string, QGridLayout*> groups_;
  std::map<QGridLayout*, int> next_slot_;  // next row (or column triple)
  std::map<const QObject*, std::string> edit_names_;
  std::set<std::string> refused_while_typing_;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DESIGN_CODE_DIALOG_H_
