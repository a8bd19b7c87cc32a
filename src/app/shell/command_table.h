// The command table of the main window: every menu item with its command id,
// status-bar prompt and accelerator, in menu order. The menus, the tool bar
// and the tests are built from this one table.
#ifndef ZEL_APP_SHELL_COMMAND_TABLE_H_
#define ZEL_APP_SHELL_COMMAND_TABLE_H_

#include <span>

namespace zel::app {

// Command ids. The framework's standard commands keep the framework's ids.
enum CommandId : int {
  ID_GENERATE_EQ_RECORD = 32775,
  ID_GENERATE_RESPONSE_SPECTRA = 32776,
  // A record against a design code: commands on the active document.
  ID_ADD_DESIGN_SPECTRUM = 32830,
  ID_SCALE_TO_DESIGN = 32831,
  ID_DESIGN_IBC2000 = 32811,
  ID_DESIGN_UBC97 = 32790,
  ID_DESIGN_UBC = 32778,
  ID_DESIGN_ATC = 32777,
  ID_DESIGN_NBC1995 = 32817,
  ID_DESIGN_EURO1996 = 32812,
  ID_DESIGN_EURO1996_ELASTIC = 32818,
  ID_DESIGN_JPN2000 = 32814,
  ID_DESIGN_CH2002 = 32813,
  ID_DESIGN_CHSH2003 = 32820,
  ID_DESIGN_CH_BRG89 = 32815,
  ID_DESIGN_CH_GBJ111_87 = 32816,
  ID_DESIGN_KDS2019 = 32822,
  ID_DESIGN_KBC2005 = 32819,
  ID_DESIGN_KS2000 = 32809,
  ID_DESIGN_KS = 32779,
  ID_DESIGN_KS_BRIDGE = 32807,
  ID_DESIGN_KSCE2019 = 32821,
  ID_DESIGN_NTC2018 = 32824,
  ID_DESIGN_NEWMARK = 32780,
  ID_OPTION_XLOG = 32786,
  ID_OPTION_YLOG = 32787,
  ID_OPTION_XGRID = 32788,
  ID_OPTION_YGRID = 32789,
  ID_OPTION_DIAGONAL_GRID = 32798,
  ID_OPTION_LINE_THICKNESS = 32784,
  ID_OPTION_UNIT = 32797,
  ID_OPTION_EDIT_TITLE = 32802,
  ID_VIEW_ZOOM_OUT_ALL = 53500,
  ID_VIEW_TIME_FREQUENCY = 32800,
  ID_VIEW_RECORD_INFO = 32950,
  ID_ADD_LABEL = 32804,
  ID_FILE_NEW = 57600,
  ID_FILE_OPEN = 57601,
  ID_FILE_CLOSE = 57602,
  ID_FILE_SAVE = 57603,
  ID_FILE_PAGE_SETUP = 57605,
  ID_FILE_PRINT_SETUP = 57606,
  ID_FILE_PRINT = 57607,
  ID_FILE_PRINT_PREVIEW = 57609,
  ID_FILE_EXPORT = 32832,
  ID_EDIT_COPY = 57634,
  ID_FILE_MRU_FILE1 = 57616,
  ID_WINDOW_CASCADE = 57650,
  ID_WINDOW_TILE = 57651,
  ID_WINDOW_FIRST_CHILD = 65280,  // the Window menu's list of open windows
  ID_APP_ABOUT = 57664,
  ID_APP_EXIT = 57665,
  ID_VIEW_TOOLBAR = 59392,
  ID_VIEW_STATUS_BAR = 59393,
};

// Which menu bar shows an entry: the one without a document (the framework's
// menu 128), the one with an active document (menu 129), or both.
enum class MenuScope { kAlways, kWithDocument, kWithoutDocument };

struct CommandEntry {
  const char* menu;      // top-level menu
  const char* submenu;   // nullptr, or the submenu holding the item
  const char* text;      // item text
  int id;                // 0 for a separator
  const char* prompt;    // status-bar prompt; "" when there is none
  const char* shortcut;  // "" when there is none
  MenuScope scope;
};

// Top-level menus in menu-bar order.
std::span<const char* const> MenuTitles();
// Every entry in menu order; separators have id 0.
std::span<const CommandEntry> CommandTable();
// The entry of a command, or nullptr.
const CommandEntry* FindCommand(int id);

// The recent-file entries (ids ID_FILE_MRU_FILE1 .. + 3) and their prompt.
inline constexpr int kRecentFileCount = 4;
inline constexpr const char* kRecentFilePrompt = "Open this document";

}  // namespace zel::app

#endif  // ZEL_APP_SHELL_COMMAND_TABLE_H_
