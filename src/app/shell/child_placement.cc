#include "app/shell/child_placement.h"

namespace zel::app {

QSize ChildWindowSize(const QSize& area) {
  const QSize three_quarters(area.width() * 3 / 4, area.height() * 3 / 4);
  return three_quarters.expandedTo(QSize(480, 360)).boundedTo(area);
}

QPoint NextCascadePosition(const QRect& area, const QPoint& previous,
                           const QSize& size, int step) {
  const QRect next(previous + QPoint(step, step), size);
  return area.contains(next) ? next.topLeft() : area.topLeft();
}

}  // namespace zel::app
