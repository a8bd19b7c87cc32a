#include "app/shell/zelw_app.h"

#include <QFile>
#include <QFileInfo>
#include <utility>

#include "app/shell/child_frame.h"
#include "app/shell/command_table.h"
#include "app/shell/main_frame.h"
#include "core/document/data_file.h"
#include "core/records/record_folder.h"

namespace zel::app {
namespace {

constexpr const char* kOpenFilter =
    "ZEL Files (*.zel)|*.zel|ALL Files (*.*)|*.*|";
constexpr const char* kReadFailed = "An Error occured while reading data";

}  // namespace

CZELwApp::CZELwApp(Interaction ui, QObject* parent)
    : QObject(parent), ui_(std::move(ui)), recent_files_(kRecentFileCount) {}

CZELwApp::~CZELwApp() = default;

bool CZELwApp::InitInstance(const QStringList& arguments) {
  recent_files_.Load();
  main_frame_ = std::make_unique<CMainFrame>(*this);
  // No empty document at start; a file named on the command line opens
  // through the framework's path.
  for (const QString& arg : arguments) {
    if (arg.startsWith(QLatin1Char('-'))) continue;
    OpenDocumentFile(arg);
    break;
  }
  main_frame_->show();
  return true;
}

CZELwDoc* CZELwApp::NewDocument(int mode) {
  new_document_mode_ = mode;
  auto doc = std::make_unique<CZELwDoc>();
  doc->SetTitle("ZEL" + std::to_string(++untitled_count_));
  return &main_frame_->AddChild(std::move(doc))->GetDocument();
}

std::string CZELwApp::ProgramFolder() const {
  return program_folder_.empty() ? RecordBaseFolder() : program_folder_;
}

void CZELwApp::OnFileOpen() {
  new_document_mode_ = kNewDocumentFromFile;
  const QString path =
      ui_.open_file(main_frame_.get(), QString::fromLatin1(kOpenFilter));
  if (path.isEmpty()) return;
  InputFile file = InputFile::Open(QFile::encodeName(path).toStdString());
  if (!file.is_open()) {
    messages().ShowFileError(file.name(), file.error());
    return;
  }
  CZELwDoc* doc = NewDocument(kNewDocumentFromFile);
  if (ReadDataFile(*doc, std::move(file), messages()) == 0) {
    messages().Show(kReadFailed);
    // The chart shows whatever was read before the failure.
    doc->UpdateAllViews();
  }
  AddToRecentFileList(path);
}

CZELwDoc* CZELwApp::OpenDocumentFile(const QString& path) {
  if (!QFileInfo(path).isFile()) {
    messages().Show(kFileNotFoundMessage);
    return nullptr;
  }
  CZELwDoc* doc = NewDocument(new_document_mode_);
  doc->SetTitle(QFileInfo(path).fileName().toStdString());
  doc->UpdateAllViews();
  AddToRecentFileList(path);
  return doc;
}

void CZELwApp::OpenRecentFile(int index) {
  if (index < 0 || index >= RecentFiles().size()) return;
  const QString path = RecentFiles()[index];
  if (OpenDocumentFile(path) != nullptr) return;
  recent_files_.Remove(index);
  recent_files_.Save();
  emit RecentFilesChanged();
}

void CZELwApp::AddToRecentFileList(const QString& path) {
  recent_files_.Add(path);
  recent_files_.Save();
  emit RecentFilesChanged();
}

}  // namespace zel::app
