#include "core/document/menu_state.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(MenuStateTest, FollowsTheActiveDocument) {
  CZELwDoc plain;  // a design spectrum in g
  DocumentMenuState s = MenuStateOf(plain);
  EXPECT_EQ(s.x_scale_log, (CommandState{true, false}));
  EXPECT_EQ(s.x_grid, (CommandState{true, true}));
  EXPECT_EQ(s.diagonal_grid, (CommandState{false, true}));
  EXPECT_FALSE(s.unit.enabled || s.time_frequency.enabled);

  CZELwDoc tripartite;  // both axes stay logarithmic
  tripartite.tripartite = tripartite.log_x = tripartite.log_y = 1;
  tripartite.diagonal_grid = 0;
  tripartite.length_unit = 1;
  s = MenuStateOf(tripartite);
  EXPECT_EQ(s.y_scale_log, (CommandState{false, true}));
  EXPECT_EQ(s.diagonal_grid, (CommandState{true, false}));
  EXPECT_TRUE(s.unit.enabled);

  CZELwDoc record;
  record.record_flag = 1;
  record.grid_y = 0;
  s = MenuStateOf(record);
  EXPECT_TRUE(s.time_frequency.enabled);
  EXPECT_EQ(s.y_grid, (CommandState{true, false}));
}

}  // namespace
}  // namespace zel
