#include "app/shell/command_table.h"

#include <array>

namespace zel::app {
namespace {

constexpr const char* kGenerate = "Generate";
constexpr const char* kDesign = "Design Response Spectra";
constexpr MenuScope kAll = MenuScope::kAlways;
constexpr MenuScope kDoc = MenuScope::kWithDocument;

constexpr std::array<const char*, 7> kMenuTitles = {
    "File", "Edit", "Generate", "Option", "View", "Window", "Help"};

constexpr CommandEntry kTable[] = {
    // File. The recent files are inserted before Exit.
    {"File", nullptr, "Open", ID_FILE_OPEN, "Open an existing document",
     "Ctrl+O", kAll},
    {"File", nullptr, "Close", ID_FILE_CLOSE, "Close the active document", "",
     kDoc},
    {"File", nullptr, "Save", ID_FILE_SAVE, "Save the active document",
     "Ctrl+S", kDoc},
    {"File", nullptr, "Export...", ID_FILE_EXPORT,
     "Export the chart as a PNG, SVG, PDF or EMF picture, or its curves as CSV",
     "", kDoc},
    {"File", nullptr, "", 0, "", "", kAll},
    {"File", nullptr, "Print", ID_FILE_PRINT, "Print the active document", "",
     kDoc},
    {"File", nullptr, "Print Preview", ID_FILE_PRINT_PREVIEW,
     "Display full pages", "", kDoc},
    {"File", nullptr, "Page Setup", ID_FILE_PAGE_SETUP,
     "Change the printing options", "Ctrl+P", kDoc},
    {"File", nullptr, "Print Setup", ID_FILE_PRINT_SETUP,
     "Change the printer and printing options", "Ctrl+R", kAll},
    {"File", nullptr, "", 0, "", "", kAll},
    {"File", nullptr, "Exit", ID_APP_EXIT, "Quit the application", "", kAll},

    {"Edit", nullptr, "Copy", ID_EDIT_COPY,
     "Copy the chart to the clipboard as a picture", "Ctrl+C", kDoc},

    {kGenerate, nullptr, "Earthquake Record", ID_GENERATE_EQ_RECORD,
     "Generate Earthquake Record from real earthquake database", "", kAll},
    {kGenerate, nullptr, "Earthquake Response Spectra",
     ID_GENERATE_RESPONSE_SPECTRA, "Generate Earthquake Response Spectra", "",
     kAll},
    {kGenerate, nullptr, "Add Design Spectrum...", ID_ADD_DESIGN_SPECTRUM,
     "Add a code's design spectrum to the response spectra", "", kDoc},
    {kGenerate, nullptr, "Scale to Design Spectrum...", ID_SCALE_TO_DESIGN,
     "Scale the record to a code's design spectrum", "", kDoc},
    {kGenerate, kDesign, "IBC2000(ASCE7-98)", ID_DESIGN_IBC2000,
     "IBC2000(ASCE7-98) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "UBC(1997)", ID_DESIGN_UBC97,
     "UBC(1997) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "UBC 88-94", ID_DESIGN_UBC,
     "UBC 88-94 Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "ATC 3-06", ID_DESIGN_ATC,
     "ATC 3-06 Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "NBC(1995)", ID_DESIGN_NBC1995,
     "NBC(1995) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Eurocode-8(1996) Design", ID_DESIGN_EURO1996,
     "EUROCODE-8(1996) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Eurocode-8(1996) Elastic", ID_DESIGN_EURO1996_ELASTIC,
     "EUROCODE-8(1996) Elastic Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Japan(Arch.2000)", ID_DESIGN_JPN2000,
     "Japan(Arch.2000) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "China(GB50011-2001)", ID_DESIGN_CH2002,
     "China(GB50011-2001) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "China Shanghai(DGJ08-9-2003)", ID_DESIGN_CHSH2003,
     "China Shanghai(DGJ08-9-2003) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "China(JTJ004-89)", ID_DESIGN_CH_BRG89,
     "China(JTJ004-89) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "China(GBJ111-87)", ID_DESIGN_CH_GBJ111_87,
     "China(GBJ111-87) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "KDS(41-17-00:2019)", ID_DESIGN_KDS2019, "", "", kAll},
    {kGenerate, kDesign, "KBC(2005)", ID_DESIGN_KBC2005,
     "KBC(2005) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Korea(Arch.2000)", ID_DESIGN_KS2000,
     "Korea(Arch,2000) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Korea(Arch.1992)", ID_DESIGN_KS,
     "Korea(Arch,1992) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "Korea(Bridge)", ID_DESIGN_KS_BRIDGE,
     "Korea(Bridge) Design Response Spectrum", "", kAll},
    {kGenerate, kDesign, "KDS(17-10-00:2018)", ID_DESIGN_KSCE2019, "", "",
     kAll},
    {kGenerate, kDesign, "NTC2018", ID_DESIGN_NTC2018, "", "", kAll},
    {kGenerate, kDesign, "Newmark & Hall", ID_DESIGN_NEWMARK,
     "Newmark & Hall Design Response Spectrum", "", kAll},

    {"Option", nullptr, "X Scale Log", ID_OPTION_XLOG,
     "make x-axis scale logarithmic", "", kDoc},
    {"Option", nullptr, "Y Scale Log", ID_OPTION_YLOG,
     "make y-axis scale logarithmic", "", kDoc},
    {"Option", nullptr, "", 0, "", "", kDoc},
    // Both grid prompts name the y axis; the X Grid text is kept as it is.
    {"Option", nullptr, "X Grid", ID_OPTION_XGRID, "y-axis grid on/off", "",
     kDoc},
    {"Option", nullptr, "Y Grid", ID_OPTION_YGRID, "y-axis grid on/off", "",
     kDoc},
    {"Option", nullptr, "Diagonal Grid", ID_OPTION_DIAGONAL_GRID, "", "", kDoc},
    {"Option", nullptr, "", 0, "", "", kDoc},
    {"Option", nullptr, "Line Thickness", ID_OPTION_LINE_THICKNESS,
     "Changes Line property", "", kDoc},
    {"Option", nullptr, "Unit", ID_OPTION_UNIT, "Unit conversion", "", kDoc},
    {"Option", nullptr, "Edit Graph Title", ID_OPTION_EDIT_TITLE,
     "Edits title of graph", "", kDoc},

    {"View", nullptr, "Toolbar", ID_VIEW_TOOLBAR, "Show or hide the toolbar",
     "", kAll},
    {"View", nullptr, "Status Bar", ID_VIEW_STATUS_BAR,
     "Show or hide the status bar", "", kAll},
    {"View", nullptr, "", 0, "", "", kDoc},
    {"View", nullptr, "Zoom Out All", ID_VIEW_ZOOM_OUT_ALL,
     "Show the whole chart again", "", kDoc},
    {"View", nullptr, "Time<->Frequency", ID_VIEW_TIME_FREQUENCY,
     "Change the domain between time-history and frequency", "", kDoc},
    {"View", nullptr, "Record Information", ID_VIEW_RECORD_INFO,
     "Show the ground-motion parameters of the record", "", kDoc},

    {"Window", nullptr, "Cascade", ID_WINDOW_CASCADE,
     "Arrange windows so they overlap", "", kDoc},
    {"Window", nullptr, "Tile", ID_WINDOW_TILE,
     "Arrange windows as non-overlapping tiles", "", kDoc},

    {"Help", nullptr, "About ZEL", ID_APP_ABOUT,
     "Display program information, version number and copyright", "", kAll},
};

// The frame finds a command's action and handler by its id alone.
constexpr bool EveryIdIsItsOwn() {
  for (std::size_t i = 0; i < std::size(kTable); ++i) {
    for (std::size_t j = i + 1; j < std::size(kTable); ++j) {
      if (kTable[i].id != 0 && kTable[i].id == kTable[j].id) return false;
    }
  }
  return true;
}
static_assert(EveryIdIsItsOwn(), "two menu entries share a command id");

}  // namespace

std::span<const char* const> MenuTitles() { return kMenuTitles; }

std::span<const CommandEntry> CommandTable() { return kTable; }

const CommandEntry* FindCommand(int id) {
  for (const CommandEntry& e : kTable) {
    if (e.id == id) return &e;
  }
  return nullptr;
}

}  // namespace zel::app
