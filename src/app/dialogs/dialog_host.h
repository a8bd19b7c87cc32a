// DialogHost: what a Generate dialog needs of the program around it, and no
// more: a new document under a new-document mode, the message boxes, the
// open-file dialog of Import, the folder whose "dbase/" holds the catalog,
// and the follow-up values the record dialogs leave for the next document.
// The application implements it; a dialog never sees the application itself.
#ifndef ZEL_APP_DIALOGS_DIALOG_HOST_H_
#define ZEL_APP_DIALOGS_DIALOG_HOST_H_

#include <QString>
#include <string>

#include "core/document/curve_document.h"
#include "core/document/messages.h"

class QDialog;
class QWidget;

namespace zel::app {

// New-document modes: what the next new document will hold.
inline constexpr int kNewDocumentRecord = 0;
inline constexpr int kNewDocumentResponseSpectrum = 1;
inline constexpr int kNewDocumentDesignSpectrum = 2;
inline constexpr int kNewDocumentFromFile = 9;

// Left by the record dialogs for the next new document.
struct FollowUpValues {
  bool spectrum_follows = false;
  bool tripartite_follows = false;
  std::string record_path;
};

class DialogHost {
 public:
  // File New under `mode`: the new, empty document in a new active window,
  // or nullptr when none could be made.
  virtual CZELwDoc* NewDocument(int mode) = 0;
  virtual MessageSink& messages() = 0;
  // The open-file dialog; `filter` is written "name|pattern|...|". An empty
  // string on Cancel.
  virtual QString AskOpenFileName(QWidget* parent, const QString& filter) = 0;
  // The folder whose "dbase/" holds the catalog's record files.
  virtual std::string ProgramFolder() const = 0;
  virtual FollowUpValues& follow_up() = 0;
  // Runs a dialog a dialog opens (the import step) modally.
  virtual int RunDialog(QDialog& dialog) = 0;

 protected:
  ~DialogHost() = default;
};

}  // namespace zel::app

#endif  // ZEL_APP_DIALOGS_DIALOG_HOST_H_
