// `zel --export IN.zel OUT.{png,svg,pdf,emf,csv} [--size WxH]`: draws a saved
// document with the window's own chart drawing and writes the picture (PNG,
// SVG, PDF, Enhanced Metafile) or the curves (CSV), without opening a window
// or needing a display. The format follows OUT's suffix; File / Export
// offers the same formats.
#ifndef ZEL_APP_SHELL_HEADLESS_EXPORT_H_
#define ZEL_APP_SHELL_HEADLESS_EXPORT_H_

#include <QSize>
#include <QString>
#include <QStringList>
#include <vector>

namespace zel::app {

class ChartWidget;

// One picture format of the export: OUT's suffix (lower case) and how the
// chart is written in it.
struct ExportFormat {
  const char* suffix;
  bool (*write)(ChartWidget& chart, const QString& path);
  // The name in the file dialog's filter.
  const char* name;
};
// A new format is one more entry here.
const std::vector<ExportFormat>& ExportFormats();
// The format of `path`'s suffix (any case), or nullptr.
const ExportFormat* FindExportFormat(const QString& path);
// "png, svg, ...", for messages.
QString KnownExportSuffixes();
// Every format as a file-dialog filter "name (*.x)|*.x|...".
QString ExportFilter();

inline constexpr QSize kDefaultExportSize(800, 600);

// Whether the program was started to export; looked at before Qt starts,
// so that it can start on the offscreen platform.
bool WantsExport(int argc, char* argv[]);

// Runs the export named by the program's arguments (without the program's
// own name). Messages go to standard error; returns the exit status: 0 when
// the picture was written, 1 when the document or the picture failed, 2
// for a command line it does not understand.
int RunExport(const QStringList& arguments);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_HEADLESS_EXPORT_H_
