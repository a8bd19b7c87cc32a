#include "app/shell/main_frame.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPointer>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QStyle>
#include <QToolBar>
#include <algorithm>

#include "app/dialogs/about_box.h"
#include "app/shell/child_frame.h"
#include "app/shell/child_placement.h"
#include "app/shell/command_table.h"
#include "app/shell/zelw_app.h"
#include "core/document/c_format.h"
#include "core/document/menu_state.h"

namespace zel::app {
namespace {

bool IsCheckable(int id) {
  switch (id) {
    case ID_OPTION_XLOG:
    case ID_OPTION_YLOG:
    case ID_OPTION_XGRID:
    case ID_OPTION_YGRID:
    case ID_OPTION_DIAGONAL_GRID:
    case ID_VIEW_TOOLBAR:
    case ID_VIEW_STATUS_BAR:
      return true;
    default:
      return false;
  }
}

bool IsGenerate(const CommandEntry& e) {
  return QLatin1String(e.menu) == QLatin1String("Generate");
}

// `text` as a menu text with a mnemonic: the first letter of a word whose
// letter is not in `used` yet, else any such letter or digit. The letter
// taken is added to `used`. Ampersands of the text itself are shown as such.
QString WithMnemonic(const QString& text, QString& used) {
  QString menu_text = text;
  menu_text.replace(QLatin1Char('&'), QStringLiteral("&&"));
  for (int pass = 0; pass < 2; ++pass) {
    for (qsizetype i = 0; i < text.size(); ++i) {
      const QChar c = text[i].toUpper();
      const bool word_start = i == 0 || !text[i - 1].isLetterOrNumber();
      if (!c.isLetterOrNumber() || used.contains(c) ||
          (pass == 0 && !word_start)) {
        continue;
      }
      used += c;
      return menu_text.insert(i + text.left(i).count(QLatin1Char('&')),
                              QLatin1Char('&'));
    }
  }
  return menu_text;
}

void Apply(QAction* action, const CommandState& state) {
  action->setEnabled(state.enabled);
  action->setChecked(state.checked);
}

}  // namespace

CMainFrame::CMainFrame(CZELwApp& app, QWidget* parent)
    : QMainWindow(parent), app_(app), mdi_(new QMdiArea) {
  setWindowTitle(QStringLiteral("ZEL"));
  setObjectName(QStringLiteral("CMainFrame"));
  mdi_->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  mdi_->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setCentralWidget(mdi_);
  RegisterCommands(commands_);
  BuildMenus();
  BuildToolBar();
  BuildStatusBar();
  setAcceptDrops(true);
  connect(mdi_, &QMdiArea::subWindowActivated, this,
          &CMainFrame::OnActiveChildChanged);
  connect(&app_, &CZELwApp::RecentFilesChanged, this,
          &CMainFrame::RebuildRecentFiles);
  RebuildRecentFiles();
  UpdateCommandUI();
  // F10 reaches the menu bar, as on every desktop that has one.
  auto* f10 = new QShortcut(QKeySequence(Qt::Key_F10), this);
  connect(f10, &QShortcut::activated, this, [this] {
    for (QAction* top : menuBar()->actions()) {
      if (top->isVisible()) {
        menuBar()->setActiveAction(top);
        return;
      }
    }
  });

  resize(1000, 720);
  if (QScreen* screen = this->screen()) {
    const QRect area = screen->availableGeometry();
    resize(size().boundedTo(area.size()));
    move(area.center() - rect().center());
  }
}

CMainFrame::~CMainFrame() {
  // Closing the children activates others; nothing here may react any more.
  disconnect(mdi_, nullptr, this, nullptr);
  delete mdi_;
}

void CMainFrame::BuildMenus() {
  // Every menu and item gets a mnemonic letter, unique within its menu.
  std::map<QMenu*, QString> used;
  QString used_on_bar;
  for (const char* title : MenuTitles()) {
    menus_[QLatin1String(title)] =
        menuBar()->addMenu(WithMnemonic(QLatin1String(title), used_on_bar));
  }
  for (const CommandEntry& e : CommandTable()) {
    QMenu* menu = menus_.at(QLatin1String(e.menu));
    if (e.submenu) {
      if (!design_menu_) {
        design_menu_ =
            menu->addMenu(WithMnemonic(QLatin1String(e.submenu), used[menu]));
      }
      menu = design_menu_;
    }
    QAction* action =
        e.id == 0
            ? menu->addSeparator()
            : menu->addAction(WithMnemonic(QLatin1String(e.text), used[menu]));
    action->setData(e.id);
    action->setProperty("zel_scope", static_cast<int>(e.scope));
    if (e.id == 0) continue;
    action->setStatusTip(QLatin1String(e.prompt));
    if (*e.shortcut)
      action->setShortcut(QKeySequence(QLatin1String(e.shortcut)));
    action->setCheckable(IsCheckable(e.id));
    const int id = e.id;
    connect(action, &QAction::triggered, this, [this, id] { OnCommand(id); });
    actions_[id] = action;
  }
  QMenu* file = menus_.at(QStringLiteral("File"));
  recent_separator_ = file->insertSeparator(actions_.at(ID_APP_EXIT));
  window_separator_ = menus_.at(QStringLiteral("Window"))->addSeparator();
  for (const auto& [name, menu] : menus_) {
    connect(menu, &QMenu::aboutToShow, this, &CMainFrame::UpdateCommandUI);
  }
}

void CMainFrame::BuildToolBar() {
  tool_bar_ = addToolBar(QStringLiteral("Standard"));
  tool_bar_->setObjectName(QStringLiteral("Standard"));
  tool_bar_->setAllowedAreas(Qt::AllToolBarAreas);
  QStyle* s = style();
  const struct {
    int id;
    QIcon icon;
  } buttons[] = {
      {ID_FILE_OPEN, s->standardIcon(QStyle::SP_DialogOpenButton)},
      {ID_FILE_SAVE, s->standardIcon(QStyle::SP_DialogSaveButton)},
      {ID_FILE_PRINT,
       QIcon::fromTheme(QStringLiteral("document-print"),
                        s->standardIcon(QStyle::SP_FileDialogDetailedView))},
      {ID_APP_ABOUT, s->standardIcon(QStyle::SP_MessageBoxQuestion)},
  };
  // The buttons stay on the bar without a document, disabled, while the
  // menu items of document commands disappear; so they are actions of their
  // own that follow the menu items' enabled state.
  for (const auto& b : buttons) {
    QAction* item = actions_.at(b.id);
    item->setIcon(b.icon);
    QAction* button = tool_bar_->addAction(b.icon, item->text());
    button->setStatusTip(item->statusTip());
    button->setData(b.id);
    const int id = b.id;
    connect(button, &QAction::triggered, this, [this, id] { OnCommand(id); });
    tool_buttons_[id] = button;
  }
}

void CMainFrame::BuildStatusBar() {
  cursor_x_ = new QLabel;
  cursor_y_ = new QLabel;
  unit_ = new QLabel;
  for (QLabel* label : {cursor_x_, cursor_y_, unit_}) {
    label->setMinimumWidth(110);
    statusBar()->addPermanentWidget(label);
  }
  statusBar()->showMessage(QStringLiteral("Ready"));
}

void CMainFrame::RebuildRecentFiles() {
  QMenu* file = menus_.at(QStringLiteral("File"));
  for (QAction* a : recent_actions_) {
    file->removeAction(a);
    delete a;
  }
  recent_actions_.clear();
  const QStringList& files = app_.RecentFiles();
  for (int i = 0; i < files.size(); ++i) {
    auto* action =
        new QAction(QStringLiteral("&%1 %2").arg(i + 1).arg(files[i]), file);
    action->setStatusTip(QLatin1String(kRecentFilePrompt));
    action->setData(ID_FILE_MRU_FILE1 + i);
    connect(action, &QAction::triggered, this,
            [this, i] { app_.OpenRecentFile(i); });
    file->insertAction(recent_separator_, action);
    recent_actions_ << action;
  }
  // The separator stands between the list and Exit; with no list, the
  // separator above the list suffices.
  recent_separator_->setVisible(!files.isEmpty());
}

CChildFrame* CMainFrame::AddChild(std::unique_ptr<CZELwDoc> doc) {
  auto* child = new CChildFrame(app_, std::move(doc));
  mdi_->addSubWindow(child);
  connect(child, &CChildFrame::DocumentUpdated, this,
          &CMainFrame::OnActiveChildChanged);
  connect(&child->GetView(), &ChartWidget::CursorMoved, this,
          &CMainFrame::OnCursorMoved);
  // A size that fits the visible area, one step below and right of the
  // previous window; a set position also keeps Qt's own placement away.
  const QRect area = ChildArea();
  const QSize size = ChildWindowSize(area.size());
  const QList<QMdiSubWindow*> others =
      mdi_->subWindowList(QMdiArea::CreationOrder);
  QPoint position = area.topLeft();
  for (qsizetype i = others.size() - 1; i >= 0; --i) {
    if (others[i] != child && others[i]->isVisible()) {
      position =
          NextCascadePosition(area, others[i]->pos(), size, CascadeStep());
      break;
    }
  }
  child->setGeometry(QRect(position, size));
  child->show();
  mdi_->setActiveSubWindow(child);
  OnActiveChildChanged();
  return child;
}

QRect CMainFrame::ChildArea() const {
  // Before the main window is first shown its layout has not run; its own
  // size stands in for the area then.
  return mdi_->isVisible() ? mdi_->viewport()->rect() : QRect(QPoint(), size());
}

int CMainFrame::CascadeStep() const {
  const QStyle* s = style();
  return std::max(16, s->pixelMetric(QStyle::PM_TitleBarHeight) +
                          s->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth));
}

void CMainFrame::CascadeChildren() {
  // Qt's own cascade shrinks the windows to their size hints and lets later
  // windows cover earlier title bars; here the windows keep the size a new
  // one gets as far as every title bar stays in sight.
  QMdiSubWindow* active = mdi_->activeSubWindow();
  QList<QMdiSubWindow*> windows;
  for (QMdiSubWindow* window : mdi_->subWindowList(QMdiArea::StackingOrder)) {
    if (window->isHidden() || window->isMinimized()) continue;
    if (window->isMaximized()) window->showNormal();
    windows << window;
  }
  const QRect area = ChildArea();
  const std::vector<QRect> rects =
      CascadeLayout(area, static_cast<int>(windows.size()),
                    ChildWindowSize(area.size()), CascadeStep());
  for (qsizetype i = 0; i < windows.size(); ++i) {
    windows[i]->setGeometry(rects[i]);
    windows[i]->raise();
  }
  if (active) mdi_->setActiveSubWindow(active);
}

void CMainFrame::RebuildWindowList() {
  QMenu* menu = menus_.at(QStringLiteral("Window"));
  for (QAction* a : window_actions_) {
    menu->removeAction(a);
    a->deleteLater();  // it may be the one being triggered
  }
  window_actions_.clear();
  const QList<QMdiSubWindow*> windows =
      mdi_->subWindowList(QMdiArea::CreationOrder);
  QMdiSubWindow* active = mdi_->activeSubWindow();
  for (qsizetype i = 0; i < windows.size(); ++i) {
    // The first nine are reached by their digit.
    const QString number =
        i < 9 ? QStringLiteral("&%1").arg(i + 1) : QString::number(i + 1);
    QString title = windows[i]->windowTitle();
    auto* action = new QAction(
        number + QLatin1Char(' ') + title.replace(QLatin1Char('&'), "&&"),
        menu);
    action->setData(ID_WINDOW_FIRST_CHILD + static_cast<int>(i));
    action->setCheckable(true);
    action->setChecked(windows[i] == active);
    QPointer<QMdiSubWindow> window = windows[i];
    connect(action, &QAction::triggered, this, [this, window] {
      if (!window) return;
      if (window->isMinimized()) window->showNormal();
      mdi_->setActiveSubWindow(window);
    });
    menu->addAction(action);
    window_actions_ << action;
  }
  window_separator_->setVisible(!windows.isEmpty());
}

CChildFrame* CMainFrame::ActiveChild() const {
  return qobject_cast<CChildFrame*>(mdi_->currentSubWindow());
}

CZELwDoc* CMainFrame::ActiveDocument() const {
  CChildFrame* child = ActiveChild();
  return child ? &child->GetDocument() : nullptr;
}

QAction* CMainFrame::CommandAction(int id) const {
  const auto it = actions_.find(id);
  return it == actions_.end() ? nullptr : it->second;
}

QAction* CMainFrame::ToolButton(int id) const {
  const auto it = tool_buttons_.find(id);
  return it == tool_buttons_.end() ? nullptr : it->second;
}

void CMainFrame::OnCommand(int id) {
  CChildFrame* child = ActiveChild();
  switch (id) {
    case ID_FILE_OPEN:
      app_.OnFileOpen();
      break;
    case ID_APP_EXIT:
      close();
      break;
    case ID_APP_ABOUT: {
      AboutBox about(this);
      app_.RunDialog(about);
      break;
    }
    case ID_VIEW_TOOLBAR:
      tool_bar_->setVisible(!tool_bar_->isVisible());
      break;
    case ID_VIEW_STATUS_BAR:
      statusBar()->setVisible(!statusBar()->isVisible());
      break;
    case ID_WINDOW_CASCADE:
      CascadeChildren();
      break;
    case ID_WINDOW_TILE:
      mdi_->tileSubWindows();
      break;
    default:
      break;
  }
  if (child) {
    switch (id) {
      case ID_FILE_CLOSE:
        child->close();
        break;
      case ID_FILE_SAVE:
        child->OnFileSave();
        break;
      case ID_FILE_EXPORT:
        child->OnFileExport();
        break;
      case ID_EDIT_COPY:
        child->OnEditCopy();
        break;
      case ID_OPTION_XLOG:
        child->OnXScaleLog();
        break;
      case ID_OPTION_YLOG:
        child->OnYScaleLog();
        break;
      case ID_OPTION_XGRID:
        child->OnXGrid();
        break;
      case ID_OPTION_YGRID:
        child->OnYGrid();
        break;
      case ID_OPTION_DIAGONAL_GRID:
        child->OnDiagonalGrid();
        break;
      case ID_OPTION_LINE_THICKNESS:
        child->OnLineThickness();
        break;
      case ID_OPTION_UNIT:
        child->OnUnit();
        break;
      case ID_OPTION_EDIT_TITLE:
        child->OnEditGraphTitle();
        break;
      case ID_VIEW_ZOOM_OUT_ALL:
        child->OnZoomOutAll();
        break;
      default:
        break;
    }
  }
  // Generate dialogs and the Time<->Frequency switch are registered.
  commands_.Run(id, *this);
  UpdateCommandUI();
}

void CMainFrame::UpdateCommandUI() {
  const CZELwDoc* doc = ActiveDocument();
  const bool has_doc = doc != nullptr;
  RebuildWindowList();
  for (const auto& [name, menu] : menus_) {
    bool visible = false;
    for (QAction* a : menu->actions()) {
      if (a == recent_separator_ || recent_actions_.contains(a) ||
          a == window_separator_ || window_actions_.contains(a)) {
        continue;
      }
      const QVariant scope = a->property("zel_scope");
      if (!scope.isValid()) {  // a submenu
        visible = visible || a->isVisible();
        continue;
      }
      const auto s = static_cast<MenuScope>(scope.toInt());
      const bool shown = s == MenuScope::kAlways ||
                         (s == MenuScope::kWithDocument && has_doc) ||
                         (s == MenuScope::kWithoutDocument && !has_doc);
      a->setVisible(shown);
      visible = visible || (shown && !a->isSeparator());
    }
    menu->menuAction()->setVisible(visible);
  }

  for (const CommandEntry& e : CommandTable()) {
    if (e.id != 0 && IsGenerate(e)) {
      actions_.at(e.id)->setEnabled(commands_.Has(e.id));
    }
  }
  // Printing and page setup come with the printing support.
  for (int id : {ID_FILE_PRINT, ID_FILE_PRINT_PREVIEW, ID_FILE_PAGE_SETUP,
                 ID_FILE_PRINT_SETUP}) {
    actions_.at(id)->setEnabled(commands_.Has(id));
  }
  actions_.at(ID_FILE_SAVE)->setEnabled(has_doc);
  for (const auto& [id, button] : tool_buttons_) {
    QAction* item = actions_.at(id);
    button->setEnabled(item->isEnabled() && item->isVisible());
  }
  actions_.at(ID_VIEW_TOOLBAR)->setChecked(tool_bar_ && !tool_bar_->isHidden());
  actions_.at(ID_VIEW_STATUS_BAR)->setChecked(!statusBar()->isHidden());

  if (doc) {
    const DocumentMenuState state = MenuStateOf(*doc);
    Apply(actions_.at(ID_OPTION_XLOG), state.x_scale_log);
    Apply(actions_.at(ID_OPTION_YLOG), state.y_scale_log);
    Apply(actions_.at(ID_OPTION_XGRID), state.x_grid);
    Apply(actions_.at(ID_OPTION_YGRID), state.y_grid);
    Apply(actions_.at(ID_OPTION_DIAGONAL_GRID), state.diagonal_grid);
    actions_.at(ID_OPTION_UNIT)->setEnabled(state.unit.enabled);
    actions_.at(ID_VIEW_TIME_FREQUENCY)
        ->setEnabled(state.time_frequency.enabled &&
                     commands_.Has(ID_VIEW_TIME_FREQUENCY));
    actions_.at(ID_VIEW_RECORD_INFO)
        ->setEnabled(doc->record_flag == 1 &&
                     commands_.Has(ID_VIEW_RECORD_INFO));
  }
}

void CMainFrame::OnActiveChildChanged() {
  const CZELwDoc* doc = ActiveDocument();
  QString title = QStringLiteral("ZEL");
  if (doc)
    title += QStringLiteral(" - ") + QString::fromStdString(doc->window_title);
  setWindowTitle(title);
  unit_->setText(doc ? QString::fromStdString(doc->unit + " " + doc->type)
                     : QString());
  cursor_x_->clear();
  cursor_y_->clear();
  UpdateCommandUI();
}

void CMainFrame::OnCursorMoved(double x, double y) {
  cursor_x_->setText(QString::fromStdString(CFormat("X: %g", x)));
  cursor_y_->setText(QString::fromStdString(CFormat("Y: %g", y)));
}

void CMainFrame::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void CMainFrame::dropEvent(QDropEvent* event) {
  for (const QUrl& url : event->mimeData()->urls()) {
    if (url.isLocalFile()) app_.OpenDocumentFile(url.toLocalFile());
  }
  event->acceptProposedAction();
}

}  // namespace zel::app
