#include "app/shell/zelw_view.h"

#include <QContextMenuEvent>
#include <QMenu>

#include "app/dialogs/dlg_ctxlabel.h"
#include "app/shell/command_table.h"
#include "core/plot/chart_geometry.h"

namespace zel::app {

CZELwView::CZELwView(CZELwDoc& doc, Interaction& ui, QWidget* parent)
    : ChartWidget(doc, parent), doc_(doc), ui_(ui) {}

void CZELwView::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu(this);
  QAction* add_label = menu.addAction(QStringLiteral("Add Label"));
  add_label->setData(ID_ADD_LABEL);
  const QPoint pos = event->pos();
  connect(add_label, &QAction::triggered, this,
          [this, pos] { OnAddLabel(pos); });
  menu.exec(event->globalPos());
}

void CZELwView::OnAddLabel(const QPoint& pos) {
  DLG_CTXLABEL dialog(this);
  if (ui_.run_dialog(dialog) != QDialog::Accepted) return;
  const PercentPoint p =
      PercentOfClientArea(pos.x(), pos.y(), width(), height());
  ChartLabel label;
  label.title = dialog.Title().toStdString();
  label.content = dialog.Content().toStdString();
  label.x_percent = p.x;
  label.y_percent = p.y;
  label.style = dialog.Style();
  doc_.AddLabel(std::move(label));  // carriage returns go here
  Rebuild();
}

}  // namespace zel::app
