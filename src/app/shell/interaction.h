// Everything through which the program waits for the user: message boxes,
// file dialogs and modal dialogs. The program uses the real ones; tests put
// in their own to answer without a user.
#ifndef ZEL_APP_SHELL_INTERACTION_H_
#define ZEL_APP_SHELL_INTERACTION_H_

#include <QString>
#include <functional>
#include <memory>

#include "core/document/messages.h"

class QDialog;
class QWidget;

namespace zel::app {

struct Interaction {
  // Shows the system's message texts, one modal box each.
  std::unique_ptr<MessageSink> messages;
  // Open-file dialog; `filter` is written as "name|pattern|...|". Returns
  // the chosen path, or an empty string on Cancel.
  std::function<QString(QWidget* parent, const QString& filter)> open_file;
  // Save-file dialog with a default extension appended to a bare name.
  std::function<QString(QWidget* parent, const QString& filter,
                        const QString& default_suffix)>
      save_file;
  // Runs a modal dialog and returns its result (QDialog::Accepted or
  // QDialog::Rejected).
  std::function<int(QDialog& dialog)> run_dialog;
  // Asks a Yes/No question, No by default; true for Yes.
  std::function<bool(QWidget* parent, const QString& question)> ask_yes_no;

  // The real message boxes and dialogs.
  static Interaction Desktop();
};

// "name|pattern|name|pattern|" (the filter text the commands use) as a Qt
// name filter "name;;name"; each name carries its pattern in parentheses.
QString QtNameFilter(const QString& filter);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_INTERACTION_H_
