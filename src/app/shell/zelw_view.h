// CZELwView: the view of a curve document. It draws the document's chart and
// carries the chart's context menu (Add Label).
#ifndef ZEL_APP_SHELL_ZELW_VIEW_H_
#define ZEL_APP_SHELL_ZELW_VIEW_H_

#include "app/plot/chart_widget.h"
#include "app/shell/interaction.h"
#include "core/document/curve_document.h"

namespace zel::app {

class CZELwView : public ChartWidget {
  Q_OBJECT

 public:
  CZELwView(CZELwDoc& doc, Interaction& ui, QWidget* parent = nullptr);

  CZELwDoc& GetDocument() { return doc_; }

  // Add Label at `pos` of the client area: asks for the label in
  // DLG_CTXLABEL and places it there, in per cent of the client area.
  void OnAddLabel(const QPoint& pos);

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  CZELwDoc& doc_;
  Interaction& ui_;
};

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_ZELW_VIEW_H_
