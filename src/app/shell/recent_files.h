// The framework's recent-file list: the last four documents, newest first,
// kept in the settings of "Local AppWizard-Generated Applications".
#ifndef ZEL_APP_SHELL_RECENT_FILES_H_
#define ZEL_APP_SHELL_RECENT_FILES_H_

#include <QStringList>

namespace zel::app {

class RecentFileList {
 public:
  static constexpr const char* kOrganisation =
      "Local AppWizard-Generated Applications";
  static constexpr const char* kApplication = "ZEL";

  explicit RecentFileList(int size);

  // Reads and writes the list in the settings.
  void Load();
  void Save() const;

  // Puts `path` first, dropping an older entry of the same file and the
  // oldest entry beyond the list's size.
  void Add(const QString& path);
  void Remove(int index);
  const QStringList& files() const { return files_; }

 private:
  int size_;
  QStringList files_;
};

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_RECENT_FILES_H_
