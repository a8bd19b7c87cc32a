#include "app/shell/child_placement.h"

#include <algorithm>

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

std::vector<QRect> CascadeLayout(const QRect& area, int count,
                                 const QSize& preferred, int step) {
  if (count <= 0) return {};
  step = std::max(step, 1);
  // Try every number of rows per column; keep the largest windows. A column
  // is `rows` windows deep and as wide as its cascade, so columns never
  // overlap.
  int best_rows = 0;
  QSize best;
  for (int rows = count; rows >= 1; --rows) {
    const int columns = (count + rows - 1) / rows;
    const int diagonal = (rows - 1) * step;
    const QSize size(
        std::min(preferred.width(), area.width() / columns - diagonal),
        std::min(preferred.height(), area.height() - diagonal));
    if (size.width() < kSmallestCascadedWindow.width() ||
        size.height() < kSmallestCascadedWindow.height()) {
      continue;
    }
    if (best_rows == 0 ||
        size.width() * size.height() > best.width() * best.height()) {
      best_rows = rows;
      best = size;
    }
  }
  if (best_rows == 0) {
    // More windows than the area holds: the smallest size, one column that
    // wraps back to the top left.
    best = kSmallestCascadedWindow.boundedTo(area.size());
    best_rows = std::max(1, (area.height() - best.height()) / step + 1);
  }
  const int column_width = (best_rows - 1) * step + best.width();
  const int columns = std::max(1, area.width() / std::max(column_width, 1));
  std::vector<QRect> rects;
  rects.reserve(count);
  for (int i = 0; i < count; ++i) {
    const int column = (i / best_rows) % columns;
    const int row = i % best_rows;
    rects.emplace_back(
        area.topLeft() + QPoint(column * column_width + row * step, row * step),
        best);
  }
  return rects;
}

}  // namespace zel::app
