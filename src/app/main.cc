// zel: the desktop program; `zel --export` draws a saved chart headless.
#include <QApplication>

#include "app/shell/command_line_help.h"
#include "app/shell/headless_export.h"
#include "app/shell/zelw_app.h"

int main(int argc, char* argv[]) {
  if (zel::app::AnswerInformationRequest(argc, argv)) return 0;
  if (zel::app::WantsExport(argc, argv)) {
    // No window and no display: draw on the offscreen platform.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication qt_app(argc, argv);
    QStringList arguments = QApplication::arguments();
    arguments.removeFirst();
    return zel::app::RunExport(arguments);
  }
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
