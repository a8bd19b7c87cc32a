// Every output of a chart (PNG, SVG, PDF, CSV, the clipboard, the printer
// and its preview) from one document of three curves and a free label.
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QXmlStreamReader>

#include "app/plot/chart_export.h"
#include "app/plot/chart_render.h"
#include "app/shell/command_table.h"
#include "app/shell/headless_export.h"
#include "app_fixture.h"
#include "core/document/data_file.h"
#include "core/document/test_files.h"
#include "core/records/chart_setup.h"

namespace zel::app::testing {
namespace {

const QColor kCurveColours[] = {{255, 0, 0}, {0, 128, 0}, {0, 0, 255}};

class ChartOutput : public AppFixture {
 protected:
  // Curve c a level line at c + 1 from x = 0 to 4.
  CZELwView& MakeChart() {
    CZELwDoc* doc = app_->NewDocument(kNewDocumentDesignSpectrum);
    for (int c = 0; c < 3; ++c) {
      for (int i = 0; i <= 40; ++i) doc->SetPoint(i, c, 0.1 * i, c + 1.0, 1);
    }
    doc->title = "Three Level Lines";
    doc->unit = "GRAV";
    doc->type = "ACC";
    doc->curve_count = 3;
    doc->subtitle = "Levels 1, 2 and 3";
    doc->SetAxisTitle(0, "Period(sec)");
    doc->SetAxisTitle(1, "Sa(g)");
    SetUpChart(*doc);
    ChartLabel label;
    label.content = "Free note";
    label.x_percent = 10;
    label.y_percent = 85;
    label.style = ChartLabel::kBoxed;
    doc->AddLabel(label);
    doc->UpdateAllViews();
    return child()->GetView();
  }
  QString Path(const char* name) {
    return QString::fromStdString((dir_ / name).string());
  }
  zel::testing::TempDir dir_;
};

QString PdfText(const QString& path) {
  QProcess p;
  p.start(QStringLiteral("pdftotext"), {path, QStringLiteral("-")});
  p.waitForFinished();
  return QString::fromUtf8(p.readAllStandardOutput()).simplified();
}

// Whether a pixel within three rows of (x, y) is nearly `colour`.
bool CurveNear(const QImage& image, int x, int y, const QColor& colour) {
  for (int dy = -3; dy <= 3; ++dy) {
    const QColor c = image.pixelColor(x, y + dy);
    if (std::abs(c.red() - colour.red()) +
            std::abs(c.green() - colour.green()) +
            std::abs(c.blue() - colour.blue()) <
        60) {
      return true;
    }
  }
  return false;
}

TEST_F(ChartOutput, EveryFormatHoldsTheChart) {
  CZELwView& view = MakeChart();
  const QSize window = view.viewport().size();
  // Twice the pixels at twice the resolution: the window's layout, sharper.
  ASSERT_TRUE(ExportPng(view, Path("c.png"), window * 2, 2.0 * ChartDpi()));
  const QImage png(Path("c.png"));
  ASSERT_EQ(png.size(), window * 2);
  EXPECT_NEAR(png.dotsPerMeterX(), 2.0 * ChartDpi() / 0.0254, 1.0);
  for (int c = 0; c < 3; ++c) {
    for (double x : {0.5, 2.0, 3.5}) {
      EXPECT_TRUE(CurveNear(png, 2 * int(view.xAxis->coordToPixel(x)),
                            2 * int(view.yAxis->coordToPixel(c + 1.0)),
                            kCurveColours[c]))
          << c << " at " << x;
    }
  }
  EXPECT_EQ(png.pixelColor(2, 2), QColor(Qt::white));

  ASSERT_TRUE(ExportSvg(view, Path("c.svg")));
  QFile svg_file(Path("c.svg"));
  ASSERT_TRUE(svg_file.open(QIODevice::ReadOnly));
  QXmlStreamReader svg(&svg_file);
  QString text;
  while (!svg.atEnd()) {
    if (svg.readNext() == QXmlStreamReader::Characters) text += svg.text();
  }
  EXPECT_FALSE(svg.hasError()) << svg.errorString().toStdString();
  EXPECT_TRUE(text.contains("Three Level Lines"));
  EXPECT_TRUE(text.contains("Free note"));

  ASSERT_TRUE(ExportPdf(view, Path("c.pdf")));
  const QString pdf = PdfText(Path("c.pdf"));
  EXPECT_TRUE(pdf.contains("Three Level Lines")) << pdf.toStdString();
  EXPECT_TRUE(pdf.contains("Free note"));

  // The headless export through a saved document: the same formats.
  MessageLog log;
  ASSERT_TRUE(
      WriteDataFile(view.GetDocument(), (dir_ / "c.zel").string(), log));
  for (const char* out : {"h.svg", "h.pdf", "h.png", "h.csv"}) {
    EXPECT_EQ(RunExport({"--export", Path("c.zel"), Path(out)}), 0) << out;
  }
  EXPECT_TRUE(PdfText(Path("h.pdf")).contains("Three Level Lines"));
  QFile csv(Path("h.csv"));
  ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
  const QList<QByteArray> rows = csv.readAll().split('\n');
  ASSERT_GE(rows.size(), 3);
  EXPECT_EQ(rows[1], "0,1,0,2,0,3");
  EXPECT_EQ(rows[0].count(','), 5);
}

TEST_F(ChartOutput, CopyPutsPictureAndSvgOnTheClipboard) {
  CZELwView& view = MakeChart();
  frame().OnCommand(ID_EDIT_COPY);
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  ASSERT_NE(data, nullptr);
  const QImage image = qvariant_cast<QImage>(data->imageData());
  EXPECT_EQ(image.size(), view.viewport().size());
  EXPECT_TRUE(data->data("image/svg+xml").contains("Three Level Lines"));
}

TEST_F(ChartOutput, PrintsToAPdfFileAndPreviewsOnePage) {
  MakeChart();
  const QString pdf = Path("printed.pdf");
  int pages = -1;
  answer_ = [&](QDialog& d) {
    if (auto* preview = qobject_cast<QPrintPreviewDialog*>(&d)) {
      auto* widget = preview->findChild<QPrintPreviewWidget*>();
      widget->updatePreview();
      pages = widget->pageCount();
      return int(QDialog::Accepted);
    }
    QPrinter* printer = qobject_cast<QPrintDialog*>(&d)->printer();
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setOutputFileName(pdf);
    return int(QDialog::Accepted);
  };
  for (int id : {ID_FILE_PRINT, ID_FILE_PRINT_PREVIEW, ID_FILE_PAGE_SETUP,
                 ID_FILE_PRINT_SETUP}) {
    EXPECT_TRUE(frame().CommandAction(id)->isEnabled()) << id;
  }
  frame().OnCommand(ID_FILE_PRINT);
  frame().OnCommand(ID_FILE_PRINT_PREVIEW);
  EXPECT_EQ(dialog_titles_, QStringList({"Print", "Print Preview"}));
  EXPECT_EQ(pages, 1);
  EXPECT_TRUE(messages().empty());
  EXPECT_TRUE(PdfText(pdf).contains("Three Level Lines"));
  // The chart fills the printable area of the landscape page.
  QProcess p;
  p.start("pdftoppm", {"-r", "20", "-png", "-singlefile", pdf, Path("page")});
  ASSERT_TRUE(p.waitForFinished());
  const QImage page(Path("page.png"));
  ASSERT_GT(page.width(), page.height());
  int left = page.width(), right = 0;
  for (int x = 0; x < page.width(); ++x) {
    for (int y = 0; y < page.height(); ++y) {
      if (page.pixelColor(x, y) != QColor(Qt::white)) {
        left = std::min(left, x);
        right = std::max(right, x);
      }
    }
  }
  EXPECT_GT(right - left, page.width() * 0.8);
}

}  // namespace
}  // namespace zel::app::testing
