#include "card/modified.h"

#include <string>

#include "app/trace.h"
#include "app/zevlin.h"
#include "card/card_file.h"
#include "card/journal.h"
#include "card/save.h"
#include "text/edit_field.h"
#include "toolkit/dialog.h"
#include "view/time_stamp.h"

namespace zev {
namespace {

std::string flagText(bool flag) { return flag ? "1" : "0"; }

void composeTitle(Zevlin& form) {
    if (form.CardName == temporaryCardName) return;
    form.Caption = form.FormTitle + (form.CardName.empty() ? std::string("  (unnamed)")
                                                           : "  ( " + form.CardName + " )");
    if (form.CardModified) form.Caption += " *";
}

/// An edit counts as a change although no key release was seen.
void noticeCommittedEdit(Zevlin& form) {
    if (form.OrigIndex > 0 && form.AText[form.OrigIndex].Tag != form.OrigText) SetMod(form);
}

bool refusesToLoseChanges(Zevlin& form) {
    const auto answer = toolkit::show({.text = "Do you want to save the current card first?",
                                       .buttons = toolkit::Buttons::YesNoCancel,
                                       .icon = toolkit::Icon::Question,
                                       .title = "Unsaved changes",
                                       .preset = {}});
    if (answer == toolkit::Answer::Cancel) return true;
    if (answer == toolkit::Answer::No) {
        ResetMod(form);
        return false;
    }
    MSave_Click(form);
    // Still changed: the naming of an unnamed card was cancelled.
    return form.CardModified;
}

bool checkChanges(Zevlin& form) {
    if (form.Printing) return false;
    if (form.MShowShapes.Checked) {
        ResetMod(form);
        return false;
    }
    commitOpenField(form);
    noticeCommittedEdit(form);
    return form.CardModified && refusesToLoseChanges(form);
}

} // namespace

void SetMod(Zevlin& form) {
    Traceit(form, "SetMod " + flagText(form.CardModified));
    trapped(form, "Error in SetMod: #", [&] {
        form.CardModified = true;
        form.mpopUndo.Enabled = true;
        noteChange(form);
        SetCaption(form);
    });
}

void ResetMod(Zevlin& form) {
    Traceit(form, "ResetMod " + flagText(form.CardModified));
    trapped(form, "Error in ResetMod: #", [&] {
        if (form.Printing) return;
        form.CardModified = false;
        if (!form.Carried) dropJournal(form);
        SetCaption(form);
        form.OrigIndex = 0;
        form.TIndex = 0;
        form.OrigText.clear();
    });
}

bool CheckMod(Zevlin& form) {
    Traceit(form, "CheckMod " + std::string(truthText(form.CardModified)) + ", " +
                      std::string(truthText(form.Printing)) + ", " +
                      std::string(truthText(form.MShowShapes.Checked)));
    bool refused = false;
    trapped(form, "Error in CheckMod: #", [&] { refused = checkChanges(form); });
    return refused;
}

void SetCaption(Zevlin& form) {
    Traceit(form, "SetCaption");
    trapped(form, "Error in SetCaption: #", [&] {
        composeTitle(form);
        MakeTimeStamp(form);
    });
}

} // namespace zev
