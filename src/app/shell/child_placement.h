// Where child windows go in the multi-document area: a size that fits the
// visible area and positions cascaded by one step, wrapping back to the top
// left corner before a window would leave the area.
#ifndef ZEL_APP_SHELL_CHILD_PLACEMENT_H_
#define ZEL_APP_SHELL_CHILD_PLACEMENT_H_

#include <QPoint>
#include <QRect>
#include <QSize>

namespace zel::app {

// The size of a child window in an area of `area`: three quarters of it,
// at least 480 x 360 while the area allows, never larger than the area.
QSize ChildWindowSize(const QSize& area);

// The top left corner of a window of `size` placed one `step` below and to
// the right of `previous`; the area's top left corner when it would not fit
// inside `area`.
QPoint NextCascadePosition(const QRect& area, const QPoint& previous,
                           const QSize& size, int step);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_CHILD_PLACEMENT_H_
