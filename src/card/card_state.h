// The card's share of the form's state.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/control.h"
#include "toolkit/panel.h"

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
    toolkit::TextBox TSaveAs;    ///< the name as it will be used; the chooser leaves it
    toolkit::ListBox FileList;   ///< the cards of the data folder, without extension
    toolkit::PanelLabel LSaveAs; ///< the prompt
    toolkit::PanelLabel LPath;   ///< the data folder
    toolkit::CommandButton BOK;
    toolkit::CommandButton BCancel;

    toolkit::MenuItem mpopOpen;
    toolkit::MenuItem mpopDelete;
    toolkit::MenuItem mpopRename;
    toolkit::MenuItem MNew;
    toolkit::MenuItem MOpen;
    toolkit::MenuItem MSave;
    toolkit::MenuItem MSaveAs;
    toolkit::MenuItem MMyID;
    toolkit::MenuItem MPartnerID;
};

} // namespace zev
