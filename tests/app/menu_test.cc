// The menus against the command table, and the menu-state rules.
#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "app/shell/command_table.h"
#include "app_fixture.h"

namespace zel::app::testing {
namespace {

// Every visible menu item, in menu order, as "path|id|prompt|shortcut".
QStringList MenuRows(QMenuBar* bar) {
  QStringList rows;
  std::function<void(QMenu*, const QString&)> walk = [&](QMenu* menu,
                                                         const QString& path) {
    for (QAction* a : menu->actions()) {
      if (!a->isVisible() || a->isSeparator()) continue;
      const QString item =
          path + QLatin1Char('/') + QString(a->text()).replace("&&", "&");
      if (a->menu()) {
        walk(a->menu(), item);
        continue;
      }
      const int id = a->data().toInt();
      if (id >= ID_FILE_MRU_FILE1 && id < ID_FILE_MRU_FILE1 + 4) continue;
      rows << QStringLiteral("%1|%2|%3|%4")
                  .arg(item)
                  .arg(id)
                  .arg(a->statusTip(), a->shortcut().toString());
    }
  };
  for (QAction* top : bar->actions()) {
    if (top->isVisible()) walk(top->menu(), top->text());
  }
  return rows;
}

QStringList TopMenus(QMenuBar* bar) {
  QStringList titles;
  for (QAction* top : bar->actions()) {
    if (top->isVisible()) titles << top->text();
  }
  return titles;
}

TEST_F(AppFixture, MenuTreeAndPromptsFollowTheCommandTable) {
  const QStringList generate = {
      "Generate/Earthquake Record|32775|Generate Earthquake Record from real "
      "earthquake database|",
      "Generate/Earthquake Response Spectra|32776|Generate Earthquake "
      "Response Spectra|",
      "Generate/Design Response Spectra/IBC2000(ASCE7-98)|32811|"
      "IBC2000(ASCE7-98) Design Response Spectrum|",
      "Generate/Design Response Spectra/UBC(1997)|32790|UBC(1997) Design "
      "Response Spectrum|",
      "Generate/Design Response Spectra/UBC 88-94|32778|UBC 88-94 Design "
      "Response Spectrum|",
      "Generate/Design Response Spectra/ATC 3-06|32777|ATC 3-06 Design "
      "Response Spectrum|",
      "Generate/Design Response Spectra/NBC(1995)|32817|NBC(1995) Design "
      "Response Spectrum|",
      "Generate/Design Response Spectra/Eurocode-8(1996) Design|32812|"
      "EUROCODE-8(1996) Design Response Spectrum|",
      "Generate/Design Response Spectra/Eurocode-8(1996) Elastic|32818|"
      "EUROCODE-8(1996) Elastic Response Spectrum|",
      "Generate/Design Response Spectra/Japan(Arch.2000)|32814|"
      "Japan(Arch.2000) Design Response Spectrum|",
      "Generate/Design Response Spectra/China(GB50011-2001)|32813|"
      "China(GB50011-2001) Design Response Spectrum|",
      "Generate/Design Response Spectra/China Shanghai(DGJ08-9-2003)|32820|"
      "China Shanghai(DGJ08-9-2003) Design Response Spectrum|",
      "Generate/Design Response Spectra/China(JTJ004-89)|32815|"
      "China(JTJ004-89) Design Response Spectrum|",
      "Generate/Design Response Spectra/China(GBJ111-87)|32816|"
      "China(GBJ111-87) Design Response Spectrum|",
      "Generate/Design Response Spectra/KDS(41-17-00:2019)|32822||",
      "Generate/Design Response Spectra/KBC(2005)|32819|KBC(2005) Design "
      "Response Spectrum|",
      "Generate/Design Response Spectra/Korea(Arch.2000)|32809|"
      "Korea(Arch,2000) Design Response Spectrum|",
      "Generate/Design Response Spectra/Korea(Arch.1992)|32779|"
      "Korea(Arch,1992) Design Response Spectrum|",
      "Generate/Design Response Spectra/Korea(Bridge)|32807|Korea(Bridge) "
      "Design Response Spectrum|",
      "Generate/Design Response Spectra/KDS(17-10-00:2018)|32821||",
      "Generate/Design Response Spectra/NTC2018|32824||",
      "Generate/Design Response Spectra/Newmark & Hall|32780|Newmark & Hall "
      "Design Response Spectrum|",
  };
  const QStringList file_with_doc = {
      "File/Open|57601|Open an existing document|Ctrl+O",
      "File/Close|57602|Close the active document|",
      "File/Save|57603|Save the active document|Ctrl+S",
      "File/Print|57607|Print the active document|",
      "File/Page Setup|57605|Change the printing options|Ctrl+P",
      "File/Print Setup|57606|Change the printer and printing options|Ctrl+R",
      "File/Exit|57665|Quit the application|",
  };
  const QStringList option = {
      "Option/X Scale Log|32786|make x-axis scale logarithmic|",
      "Option/Y Scale Log|32787|make y-axis scale logarithmic|",
      "Option/X Grid|32788|y-axis grid on/off|",
      "Option/Y Grid|32789|y-axis grid on/off|",
      "Option/Diagonal Grid|32798||",
      "Option/Line Thickness|32784|Changes Line property|",
      "Option/Unit|32797|Unit conversion|",
      "Option/Edit Graph Title|32802|Edits title of graph|",
  };
  const QStringList view_always = {
      "View/Toolbar|59392|Show or hide the toolbar|",
      "View/Status Bar|59393|Show or hide the status bar|",
  };
  const QStringList view_doc = {
      "View/Zoom Out All|53500|Show the whole chart again|",
      "View/Time<->Frequency|32800|Change the domain between time-history "
      "and frequency|",
  };
  const QStringList window = {
      "Window/Cascade|57650|Arrange windows so they overlap|",
      "Window/Tile|57651|Arrange windows as non-overlapping tiles|",
  };
  const QString about =
      "Help/About ZEL|57664|Display program information, version number and "
      "copyright|";

  QMenuBar* bar = frame().menuBar();
  frame().UpdateCommandUI();
  // No document: no Option or Window menu, no document commands.
  EXPECT_EQ(TopMenus(bar), QStringList({"File", "Generate", "View", "Help"}));
  EXPECT_EQ(MenuRows(bar), QStringList() << file_with_doc[0] << file_with_doc[5]
                                         << file_with_doc[6] << generate
                                         << view_always << about);

  app_->NewDocument(kNewDocumentDesignSpectrum);
  EXPECT_EQ(TopMenus(bar), QStringList({"File", "Generate", "Option", "View",
                                        "Window", "Help"}));
  EXPECT_EQ(MenuRows(bar), QStringList()
                               << file_with_doc << generate << option
                               << view_always << view_doc << window << about);
}

TEST_F(AppFixture, MenuStatesFollowTheActiveDocument) {
  auto action = [this](int id) {
    frame().UpdateCommandUI();
    return frame().CommandAction(id);
  };

  // The tool bar keeps its buttons; Save needs a document, printing is not
  // there yet.
  frame().UpdateCommandUI();
  EXPECT_TRUE(frame().ToolButton(ID_FILE_OPEN)->isEnabled());
  EXPECT_FALSE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isVisible());

  // A tripartite chart: both log toggles disabled and checked, the diagonal
  // grid offered.
  CZELwDoc* tri = app_->NewDocument(1);
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_FALSE(frame().ToolButton(ID_FILE_PRINT)->isEnabled());
  tri->tripartite = 1;
  tri->log_x = tri->log_y = 1;
  tri->length_unit = 1;
  EXPECT_FALSE(action(ID_OPTION_XLOG)->isEnabled());
  EXPECT_FALSE(action(ID_OPTION_YLOG)->isEnabled());
  EXPECT_TRUE(action(ID_OPTION_XLOG)->isChecked());
  EXPECT_TRUE(action(ID_OPTION_YLOG)->isChecked());
  EXPECT_TRUE(action(ID_OPTION_DIAGONAL_GRID)->isEnabled());
  EXPECT_TRUE(action(ID_OPTION_DIAGONAL_GRID)->isChecked());
  EXPECT_TRUE(action(ID_OPTION_UNIT)->isEnabled());
  EXPECT_FALSE(action(ID_VIEW_TIME_FREQUENCY)->isEnabled());
  frame().OnCommand(ID_OPTION_DIAGONAL_GRID);
  EXPECT_FALSE(action(ID_OPTION_DIAGONAL_GRID)->isChecked());

  // A record in g: log toggles work, no diagonal grid, no unit conversion,
  // Time<->Frequency.
  CZELwDoc* record = app_->NewDocument(0);
  record->record_flag = 1;
  EXPECT_TRUE(action(ID_OPTION_XLOG)->isEnabled());
  EXPECT_FALSE(action(ID_OPTION_XLOG)->isChecked());
  EXPECT_FALSE(action(ID_OPTION_DIAGONAL_GRID)->isEnabled());
  EXPECT_FALSE(action(ID_OPTION_UNIT)->isEnabled());
  EXPECT_TRUE(action(ID_VIEW_TIME_FREQUENCY)->isEnabled());
  int switched = 0;
  frame().commands().Register(ID_VIEW_TIME_FREQUENCY,
                              [&](CMainFrame&) { ++switched; });
  action(ID_VIEW_TIME_FREQUENCY)->trigger();  // does nothing when disabled
  EXPECT_EQ(switched, 1);
  frame().OnCommand(ID_OPTION_XGRID);
  EXPECT_FALSE(action(ID_OPTION_XGRID)->isChecked());
  EXPECT_TRUE(action(ID_OPTION_YGRID)->isChecked());
  frame().OnCommand(ID_OPTION_YLOG);
  EXPECT_TRUE(action(ID_OPTION_YLOG)->isChecked());
  EXPECT_TRUE(record->chart.log_range);

  // A file read with a length unit: Unit enabled.
  CZELwDoc* length = app_->NewDocument(kNewDocumentFromFile);
  length->length_unit = 1;
  length->spectrum_kind = kLengthUnitFile;
  EXPECT_TRUE(action(ID_OPTION_UNIT)->isEnabled());
  EXPECT_FALSE(action(ID_VIEW_TIME_FREQUENCY)->isEnabled());
}

TEST_F(AppFixture, GenerateEntriesWaitForTheirDialogs) {
  frame().UpdateCommandUI();
  for (const CommandEntry& e : CommandTable()) {
    if (e.id != 0 && QLatin1String(e.menu) == QLatin1String("Generate")) {
      EXPECT_EQ(frame().CommandAction(e.id)->isEnabled(),
                frame().commands().Has(e.id))
          << e.text;
    }
  }
  // A registered dialog enables its entry and makes its document through
  // the application with its new-document mode.
  CZELwDoc* made = nullptr;
  frame().commands().Register(ID_DESIGN_UBC97, [&](CMainFrame& f) {
    made = f.app().NewDocument(kNewDocumentDesignSpectrum);
    made->title = "UBC(1997) Design Spectrum";
    made->SetTitle(made->title);
    made->UpdateAllViews();
  });
  frame().UpdateCommandUI();
  QAction* ubc = frame().CommandAction(ID_DESIGN_UBC97);
  ASSERT_TRUE(ubc->isEnabled());
  ubc->trigger();
  ASSERT_NE(made, nullptr);
  EXPECT_EQ(frame().ActiveDocument(), made);
  EXPECT_EQ(app_->new_document_mode(), kNewDocumentDesignSpectrum);
  EXPECT_EQ(child()->windowTitle(), "UBC(1997) Design Spectrum");
  EXPECT_EQ(frame().windowTitle(), "ZEL - UBC(1997) Design Spectrum");
}

}  // namespace
}  // namespace zel::app::testing
