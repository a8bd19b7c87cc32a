#include "app/shell/headless_export.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <string_view>

#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/plot/chart_widget.h"
#include "app/plot/emf_paint_device.h"
#include "core/document/curve_document.h"
#include "core/document/data_file.h"

namespace zel::app {
namespace {

constexpr char kPrefix[] = "zel --export: ";
constexpr char kUsage[] =
    "usage: zel --export IN.zel OUT.{png,svg,pdf,emf,csv} [--size WxH]";
constexpr int kMinSide = 64;
constexpr int kMaxSide = 8000;

class StderrMessages : public MessageSink {
 public:
  void Show(std::string_view text) override { std::cerr << text << '\n'; }
};

int Fail(const QString& text, int status) {
  std::cerr << kPrefix << text.toStdString() << '\n';
  return status;
}

bool WritePng(ChartWidget& chart, const QString& path) {
  return ExportPng(chart, path, chart.viewport().size(), ChartDpi());
}

// "WxH" within the limits, else an empty size.
QSize ParseSize(const QString& text) {
  static const QRegularExpression pattern(
      QStringLiteral("^(\\d{1,5})x(\\d{1,5})$"));
  const QRegularExpressionMatch match = pattern.match(text);
  if (!match.hasMatch()) return {};
  const int w = match.captured(1).toInt();
  const int h = match.captured(2).toInt();
  if (w < kMinSide || w > kMaxSide || h < kMinSide || h > kMaxSide) return {};
  return {w, h};
}

}  // namespace

const std::vector<ExportFormat>& ExportFormats() {
  static const std::vector<ExportFormat> formats = {
      {"png", WritePng, "PNG Image"},
      {"svg", ExportSvg, "SVG Drawing"},
      {"pdf", ExportPdf, "PDF Document"},
      {"emf", SaveChartEmf, "Enhanced Metafile"},
      {"csv", ExportCsv, "CSV Curves"},
  };
  return formats;
}

const ExportFormat* FindExportFormat(const QString& path) {
  const QString suffix = QFileInfo(path).suffix().toLower();
  for (const ExportFormat& format : ExportFormats()) {
    if (suffix == QLatin1String(format.suffix)) return &format;
  }
  return nullptr;
}

QString KnownExportSuffixes() {
  QStringList suffixes;
  for (const ExportFormat& format : ExportFormats()) {
    suffixes << QLatin1String(format.suffix);
  }
  return suffixes.join(QStringLiteral(", "));
}

QString ExportFilter() {
  QString filter;
  for (const ExportFormat& format : ExportFormats()) {
    filter +=
        QStringLiteral("%1 (*.%2)|*.%2|")
            .arg(QLatin1String(format.name), QLatin1String(format.suffix));
  }
  return filter;
}

bool WantsExport(int argc, char* argv[]) {
  for (int i = 1; i < argc; ++i) {
    if (std::strcmp(argv[i], "--export") == 0) return true;
  }
  return false;
}

int RunExport(const QStringList& arguments) {
  QStringList files;
  QSize size = kDefaultExportSize;
  for (int i = 0; i < arguments.size(); ++i) {
    const QString& arg = arguments[i];
    if (arg == QLatin1String("--export")) continue;
    if (arg == QLatin1String("--size") || arg.startsWith("--size=")) {
      const QString value =
          arg.contains(QLatin1Char('='))
              ? arg.section(QLatin1Char('='), 1)
              : (i + 1 < arguments.size() ? arguments[++i] : QString());
      size = ParseSize(value);
      if (size.isEmpty()) {
        return Fail(QStringLiteral("--size must be WIDTHxHEIGHT, each %1 to "
                                   "%2 pixels, not '%3'")
                        .arg(kMinSide)
                        .arg(kMaxSide)
                        .arg(value),
                    2);
      }
    } else if (arg.startsWith(QLatin1Char('-')) && arg.size() > 1) {
      return Fail(QStringLiteral("unknown option '%1'\n").arg(arg) + kUsage, 2);
    } else {
      files << arg;
    }
  }
  if (files.size() != 2) return Fail(QString::fromLatin1(kUsage), 2);
  const QString& in = files[0];
  const QString& out = files[1];
  const ExportFormat* format = FindExportFormat(out);
  if (format == nullptr) {
    return Fail(QStringLiteral("cannot write '%1': the export formats are %2")
                    .arg(out, KnownExportSuffixes()),
                2);
  }

  StderrMessages messages;
  CZELwDoc doc;
  if (ReadDataFile(doc, QFile::encodeName(in).toStdString(), messages) == 0) {
    return Fail(QStringLiteral("cannot read '%1'").arg(in), 1);
  }
  ChartWidget chart(doc);
  chart.setAttribute(Qt::WA_DontShowOnScreen);
  chart.resize(size);
  chart.show();
  chart.Rebuild();
  if (!format->write(chart, out)) {
    return Fail(QStringLiteral("cannot write '%1'").arg(out), 1);
  }
  return 0;
}

}  // namespace zel::app
