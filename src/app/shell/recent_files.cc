#include "app/shell/recent_files.h"

#include <QFileInfo>
#include <QSettings>

namespace zel::app {
namespace {

constexpr const char* kSection = "Recent File List";

QString Key(int i) { return QStringLiteral("File%1").arg(i + 1); }

}  // namespace

RecentFileList::RecentFileList(int size) : size_(size) {}

void RecentFileList::Load() {
  QSettings settings(kOrganisation, kApplication);
  settings.beginGroup(kSection);
  files_.clear();
  for (int i = 0; i < size_; ++i) {
    const QString path = settings.value(Key(i)).toString();
    if (!path.isEmpty()) files_ << path;
  }
}

void RecentFileList::Save() const {
  QSettings settings(kOrganisation, kApplication);
  settings.beginGroup(kSection);
  for (int i = 0; i < size_; ++i) {
    if (i < files_.size()) {
      settings.setValue(Key(i), files_[i]);
    } else {
      settings.remove(Key(i));
    }
  }
}

void RecentFileList::Add(const QString& path) {
  const QString absolute = QFileInfo(path).absoluteFilePath();
  files_.removeAll(absolute);
  files_.prepend(absolute);
  while (files_.size() > size_) files_.removeLast();
}

void RecentFileList::Remove(int index) {
  if (index >= 0 && index < files_.size()) files_.removeAt(index);
}

}  // namespace zel::app
