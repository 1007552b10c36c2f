#include "app/menu_table.h"

#include <array>

#include "app/unload.h"
#include "card/lifecycle.h"
#include "card/names_line.h"
#include "card/save.h"
#include "card/undo_card.h"
#include "design/auto_adjust.h"
#include "design/design_mode.h"
#include "design/pen.h"
#include "events/record_tabs.h"
#include "events/tab_walk.h"
#include "help/help_page.h"
#include "layout/save_layout.h"
#include "output/export_card.h"
#include "output/print_card.h"
#include "output/print_options.h"
#include "output/print_partner.h"
#include "output/printer_setup.h"
#include "view/color_panel.h"
#include "view/fit.h"
#include "view/text_options.h"
#include "view/zoom.h"

namespace zev {
namespace {

constexpr MenuEntry separator{.level = 1};

template <int Index>
void chooseScheme(Zevlin& form) {
    mColorScheme_Click(form, Index);
}

// clang-format off
constexpr auto table = std::to_array<MenuEntry>({
    {0, &Zevlin::MFile,       "&File",              "",       nullptr},
    {1, &Zevlin::MNew,        "&New",               "",       MNew_Click},
    {1, &Zevlin::MOpen,       "&Open...",           "Ctrl+O", MOpen_Click},
    {1, &Zevlin::MSave,       "&Save",              "Ctrl+S", MSave_Click},
    {1, &Zevlin::MSaveAs,     "Save &As...",        "",       MSaveAs_Click},
    separator,
    {1, &Zevlin::MPrint,      "&Print card",        "Ctrl+P", MPrint_Click},
    {1, &Zevlin::MPrintPartner, "Print Partner's card", "",   MPrintPartner_Click},
    {1, &Zevlin::MPrintBoth,  "Print two cards",    "",       MPrintBoth_Click},
    {1, &Zevlin::MPrintSetup, "Printer Setup...",   "",       MPrintSetup_Click},
    separator,
    // The two PNG items are each in the other's submenu, deliberately: players are used to it.
    {1, &Zevlin::mExport,     "Export Image to file as...", "", nullptr},
    {2, &Zevlin::mPrintToDiskGIF, "GIF",            "",       mPrintToDiskGIF_Click},
    {2, &Zevlin::mPrintToDiskPartnerPNG, "PNG",     "",       mPrintToDiskPartnerPNG_Click},
    {2, &Zevlin::mPrintToDiskJPG, "JPG",            "",       mPrintToDiskJPG_Click},
    {2, &Zevlin::mPrintToDisk, "BMP",               "",       mPrintToDisk_Click},
    {1, &Zevlin::mExportPartner, "Export Partner Image to file as..", "", nullptr},
    {2, &Zevlin::mPrintToDiskPartnerGIF, "GIF",     "",       mPrintToDiskPartnerGIF_Click},
    {2, &Zevlin::mPrintToDiskPNG, "PNG",            "",       mPrintToDiskPNG_Click},
    {2, &Zevlin::mPrintToDiskPartnerJPG, "JPG",     "",       mPrintToDiskPartnerJPG_Click},
    {2, &Zevlin::mPrintToDiskPartner, "BMP",        "",       mPrintToDiskPartner_Click},
    {1, &Zevlin::mPrintToClipboard, "Copy to Clipboard", "",  mPrintToClipboard_Click},
    separator,
    {1, &Zevlin::MExit,       "E&xit",              "",       MExit_Click},
    {0, &Zevlin::MEdit,       "&Edit",              "",       nullptr},
    {1, &Zevlin::MUndo,       "&Undo",              "Ctrl+Z", MUndo_Click, AtStart::Disabled},
    {1, &Zevlin::MRedo,       "&Redo",              "Ctrl+Y", MRedo_Click, AtStart::Disabled},
    {0, &Zevlin::MView,       "&View",              "",       nullptr},
    {1, &Zevlin::MZoomIn,     "Zoom In (Bigger)                   Ctrl +", "", MZoomIn_Click},
    {1, &Zevlin::MZoomOut,    "Zoom Out (Smaller)               Ctrl  -",  "", MZoomOut_Click},
    separator,
    {1, &Zevlin::MFitScreenWidth,  "Fit to screen width                Ctrl  0", "",
     MFitScreenWidth_Click},
    {1, &Zevlin::MFitScreenHeight, "Fit to screen height", "", MFitScreenHeight_Click},
    separator,
    {1, &Zevlin::MFirstField, "Go to first field",  "F2",     MFirstField_Click},
    {0, &Zevlin::MOptions,    "&Options",           "",       nullptr},
    {1, &Zevlin::MMyID,       "My Name",            "",       MMyID_Click},
    {1, &Zevlin::MPartnerID,  "Partner's Name",     "",       MPartnerID_Click},
    separator,
    {1, &Zevlin::mFontSize,        "Font size", "", nullptr},
    {2, &Zevlin::mSmallerTextFont, "Smaller",   "", mSmallerTextFont_Click},
    {2, &Zevlin::mNormalTextFont,  "Normal",    "", mNormalTextFont_Click},
    {2, &Zevlin::mLargerTextFont,  "Larger",    "", mLargerTextFont_Click},
    {2, &Zevlin::mBigTextFont,     "Big",       "", mBigTextFont_Click},
    {1, &Zevlin::mBold,            "Boldface",  "", mBold_Click},
    {1, &Zevlin::mLeftJustify, "Left-Justify all text", "", mLeftJustify_Click},
    {1, &Zevlin::mFillIn,      "Fill-in Checkmarks",    "", mFillIn_Click},
    separator,
    {1, &Zevlin::mColorManagement, "Color Management", "", nullptr},
    {2, nullptr, "ACBL Compliant", "", chooseScheme<0>, AtStart::Enabled, 0},
    {2, nullptr, "Custom...",      "", chooseScheme<1>, AtStart::Enabled, 1},
    separator,
    {1, &Zevlin::mPrintAlt,   "Use alternate print method", "", mPrintAlt_Click},
    {1, &Zevlin::MColor,      "Force color printing", "",     MColor_Click},
    {1, &Zevlin::MMono,       "Force black printing", "",     MMono_Click},
    separator,
    {1, &Zevlin::MShowDesignMenu, "Show the Design Menu         Shift Ctrl  D", "",
     MShowDesignMenu_Click},
    {0, &Zevlin::MShapes,     "&Design",            "",       nullptr},
    {1, &Zevlin::MShowShapes, "Show all Marks",     "Ctrl+A", MShowShapes_Click},
    separator,
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
    {1, &Zevlin::MAutoAdjust, "Auto-adjust",        "",       MAutoAdjust_Click, AtStart::Disabled},
    {1, &Zevlin::MSaveShapes, "Save Design",        "",       MSaveShapes_Click, AtStart::Disabled},
    {0, &Zevlin::MHelp,       "&Help",              "",       MHelp_Click},
    // Only to be read.
    {0, &Zevlin::MCoord,      "Coordinates",        "",       nullptr},
});
// clang-format on

} // namespace

std::span<const MenuEntry> menuTable() { return table; }

toolkit::MenuItem* itemOf(Zevlin& form, const MenuEntry& entry) {
    if (entry.scheme >= 0) return &form.mcolorscheme.at(static_cast<std::size_t>(entry.scheme));
    return entry.item == nullptr ? nullptr : &(form.*entry.item);
}

} // namespace zev
