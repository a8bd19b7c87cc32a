// Where child windows go in the multi-document area: a size that fits the
// visible area, new windows cascaded by one step (wrapping back to the top
// left corner before a window would leave the area), and Window / Cascade,
// in which every title bar stays in sight.
#ifndef ZEL_APP_SHELL_CHILD_PLACEMENT_H_
#define ZEL_APP_SHELL_CHILD_PLACEMENT_H_

#include <QPoint>
#include <QRect>
#include <QSize>
#include <vector>

namespace zel::app {

// The size of a child window in an area of `area`: three quarters of it,
// at least 480 x 360 while the area allows, never larger than the area.
QSize ChildWindowSize(const QSize& area);

// The top left corner of a window of `size` placed one `step` below and to
// the right of `previous`; the area's top left corner when it would not fit
// inside `area`.
QPoint NextCascadePosition(const QRect& area, const QPoint& previous,
                           const QSize& size, int step);

// No cascaded window gets smaller than this while the area allows.
inline constexpr QSize kSmallestCascadedWindow(240, 180);

// Window / Cascade for `count` windows, back to front: each one `step`
// below and right of the one behind it, in side-by-side columns when one
// column would make the windows too small, so that no window covers another's
// title bar. The windows get the largest size up to `preferred` that lets
// them all fit (not below kSmallestCascadedWindow: with that many windows
// the last ones start again at the top left).
std::vector<QRect> CascadeLayout(const QRect& area, int count,
                                 const QSize& preferred, int step);

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_CHILD_PLACEMENT_H_
