// The menus against the command table, their mnemonics and keys, the Window
// menu's list of windows, and the menu states of the active document.
#include <QAction>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <map>

#include "app/shell/command_table.h"
#include "app_fixture.h"
#include "core/document/menu_state.h"

namespace zel::app::testing {
namespace {

// A menu text as shown, and its mnemonic letter (0 when it has none).
QString Shown(const QString& text, QChar* mnemonic) {
  QString out;
  *mnemonic = QChar();
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && ++i < text.size() && text[i] != '&') {
      *mnemonic = text[i].toUpper();
    }
    if (i < text.size()) out += text[i];
  }
  return out;
}

// Every visible item by its path ("File/Open"), top menus included; checks
// on the way that each item of a menu has a mnemonic of its own.
std::map<QString, QAction*> VisibleItems(const QList<QAction*>& actions,
                                         const QString& path = {}) {
  std::map<QString, QAction*> items;
  QString mnemonics;
  for (QAction* a : actions) {
    if (!a->isVisible() || a->isSeparator()) continue;
    QChar mnemonic;
    const QString item = path + Shown(a->text(), &mnemonic);
    EXPECT_FALSE(mnemonic.isNull()) << item.toStdString();
    EXPECT_FALSE(mnemonics.contains(mnemonic)) << item.toStdString();
    mnemonics += mnemonic;
    items[item] = a;
    if (a->menu()) items.merge(VisibleItems(a->menu()->actions(), item + '/'));
  }
  return items;
}

TEST_F(AppFixture, MenusFollowTheCommandTableWithMnemonics) {
  for (const bool with_doc : {false, true}) {
    if (with_doc) app_->NewDocument(kNewDocumentDesignSpectrum);
    frame().UpdateCommandUI();
    std::map<QString, QAction*> items =
        VisibleItems(frame().menuBar()->actions());
    // The Option and Window menus only with a document.
    EXPECT_EQ(items.count("Option"), with_doc ? 1u : 0u);
    EXPECT_EQ(items.count("Window"), with_doc ? 1u : 0u);
    for (const CommandEntry& e : CommandTable()) {
      if (e.id == 0) continue;
      const QString path = QString("%1/%2%3").arg(
          e.menu, e.submenu ? QString(e.submenu) + '/' : QString(), e.text);
      const auto it = items.find(path);
      const bool shown = e.scope == MenuScope::kAlways ||
                         (e.scope == MenuScope::kWithDocument) == with_doc;
      ASSERT_EQ(it != items.end(), shown) << path.toStdString();
      if (!shown) continue;
      EXPECT_EQ(it->second->data().toInt(), e.id);
      EXPECT_EQ(it->second->statusTip(), e.prompt);
      EXPECT_EQ(it->second->shortcut(), QKeySequence(e.shortcut));
      items.erase(it);
    }
    // Left: the menus themselves and the Window menu's list.
    for (const auto& [path, action] : items) {
      EXPECT_TRUE(action->menu() ||
                  action->data().toInt() >= ID_WINDOW_FIRST_CHILD)
          << path.toStdString();
    }
  }
  // Texts kept as they are: both grid prompts name the y axis.
  EXPECT_STREQ(FindCommand(ID_OPTION_XGRID)->prompt, "y-axis grid on/off");
}

TEST_F(AppFixture, KeyboardReachesTheMenus) {
  QMenuBar* bar = frame().menuBar();
  QChar mnemonic;
  frame().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
  QTest::keyClick(&frame(), Qt::Key_G, Qt::AltModifier);
  ASSERT_NE(bar->activeAction(), nullptr);
  EXPECT_EQ(Shown(bar->activeAction()->text(), &mnemonic), "Generate");
  bar->activeAction()->menu()->close();
  bar->setActiveAction(nullptr);
  QTest::keyClick(&frame(), Qt::Key_F10);
  ASSERT_NE(bar->activeAction(), nullptr);
  EXPECT_EQ(Shown(bar->activeAction()->text(), &mnemonic), "File");
}

TEST_F(AppFixture, WindowMenuListsAndActivatesTheWindows) {
  for (int i = 0; i < 3; ++i) app_->NewDocument(kNewDocumentDesignSpectrum);
  auto list = [this] {
    frame().UpdateCommandUI();
    QList<QAction*> entries;
    for (QAction* a : VisibleItems(frame().menuBar()->actions())
                          .at("Window")
                          ->menu()
                          ->actions()) {
      if (a->data().toInt() >= ID_WINDOW_FIRST_CHILD) entries << a;
    }
    return entries;
  };
  auto texts = [&list] {
    QStringList rows;
    for (QAction* a : list()) rows << a->text() + (a->isChecked() ? "*" : "");
    return rows;
  };
  EXPECT_EQ(texts(), QStringList({"&1 ZEL1", "&2 ZEL2", "&3 ZEL3*"}));
  list()[0]->trigger();
  EXPECT_EQ(frame().ActiveDocument()->window_title, "ZEL1");
  EXPECT_EQ(texts(), QStringList({"&1 ZEL1*", "&2 ZEL2", "&3 ZEL3"}));
  child()->close();
  EXPECT_EQ(list().size(), 2);
}

TEST_F(AppFixture, MenuStatesFollowTheActiveDocument) {
  frame().UpdateCommandUI();  // no document: the tool bar keeps its buttons
  EXPECT_FALSE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isVisible());
  CZELwDoc* tri = app_->NewDocument(1);
  tri->tripartite = tri->log_x = tri->log_y = tri->length_unit = 1;
  CZELwDoc* record = app_->NewDocument(0);
  record->record_flag = 1;
  record->grid_x = 0;
  frame().commands().Register(ID_VIEW_TIME_FREQUENCY, [](CMainFrame&) {});
  for (CZELwDoc* doc : {tri, record, tri}) {
    for (QMdiSubWindow* w : frame().mdi_area()->subWindowList()) {
      if (&static_cast<CChildFrame*>(w)->GetDocument() == doc) {
        frame().mdi_area()->setActiveSubWindow(w);
      }
    }
    frame().UpdateCommandUI();
    const DocumentMenuState s = MenuStateOf(*doc);
    const std::pair<int, CommandState> rows[] = {
        {ID_OPTION_XLOG, s.x_scale_log},
        {ID_OPTION_YLOG, s.y_scale_log},
        {ID_OPTION_XGRID, s.x_grid},
        {ID_OPTION_YGRID, s.y_grid},
        {ID_OPTION_DIAGONAL_GRID, s.diagonal_grid}};
    for (const auto& [id, state] : rows) {
      EXPECT_EQ(frame().CommandAction(id)->isEnabled(), state.enabled) << id;
      EXPECT_EQ(frame().CommandAction(id)->isChecked(), state.checked) << id;
    }
    EXPECT_EQ(frame().CommandAction(ID_OPTION_UNIT)->isEnabled(),
              s.unit.enabled);
    EXPECT_EQ(frame().CommandAction(ID_VIEW_TIME_FREQUENCY)->isEnabled(),
              s.time_frequency.enabled);
  }
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_FALSE(frame().ToolButton(ID_FILE_PRINT)->isEnabled());
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
  // A dialog registered later enables its entry and makes its document
  // through the application with its new-document mode.
  EXPECT_FALSE(frame().CommandAction(ID_DESIGN_NBC1995)->isEnabled());
  frame().commands().Register(ID_DESIGN_NBC1995, [](CMainFrame& f) {
    CZELwDoc* doc = f.app().NewDocument(kNewDocumentDesignSpectrum);
    doc->SetTitle("NBC(1995)");
    doc->UpdateAllViews();
  });
  frame().UpdateCommandUI();
  frame().CommandAction(ID_DESIGN_NBC1995)->trigger();
  EXPECT_EQ(app_->new_document_mode(), kNewDocumentDesignSpectrum);
  EXPECT_EQ(frame().windowTitle(), "ZEL - NBC(1995)");
}

}  // namespace
}  // namespace zel::app::testing
