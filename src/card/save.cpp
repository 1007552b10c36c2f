#include "card/save.h"

#include <algorithm>
#include <cstdlib>
#include <string>
#include <utility>

#include "card/chooser.h"
#include "card/document.h"
#include "card/file_seen.h"
#include "card/journal.h"
#include "card/undo_card.h"
#include "card/write_card.h"
#include "form/file_failures.h"
#include "form/modified.h"
#include "form/time_stamp.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/write_file.h"
#include "toolkit/window/dialog.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

toolkit::Answer askAboutPartner(const Zevlin& form) {
    if (form.PartnerName.empty() && form.PartnerNumber.empty()) return toolkit::Answer::Yes;
    return toolkit::show(
        {.text = "Do you want to keep the same Partner's information in the new card?",
         .buttons = toolkit::Buttons::YesNoCancel,
         .icon = toolkit::Icon::Question,
         .title = {},
         .preset = toolkit::Answer::No});
}

std::string chosenNameToSave(Zevlin& form) {
    const std::string title = form.Caption;
    const bool shown = showsTitle(form);
    if (shown) form.Caption = title + " - Save this card";
    const std::string cardName = form.CardName;
    std::string name = GetFileNames(form);
    if (!shown) return name;
    // The chooser may have deleted or renamed the card.
    if (form.CardName != cardName) {
        SetCaption(form);
    } else {
        form.Caption = title;
    }
    return name;
}

/// Whether a card is selected, or the name is that of a listed card or of any file that the save
/// would replace.
bool isTaken(const Zevlin& form, const std::string& name) {
    const auto& names = form.FileList.List;
    return form.FileList.ListIndex >= 0 ||
           std::ranges::find(names, form.TSaveAs.Text) != names.end() ||
           findCard(form, name).has_value();
}

bool mayReplace() {
    return toolkit::show({.text = "File already exists. Do you want to replace it?",
                          .buttons = toolkit::Buttons::YesNo,
                          .icon = toolkit::Icon::Question,
                          .title = "Overwrite existing file?",
                          .preset = {}}) == toolkit::Answer::Yes;
}

void saveUnderNewName(Zevlin& form) {
    const auto keepPartner = askAboutPartner(form);
    if (keepPartner == toolkit::Answer::Cancel) return;
    const std::string name = chosenNameToSave(form);
    if (name.empty()) return;
    if (isTaken(form, name) && !mayReplace()) return;
    form.CardName = name;
    // The player has just been asked whether a file of this name may be replaced.
    form.CardFileSeen.reset();
    if (keepPartner == toolkit::Answer::No) {
        form.PartnerName.clear();
        form.PartnerNumber.clear();
    }
    MSave_Click(form);
    if (showsTitle(form)) SetCaption(form);
}

/// If the trimmed name differs, the card goes into another file than it came from.
void trimName(Zevlin& form) {
    const auto trimmed = std::string(toolkit::trim(form.CardName));
    if (trimmed == form.CardName) return;
    form.CardName = trimmed;
    rememberNoFile(form);
}

/// False if the card has no name and the player gave none.
bool hasName(Zevlin& form) {
    trimName(form);
    if (!form.CardName.empty()) return true;
    MSaveAs_Click(form);
    trimName(form);
    return !form.CardName.empty();
}

/// What the player decides where another program has changed the card's file.
enum class Decision { Overwrite, LeaveIt, SaveElsewhere };

Decision askAboutChangedFile(const Zevlin& form) {
    const auto answer =
        toolkit::show({.text = form.CardName + " was changed by another program since you opened "
                                               "it. Save yours over it?",
                       .buttons = toolkit::Buttons::YesNoSaveAs,
                       .icon = toolkit::Icon::Question,
                       .title = {},
                       .preset = {}});
    if (answer == toolkit::Answer::Yes) return Decision::Overwrite;
    return answer == toolkit::Answer::SaveAs ? Decision::SaveElsewhere : Decision::LeaveIt;
}

void finishSave(Zevlin& form) {
    ResetMod(form);
    form.OrigIndex = 0;
    form.OrigText.clear();
    MakeTimeStamp(form);
    if (showsTitle(form)) SetCaption(form);
}

/// The copy that lies in the folder while a rebuild runs. Nothing depends on it.
void saveTemporary(Zevlin& form) {
    toolkit::writeTemporaryFile(cardPath(form), writeCard(documentOf(form)));
    finishSave(form);
}

void writeToFile(Zevlin& form, const std::filesystem::path& file) {
    const std::string content = writeCard(documentOf(form));
    // Writing the file could fail half way.
    flushJournal(form);
    toolkit::writeFile(file, content);
    rememberFile(form, file, content);
    finishSave(form);
    noteSavedCard(form);
}

void saveCard(Zevlin& form) {
    commitOpenField(form);
    if (!hasName(form)) return;
    const auto file = cardPath(form);
    const auto decision =
        isChangedByAnother(form, file) ? askAboutChangedFile(form) : Decision::Overwrite;
    if (decision == Decision::Overwrite) writeToFile(form, file);
    if (decision == Decision::SaveElsewhere) MSaveAs_Click(form);
}

/// Ends the program if nothing is lost by that; else asks the player to make room.
void endAfterFailedSave(Zevlin& form) {
    if (keepForNextStart(form)) toolkit::endProgram(EXIT_FAILURE);
    toolkit::tell("'" + form.CardName +
                      "' could not be saved, and there is no room for a copy of it either.  Zevlin "
                      "goes on, so that nothing is lost.  Please make room, or see to it that the "
                      "folder '" +
                      toolkit::displayText(form.DataFolder) + "' can be written, and save again.",
                  toolkit::Icon::Exclamation);
}

} // namespace

bool showsTitle(const Zevlin& form) { return !form.Printing && !form.Zooming; }

void MSave_Click(Zevlin& form) {
    Traceit(form, "MSave_Click");
    if (form.Carried) {
        trappedAndNoted(form, "Error in MSave_Click ", copyFailure, [&] { saveTemporary(form); });
    } else if (!trapped(form, "Error in MSave_Click ", [&] { saveCard(form); })) {
        endAfterFailedSave(form);
    }
}

void MSaveAs_Click(Zevlin& form) {
    procedure(form, "MSaveAs_Click", [&] { saveUnderNewName(form); });
}

} // namespace zev
