// CChildFrame: the window of one curve document. It owns the document and
// its view, and carries the document's commands (options, unit, title, save).
#ifndef ZEL_APP_SHELL_CHILD_FRAME_H_
#define ZEL_APP_SHELL_CHILD_FRAME_H_

#include <QMdiSubWindow>
#include <memory>

#include "app/shell/zelw_view.h"
#include "core/document/curve_document.h"

namespace zel::app {

class CZELwApp;

class CChildFrame : public QMdiSubWindow {
  Q_OBJECT

 public:
  CChildFrame(CZELwApp& app, std::unique_ptr<CZELwDoc> doc,
              QWidget* parent = nullptr);
  ~CChildFrame() override;

  CZELwDoc& GetDocument() { return *doc_; }
  CZELwView& GetView() { return *view_; }

  // Option commands: each changes the document, then updates its views.
  void OnXScaleLog();
  void OnYScaleLog();
  void OnXGrid();
  void OnYGrid();
  void OnDiagonalGrid();
  void OnLineThickness();
  void OnUnit();
  void OnEditGraphTitle();
  void OnZoomOutAll();
  // Save: the data file or an image, by the extension of the chosen name.
  void OnFileSave();
  // File / Export: PNG (of a chosen size and resolution), SVG, PDF or CSV,
  // by the extension of the chosen name; Save's own rule is untouched.
  void OnFileExport();
  // Edit / Copy: the chart on the clipboard as a picture and as SVG.
  void OnEditCopy();

 signals:
  // The document changed and its views were updated.
  void DocumentUpdated();

 private:
  CZELwApp& app_;
  std::unique_ptr<CZELwDoc> doc_;
  CZELwView* view_;
};

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_CHILD_FRAME_H_
