// CMainFrame: the main window. A multi-document area holds one CChildFrame
// per document; the menus come from the command table, each with its
// mnemonic, and show the document commands only while a document is active;
// the Window menu lists the open windows; the status bar shows each
// command's prompt and three indicators (cursor X, cursor Y, unit).
#ifndef ZEL_APP_SHELL_MAIN_FRAME_H_
#define ZEL_APP_SHELL_MAIN_FRAME_H_

#include <QMainWindow>
#include <map>
#include <memory>

#include "app/shell/command_registry.h"
#include "core/document/curve_document.h"

class QAction;
class QLabel;
class QMdiArea;
class QMenu;
class QToolBar;

namespace zel::app {

class CChildFrame;
class CZELwApp;

class CMainFrame : public QMainWindow {
  Q_OBJECT

 public:
  explicit CMainFrame(CZELwApp& app, QWidget* parent = nullptr);
  ~CMainFrame() override;

  CZELwApp& app() { return app_; }
  CommandRegistry& commands() { return commands_; }
  QMdiArea* mdi_area() { return mdi_; }

  // Makes `doc` the document of a new child window and activates it.
  CChildFrame* AddChild(std::unique_ptr<CZELwDoc> doc);
  CChildFrame* ActiveChild() const;
  CZELwDoc* ActiveDocument() const;

  // The menu item of a command id, or nullptr.
  QAction* CommandAction(int id) const;
  // The tool bar button of a command id, or nullptr.
  QAction* ToolButton(int id) const;
  // Runs a command as its menu item would.
  void OnCommand(int id);
  // Applies the menu rules for the active document (or none): which items
  // exist, which are enabled and checked.
  void UpdateCommandUI();

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void BuildMenus();
  void BuildToolBar();
  void BuildStatusBar();
  void RebuildRecentFiles();
  void OnActiveChildChanged();
  void OnCursorMoved(double x, double y);
  // The visible part of the multi-document area, in its children's
  // coordinates.
  QRect ChildArea() const;
  // The offset between cascaded windows: one title bar.
  int CascadeStep() const;
  // Window / Cascade: every window one step below and right of the one
  // behind it, every title bar in sight.
  void CascadeChildren();
  // The Window menu's list of the open windows; choosing one activates it.
  void RebuildWindowList();

  CZELwApp& app_;
  CommandRegistry commands_;
  QMdiArea* mdi_;
  std::map<int, QAction*> actions_;
  std::map<int, QAction*> tool_buttons_;
  std::map<QString, QMenu*> menus_;
  QMenu* design_menu_ = nullptr;
  QAction* recent_separator_ = nullptr;
  QList<QAction*> recent_actions_;
  QAction* window_separator_ = nullptr;
  QList<QAction*> window_actions_;
  QToolBar* tool_bar_ = nullptr;
  QLabel* cursor_x_ = nullptr;
  QLabel* cursor_y_ = nullptr;
  QLabel* unit_ = nullptr;
};

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_MAIN_FRAME_H_
