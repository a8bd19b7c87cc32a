#include "core/document/menu_state.h"

namespace zel {

DocumentMenuState MenuStateOf(const CZELwDoc& doc) {
  DocumentMenuState state;
  state.x_scale_log = {doc.tripartite == 0, doc.log_x == 1};
  state.y_scale_log = {doc.tripartite == 0, doc.log_y == 1};
  state.x_grid = {true, doc.grid_x == 1};
  state.y_grid = {true, doc.grid_y == 1};
  state.diagonal_grid = {doc.tripartite == 1, doc.diagonal_grid == 1};
  state.unit = {doc.length_unit == 1, false};
  state.time_frequency = {doc.record_flag == 1, false};
  return state;
}

}  // namespace zel
