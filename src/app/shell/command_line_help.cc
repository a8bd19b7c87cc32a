#include "app/shell/command_line_help.h"

#include <QStringList>
#include <cstring>
#include <iostream>

#include "app/shell/headless_export.h"

namespace zel::app {

QString CommandLineHelp() {
  return QStringLiteral(
             "ZEL: design response spectra by code, earthquake records and "
             "their response spectra, as charts\n"
             "Usage: zel [OPTIONS] [FILE]\n"
             "       zel --export IN.zel OUT [--size WxH]\n"
             "\n"
             "Positionals:\n"
             "  FILE                        Opens an empty chart titled with "
             "the file's name, as the\n"
             "                              recent-file list does; File / "
             "Open reads a .zel file\n"
             "\n"
             "Options:\n"
             "  -h,--help                   Print this help message and exit\n"
             "  --version                   Print the version and exit\n"
             "  --export IN OUT             Draw the saved chart IN into OUT "
             "without a window or a\n"
             "                              display; OUT's suffix picks the "
             "format: %1\n"
             "  --size WxH                  Size of the --export picture in "
             "pixels (default %2x%3)\n")
      .arg(KnownExportSuffixes())
      .arg(kDefaultExportSize.width())
      .arg(kDefaultExportSize.height());
}

bool AnswerInformationRequest(int argc, char* argv[]) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--help") == 0 ||
        std::strcmp(argv[i], "-h") == 0) {
      std::cout << CommandLineHelp().toStdString();
      return true;
    }
    if (std::strcmp(argv[i], "--version") == 0) {
      std::cout << "zel " << ZEL_VERSION << '\n';
      return true;
    }
  }
  return false;
}

}  // namespace zel::app
