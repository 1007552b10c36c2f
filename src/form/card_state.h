// The card's share of the form's state.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

#include "card/card_file.h"
#include "card/file_state.h"
#include "card/history.h"
#include "toolkit/base/file_lock.h"
#include "toolkit/model/control.h"
#include "toolkit/model/panel.h"
#include "toolkit/window/alarm.h"

namespace zev {

/// What a rebuild of the screen carries.
struct CarriedCard {
    CardDocument document;
    std::string name; ///< the card's own; during the rebuild it bears a temporary one
    bool modified = false;
};

/// The file of a card as it was when the card was opened or saved last.
struct SeenFile {
    std::string cardName;
    FileState state;
};

/// The file that holds the unsaved changes of this copy of the program.
struct JournalState {
    std::filesystem::path file; ///< empty until something is to be kept
    toolkit::FileLock lock;
    toolkit::Alarm alarm;
    std::string written; ///< what stands in the file
    bool failureTraced = false;
    bool isHeld = false; ///< nothing is written: the names line is lent to the partner
};

struct CardState {
    std::string CardName; ///< no folder, no extension; empty for an unnamed card
    std::string MyName;
    std::string MyNumber;
    std::string PartnerName;
    std::string PartnerNumber;
    std::string CardVersion; ///< version of the card loaded last
    bool CardModified = false;
    std::optional<CarriedCard> Carried; ///< while the screen is rebuilt
    std::optional<SeenFile> CardFileSeen;
    JournalState Journal;
    CardHistory History;
    bool StepPending = false; ///< the card has changed since a step was noted
    int FieldOfStep = 0;      ///< the text that was open at the end of the event before; 0 for none
    std::int16_t NamesField = 0;      ///< the text field of the names line; 0 for none
    std::string FormTitle = "Zevlin"; ///< what every caption of the form begins with

    bool ChooserCancelled = false;
    bool ChooserTaken = false;
    bool ChooserOpens = false;   ///< the chooser is there to open a card
    toolkit::TextBox TSaveAs;    ///< the name, typed or selected; it outlives the chooser
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
    toolkit::MenuItem MEdit;
    toolkit::MenuItem MUndo;
    toolkit::MenuItem MRedo;
    toolkit::MenuItem MMyID;
    toolkit::MenuItem MPartnerID;
};

} // namespace zev
