#include "app/menu_table.h"

#include <array>

#include "app/unload.h"
#include "card/lifecycle.h"
#include "card/names_line.h"
#include "card/save.h"
#include "design/pen.h"
#include "help/help_page.h"
#include "layout/save_layout.h"
#include "marks/record_tabs.h"
#include "view/fit.h"
#include "view/zoom.h"

namespace zev {
namespace {

constexpr MenuEntry separator{.level = 1};

// clang-format off
constexpr auto table = std::to_array<MenuEntry>({
    {0, &Zevlin::MFile,       "&File",              "",       nullptr},
    {1, &Zevlin::MNew,        "&New",               "",       MNew_Click},
    {1, &Zevlin::MOpen,       "&Open...",           "Ctrl+O", MOpen_Click},
    {1, &Zevlin::MSave,       "&Save",              "Ctrl+S", MSave_Click},
    {1, &Zevlin::MSaveAs,     "Save &As...",        "",       MSaveAs_Click},
    separator,
    {1, &Zevlin::MExit,       "E&xit",              "",       MExit_Click},
    {0, &Zevlin::MView,       "&View",              "",       nullptr},
    {1, &Zevlin::MZoomIn,     "Zoom In (Bigger)                   Ctrl +", "", MZoomIn_Click},
    {1, &Zevlin::MZoomOut,    "Zoom Out (Smaller)               Ctrl  -",  "", MZoomOut_Click},
    separator,
    {1, &Zevlin::MFitScreenWidth,  "Fit to screen width                Ctrl  0", "",
     MFitScreenWidth_Click},
    {1, &Zevlin::MFitScreenHeight, "Fit to screen height", "", MFitScreenHeight_Click},
    {0, &Zevlin::MOptions,    "&Options",           "",       nullptr},
    {1, &Zevlin::MMyID,       "My Name",            "",       MMyID_Click},
    {1, &Zevlin::MPartnerID,  "Partner's Name",     "",       MPartnerID_Click},
    {0, &Zevlin::MShapes,     "&Design",            "",       nullptr},
    {1, &Zevlin::MSmall,      "Small",              "",       MSmall_Click},
    {1, &Zevlin::MMedium,     "Medium",             "",       MMedium_Click},
    {1, &Zevlin::MLarge,      "Large",              "",       MLarge_Click},
    separator,
    {1, &Zevlin::MBlack,      "Black",              "",       MBlack_Click},
    {1, &Zevlin::MRed,        "Red",                "",       MRed_Click},
    {1, &Zevlin::MBlue,       "Blue",               "",       MBlue_Click},
    separator,
    {1, &Zevlin::MCheck,      "Checkmark",          "",       MCheck_Click},
    {1, &Zevlin::MCircle,     "Circle",             "",       MCircle_Click},
    {1, &Zevlin::MText,       "Text",               "",       MText_Click},
    separator,
    {1, &Zevlin::MSetTabs,    "Set Tab sequence",   "",       MSetTabs_Click, AtStart::Disabled},
    {1, &Zevlin::MSaveShapes, "Save Design",        "",       MSaveShapes_Click, AtStart::Disabled},
    {0, &Zevlin::MHelp,       "&Help",              "",       MHelp_Click},
});
// clang-format on

} // namespace

std::span<const MenuEntry> menuTable() { return table; }

} // namespace zev
