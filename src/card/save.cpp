#include "card/save.h"

#include <string>
#include <utility>

#include "form/file_failures.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "card/document.h"
#include "card/file_seen.h"
#include "card/journal.h"
#include "card/lifecycle.h"
#include "form/modified.h"
#include "toolkit/ansi.h"
#include "toolkit/dialog.h"
#include "toolkit/files.h"
#include "toolkit/program.h"
#include "form/time_stamp.h"
#include "text/edit_box.h"

namespace zev {
namespace {

/// Under a trimmed name the card goes into another file than it came from.
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

/// The player decides between what they have made of the card and what another program has.
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
    if (!form.Printing && !form.Zooming) SetCaption(form);
}

/// The copy that a rebuild leaves in the folder for its own time. Nothing depends on it.
void saveTemporary(Zevlin& form) {
    toolkit::writeTemporaryFile(cardPath(form), writeCard(documentOf(form)));
    finishSave(form);
}

void writeToFile(Zevlin& form, const std::filesystem::path& file) {
    const std::string content = writeCard(documentOf(form));
    // The file could fail half way.
    flushJournal(form);
    toolkit::writeFile(file, content);
    rememberFile(form, file, content);
    finishSave(form);
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

/// The program ends as soon as nothing is lost by that.
void endAfterFailedSave(Zevlin& form) {
    if (keepForNextStart(form)) toolkit::endProgram();
    toolkit::tell("'" + form.CardName +
                      "' could not be saved, and there is no room for a copy of it either.  Zevlin "
                      "goes on, so that nothing is lost.  Please make room, or see to it that the "
                      "folder '" +
                      toolkit::displayText(form.DataFolder) + "' can be written, and save again.",
                  toolkit::Icon::Exclamation);
}

} // namespace

void MSave_Click(Zevlin& form) {
    Traceit(form, "MSave_Click");
    if (form.Carried) {
        trappedAndNoted(form, "Error in MSave_Click ", copyFailure, [&] { saveTemporary(form); });
    } else if (!trapped(form, "Error in MSave_Click ", [&] { saveCard(form); })) {
        endAfterFailedSave(form);
    }
}

std::filesystem::path cardPath(const Zevlin& form) {
    return toolkit::resolveFile(form.DataFolder, form.CardName + std::string(cardExtension));
}

} // namespace zev
