// Enabled and checked states of the document commands, read from the active
// document each time the menus are shown.
#ifndef ZEL_CORE_DOCUMENT_MENU_STATE_H_
#define ZEL_CORE_DOCUMENT_MENU_STATE_H_

#include "core/document/curve_document.h"

namespace zel {

struct CommandState {
  bool enabled = true;
  bool checked = false;
  friend bool operator==(const CommandState&, const CommandState&) = default;
};

struct DocumentMenuState {
  CommandState x_scale_log;
  CommandState y_scale_log;
  CommandState x_grid;
  CommandState y_grid;
  CommandState diagonal_grid;
  CommandState unit;
  CommandState time_frequency;
};

// A tripartite chart keeps both axes logarithmic, so its log toggles are
// disabled and only it offers the diagonal grid; only length units convert;
// only records switch between time and frequency.
DocumentMenuState MenuStateOf(const CZELwDoc& doc);

}  // namespace zel

#endif  // ZEL_CORE_DOCUMENT_MENU_STATE_H_
