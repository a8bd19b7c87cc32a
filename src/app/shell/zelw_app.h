// CZELwApp: the application object. It starts the program, makes new
// documents (the framework's File New) under a new-document mode, opens data
// files, keeps the recent-file list and the follow-up values that the record
// dialogs leave for the next new document.
#ifndef ZEL_APP_SHELL_ZELW_APP_H_
#define ZEL_APP_SHELL_ZELW_APP_H_

#include <QObject>
#include <QStringList>
#include <memory>
#include <string>

#include "app/dialogs/dialog_host.h"
#include "app/shell/interaction.h"
#include "app/shell/recent_files.h"
#include "core/document/curve_document.h"

class QDialog;

namespace zel::app {

class CMainFrame;

class CZELwApp : public QObject, public DialogHost {
  Q_OBJECT

 public:
  explicit CZELwApp(Interaction ui, QObject* parent = nullptr);
  ~CZELwApp() override;

  // Start-up: recent-file list, main frame, then a file named on the command
  // line (`arguments` without the program name). Shows the main window.
  bool InitInstance(const QStringList& arguments);

  CMainFrame* GetMainFrame() { return main_frame_.get(); }
  Interaction& ui() { return ui_; }
  MessageSink& messages() override { return *ui_.messages; }
  // Runs a modal dialog through the replaceable dialog runner.
  int RunDialog(QDialog& dialog) override { return ui_.run_dialog(dialog); }

  // File New: sets the new-document mode, makes an empty document in a new
  // child window and makes it active. Returns the new document.
  CZELwDoc* NewDocument(int mode) override;
  int new_document_mode() const { return new_document_mode_; }

  QString AskOpenFileName(QWidget* parent, const QString& filter) override {
    return ui_.open_file(parent, filter);
  }
  // The program's own folder unless another was set (tests use their own).
  std::string ProgramFolder() const override;
  void SetProgramFolder(const std::string& folder) { program_folder_ = folder; }
  FollowUpValues& follow_up() override { return follow_up_; }

  // File Open: asks for a file, makes a new document and reads the file
  // into it. A document that failed to read stays open.
  void OnFileOpen();
  // The framework's own opening (recent-file list, a dropped file, the
  // command line): an empty chart titled with the file's name. Only File Open
  // reads the data file; this is kept as it is.
  CZELwDoc* OpenDocumentFile(const QString& path);
  // Opens entry `index` of the recent-file list as OpenDocumentFile does; an
  // entry that no longer opens leaves the list, as in the framework.
  void OpenRecentFile(int index);

  const QStringList& RecentFiles() const { return recent_files_.files(); }
  void AddToRecentFileList(const QString& path);

 signals:
  void RecentFilesChanged();

 private:
  Interaction ui_;
  RecentFileList recent_files_;
  std::unique_ptr<CMainFrame> main_frame_;
  int new_document_mode_ = 0;
  int untitled_count_ = 0;
  std::string program_folder_;
  FollowUpValues follow_up_;
};

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_ZELW_APP_H_
