// The Design menu's share of the form's state.
#pragma once

#include "toolkit/control.h"

namespace zev {

struct DesignState {
    bool DesignDirty = false;
    toolkit::MenuItem MShapes; ///< the Design menu
    toolkit::MenuItem MShowDesignMenu;
    toolkit::MenuItem MShowShapes{.Visible = false}; ///< checked: design mode
    toolkit::MenuItem MSmall;
    toolkit::MenuItem MMedium;
    toolkit::MenuItem MLarge;
    toolkit::MenuItem MBlack;
    toolkit::MenuItem MRed;
    toolkit::MenuItem MBlue;
    toolkit::MenuItem MCheck;
    toolkit::MenuItem MCircle;
    toolkit::MenuItem MText;
    toolkit::MenuItem MSetTabs; ///< checked: a TAB sequence is being recorded
    toolkit::MenuItem MSaveShapes;
    toolkit::MenuItem MCoord{.Caption = "Coordinates", .Visible = false};
};

} // namespace zev
