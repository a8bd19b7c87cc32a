#include "app/plot/chart_print.h"

#include <QPrinter>

#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/plot/chart_widget.h"

namespace zel::app {

bool PaintChartPage(ChartWidget& chart, QPrinter& printer) {
  // Text is measured at the chart's resolution, so the page is laid out in
  // it; on paper the printer's own resolution still draws every line.
  printer.setResolution(ChartDpi());
  printer.setDocName(ChartTitle(chart));
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
