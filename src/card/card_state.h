// The card's share of the form's state.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/control.h"

namespace zev {

struct CardState {
    std::string CardName; ///< no folder, no extension; empty for an unnamed card
    std::string MyName;
    std::string MyNumber;
    std::string PartnerName;
    std::string PartnerNumber;
    std::string CardVersion; ///< version of the card loaded last
    bool CardModified = false;
    std::int16_t NamesField = 0;      ///< the text field of the names line; 0 for none
    std::string FormTitle = "Zevlin"; ///< what every caption of the form begins with

    bool ChooserCancelled = false;
    bool ChooserTaken = false;
    std::string TSaveAs; ///< the name as the chooser left it

    toolkit::MenuItem MNew;
    toolkit::MenuItem MOpen;
    toolkit::MenuItem MSave;
    toolkit::MenuItem MSaveAs;
    toolkit::MenuItem MMyID;
    toolkit::MenuItem MPartnerID;
};

} // namespace zev
