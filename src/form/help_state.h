// The help page's share of the form's state.
#pragma once

#include "toolkit/model/control.h"

namespace zev {

struct HelpState {
    toolkit::ListBox THelp;
    int MoreInformationLine = -1; ///< index of the first line that opens the web page
    int WebsiteLine = -1;         ///< index of the second
    toolkit::ListBox Lmenus;      ///< the explanations of menu items; never shown
    toolkit::TextBox PopHelp;     ///< explains menu items
    toolkit::MenuItem MHelp;
};

} // namespace zev
