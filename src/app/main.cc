// zel: the desktop program.
#include <QApplication>

#include "app/shell/zelw_app.h"

int main(int argc, char* argv[]) {
  QApplication qt_app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("ZEL"));
  QApplication::setOrganizationName(
      QString::fromLatin1(zel::app::RecentFileList::kOrganisation));
  QApplication::setApplicationVersion(QStringLiteral(ZEL_VERSION));

  zel::app::CZELwApp app(zel::app::Interaction::Desktop());
  QStringList arguments = QApplication::arguments();
  arguments.removeFirst();
  if (!app.InitInstance(arguments)) return 1;
  return QApplication::exec();
}
