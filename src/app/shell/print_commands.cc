#include "app/shell/print_commands.h"

#include <QDialogButtonBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <memory>

#include "app/plot/chart_print.h"
#include "app/shell/child_frame.h"
#include "app/shell/command_registry.h"
#include "app/shell/command_table.h"
#include "app/shell/main_frame.h"
#include "app/shell/zelw_app.h"
#include "core/document/messages.h"

namespace zel::app {
namespace {

constexpr char kPrinterFailed[] =
    "The printer could not be opened; nothing was printed.";

// The session's printer, made when first needed: finding the printers can
// take a moment. Charts are wider than high, so pages start in landscape.
class SessionPrinter {
 public:
  QPrinter& Get() {
    if (!printer_) {
      printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
      printer_->setPageOrientation(QPageLayout::Landscape);
    }
    return *printer_;
  }

 private:
  std::unique_ptr<QPrinter> printer_;
};

void Print(CMainFrame& frame, QPrinter& printer) {
  CChildFrame* child = frame.ActiveChild();
  if (!child) return;
  NamePrintJob(child->GetView(), printer);
  QPrintDialog dialog(&printer, &frame);
  dialog.setWindowTitle(QStringLiteral("Print"));
  if (frame.app().RunDialog(dialog) != QDialog::Accepted) return;
  if (!PrintChart(child->GetView(), printer)) {
    const bool to_file = printer.outputFormat() == QPrinter::PdfFormat;
    frame.app().messages().Show(to_file ? kFileNotFoundMessage
                                        : kPrinterFailed);
  }
}

void PrintPreview(CMainFrame& frame, QPrinter& printer) {
  CChildFrame* child = frame.ActiveChild();
  if (!child) return;
  QPrintPreviewDialog dialog(&printer, &frame);
  dialog.setWindowTitle(QStringLiteral("Print Preview"));
  dialog.resize(frame.size() * 0.9);
  ChartWidget& chart = child->GetView();
  QObject::connect(
      &dialog, &QPrintPreviewDialog::paintRequested, &dialog,
      [&chart](QPrinter* target) { PaintChartPage(chart, *target); });
  frame.app().RunDialog(dialog);
}

void PageSetup(CMainFrame& frame, QPrinter& printer) {
  QPageSetupDialog dialog(&printer, &frame);
  dialog.setWindowTitle(QStringLiteral("Page Setup"));
  frame.app().RunDialog(dialog);
}

// The printer and its options, chosen for later printing: the print
// dialog with OK in place of Print.
void PrintSetup(CMainFrame& frame, QPrinter& printer) {
  QPrintDialog dialog(&printer, &frame);
  dialog.setWindowTitle(QStringLiteral("Print Setup"));
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  if (auto* box = dialog.findChild<QDialogButtonBox*>()) {
    if (QPushButton* ok = box->button(QDialogButtonBox::Ok)) {
      ok->setText(QStringLiteral("OK"));
    }
  }
  frame.app().RunDialog(dialog);
}

}  // namespace

void RegisterPrintCommands(CommandRegistry& registry) {
  auto printer = std::make_shared<SessionPrinter>();
  registry.Register(ID_FILE_PRINT, [printer](CMainFrame& frame) {
    Print(frame, printer->Get());
  });
  registry.Register(ID_FILE_PRINT_PREVIEW, [printer](CMainFrame& frame) {
    PrintPreview(frame, printer->Get());
  });
  registry.Register(ID_FILE_PAGE_SETUP, [printer](CMainFrame& frame) {
    PageSetup(frame, printer->Get());
  });
  registry.Register(ID_FILE_PRINT_SETUP, [printer](CMainFrame& frame) {
    PrintSetup(frame, printer->Get());
  });
}

}  // namespace zel::app
