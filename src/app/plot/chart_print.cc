#include "app/plot/chart_print.h"

#include <QPrinter>
#include <QRegularExpression>

#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/plot/chart_widget.h"

namespace zel::app {

void NamePrintJob(const ChartWidget& chart, QPrinter& printer) {
  QString name =
      QString::fromStdString(chart.document().window_title).simplified();
  // Characters a file name cannot hold, and dots the dialog would take for
  // the start of an extension.
  static const QRegularExpression kNotInFileName(
      QStringLiteral("[./\\\\:*?\"<>|]"));
  name.replace(kNotInFileName, QStringLiteral("_"));
  printer.setDocName(name.isEmpty() ? QStringLiteral("ZEL chart") : name);
}

bool PaintChartPage(ChartWidget& chart, QPrinter& printer) {
  // Text is measured at the chart's resolution, so the page is laid out in
  // it; on paper the printer's own resolution still draws every line.
  printer.setResolution(ChartDpi());
  NamePrintJob(chart, printer);
  return RenderChart(chart, printer,
                     QRectF(0, 0, printer.width(), printer.height()));
}

bool PrintChart(ChartWidget& chart, QPrinter& printer) {
  if (printer.outputFormat() == QPrinter::PdfFormat &&
      !printer.outputFileName().isEmpty()) {
    return WriteWholeFile(
        printer.outputFileName(),
        ChartPdf(chart, printer.pageLayout(), ChartTitle(chart)));
  }
  return PaintChartPage(chart, printer);
}

}  // namespace zel::app
