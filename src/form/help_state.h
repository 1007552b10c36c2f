// The help page's share of the form's state.
#pragma once

#include "toolkit/model/command_button.h"
#include "toolkit/model/control.h"

namespace zev {

struct HelpState {
    toolkit::ListBox THelp;
    toolkit::Panel PHelp;         ///< at the page's upper right corner, with the button on it
    toolkit::CommandButton BHelp; ///< closes the page
    int MoreInformationLine = -1; ///< index of the first line that opens the web page
    int WebsiteLine = -1;         ///< index of the second
    toolkit::ListBox Lmenus;      ///< the explanations of menu items; never shown
    toolkit::TextBox PopHelp;     ///< explains menu items
    toolkit::MenuItem MHelp;
};

} // namespace zev
