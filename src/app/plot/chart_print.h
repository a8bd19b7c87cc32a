// A chart on a printer's page: the chart laid out for the printable area
// and drawn there, text and lines at their printed size.
#ifndef ZEL_APP_PLOT_CHART_PRINT_H_
#define ZEL_APP_PLOT_CHART_PRINT_H_

class QPrinter;

namespace zel::app {

class ChartWidget;

// Names the print job after the document's window: the name the printer
// queue shows and the print dialog offers for a PDF file.
void NamePrintJob(const ChartWidget& chart, QPrinter& printer);

// Draws the chart as the one page of `printer` (a real printer or the print
// preview). False when the printer cannot be opened.
bool PaintChartPage(ChartWidget& chart, QPrinter& printer);

// Prints the chart. Printing to a PDF file writes the file as every other
// file of the program is written: a failed print leaves the old file.
bool PrintChart(ChartWidget& chart, QPrinter& printer);

}  // namespace zel::app

#endif  // ZEL_APP_PLOT_CHART_PRINT_H_
