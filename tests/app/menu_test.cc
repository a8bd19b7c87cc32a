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

// Every visible item by its path as shown ("File/Open"), menus included;
// checks that each item of a menu has a mnemonic of its own.
std::map<QString, QAction*> Items(const QList<QAction*>& actions,
                                  const QString& path = {}) {
  std::map<QString, QAction*> items;
  QList<QKeySequence> used;
  for (QAction* a : actions) {
    if (!a->isVisible() || a->isSeparator()) continue;
    const QKeySequence key = QKeySequence::mnemonic(a->text());
    const QString item = path + a->iconText();  // "&&" shows as "&"
    EXPECT_TRUE(!key.isEmpty() && !used.contains(key)) << item.toStdString();
    used << key;
    items[item] = a;
    if (a->menu()) items.merge(Items(a->menu()->actions(), item + '/'));
  }
  return items;
}

TEST_F(AppFixture, MenusFollowTheCommandTableWithMnemonics) {
  for (const bool with_doc : {false, true}) {
    if (with_doc) app_->NewDocument(kNewDocumentDesignSpectrum);
    frame().UpdateCommandUI();
    std::map<QString, QAction*> items = Items(frame().menuBar()->actions());
    EXPECT_EQ(items.count("Option") + items.count("Window"), with_doc ? 2 : 0);
    for (const CommandEntry& e : CommandTable()) {
      // Shown texts drop a dialog entry's "..." as iconText() does.
      const QString path = QString("%1/%2%3").arg(
          e.menu, e.submenu ? QString(e.submenu) + '/' : "",
          QString(e.text).remove(QLatin1String("...")));
      const auto it = items.find(path);
      if (e.id == 0 || (e.scope != MenuScope::kAlways &&
                        (e.scope == MenuScope::kWithDocument) != with_doc)) {
        EXPECT_TRUE(e.id == 0 || it == items.end()) << path.toStdString();
        continue;
      }
      ASSERT_NE(it, items.end()) << path.toStdString();
      EXPECT_EQ(it->second->data().toInt(), e.id);
      EXPECT_EQ(it->second->statusTip(), e.prompt);
      EXPECT_EQ(it->second->shortcut(), QKeySequence(e.shortcut));
      if (QLatin1String(e.menu) == QLatin1String("Generate")) {
        // Enabled once its dialog is registered.
        EXPECT_EQ(it->second->isEnabled(), frame().commands().Has(e.id));
      }
      items.erase(it);
    }
    for (const auto& [path, action] : items) {  // menus and the window list
      EXPECT_TRUE(action->menu() ||
                  action->data().toInt() >= ID_WINDOW_FIRST_CHILD)
          << path.toStdString();
    }
  }
  // Kept as it is: both grid prompts name the y axis.
  EXPECT_STREQ(FindCommand(ID_OPTION_XGRID)->prompt, "y-axis grid on/off");
}

TEST_F(AppFixture, KeyboardReachesTheMenus) {
  QMenuBar* bar = frame().menuBar();
  frame().activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&frame()));
  QTest::keyClick(&frame(), Qt::Key_G, Qt::AltModifier);
  ASSERT_NE(bar->activeAction(), nullptr);
  EXPECT_EQ(bar->activeAction()->iconText(), "Generate");
  bar->activeAction()->menu()->close();
  bar->setActiveAction(nullptr);
  QTest::keyClick(&frame(), Qt::Key_F10);
  ASSERT_NE(bar->activeAction(), nullptr);
  EXPECT_EQ(bar->activeAction()->iconText(), "File");
}

TEST_F(AppFixture, WindowMenuListsAndActivatesTheWindows) {
  for (int i = 0; i < 3; ++i) app_->NewDocument(kNewDocumentDesignSpectrum);
  QList<QAction*> list;
  auto texts = [&] {
    frame().UpdateCommandUI();
    list = Items(frame().menuBar()->actions()).at("Window")->menu()->actions();
    list.removeIf(
        [](QAction* a) { return a->data().toInt() < ID_WINDOW_FIRST_CHILD; });
    QStringList rows;
    for (QAction* a : list) rows << a->text() + (a->isChecked() ? "*" : "");
    return rows;
  };
  EXPECT_EQ(texts(), QStringList({"&1 ZEL1", "&2 ZEL2", "&3 ZEL3*"}));
  list[0]->trigger();
  EXPECT_EQ(frame().ActiveDocument()->window_title, "ZEL1");
  EXPECT_EQ(texts(), QStringList({"&1 ZEL1*", "&2 ZEL2", "&3 ZEL3"}));
  child()->close();
  EXPECT_EQ(texts().size(), 2);
}

TEST_F(AppFixture, MenuStatesFollowTheActiveDocument) {
  frame().UpdateCommandUI();  // no document: the tool bar keeps its buttons
  EXPECT_FALSE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isVisible());
  CZELwDoc* tri = app_->NewDocument(1);
  tri->tripartite = tri->log_x = tri->log_y = tri->length_unit = 1;
  app_->NewDocument(0)->record_flag = 1;
  frame().commands().Register(ID_VIEW_TIME_FREQUENCY, [](CMainFrame&) {});
  for (QMdiSubWindow* w : frame().mdi_area()->subWindowList()) {
    frame().mdi_area()->setActiveSubWindow(w);
    frame().UpdateCommandUI();
    const DocumentMenuState s = MenuStateOf(*frame().ActiveDocument());
    for (const auto& [id, state] :
         {std::pair{ID_OPTION_XLOG, s.x_scale_log},
          {ID_OPTION_YLOG, s.y_scale_log},
          {ID_OPTION_XGRID, s.x_grid},
          {ID_OPTION_YGRID, s.y_grid},
          {ID_OPTION_DIAGONAL_GRID, s.diagonal_grid},
          {ID_OPTION_UNIT, s.unit},
          {ID_VIEW_TIME_FREQUENCY, s.time_frequency}}) {
      EXPECT_EQ(frame().CommandAction(id)->isEnabled(), state.enabled) << id;
      if (frame().CommandAction(id)->isCheckable()) {
        EXPECT_EQ(frame().CommandAction(id)->isChecked(), state.checked) << id;
      }
    }
  }
  EXPECT_TRUE(frame().ToolButton(ID_FILE_SAVE)->isEnabled());
  EXPECT_TRUE(frame().ToolButton(ID_FILE_PRINT)->isEnabled());
  // A Generate dialog registered later enables its entry and makes its
  // document through the application with its new-document mode.
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
