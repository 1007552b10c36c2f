#include "form/modified.h"

#include <string>

#include "card/card_file.h"
#include "form/time_stamp.h"
#include "form/trace.h"
#include "form/unsaved.h"
#include "form/zevlin.h"

namespace zev {
namespace {

std::string flagText(bool flag) { return flag ? "1" : "0"; }

void composeTitle(Zevlin& form) {
    if (form.CardName == temporaryCardName) return;
    form.Caption = form.FormTitle + (form.CardName.empty() ? std::string("  (unnamed)")
                                                           : "  ( " + form.CardName + " )");
    if (form.CardModified) form.Caption += " *";
}

} // namespace

void SetMod(Zevlin& form) {
    procedure(form, "SetMod", flagText(form.CardModified), [&] {
        form.CardModified = form.StepPending = true;
        form.mpopUndo.Enabled = true;
        noteChange(form);
        SetCaption(form);
    });
}

void ResetMod(Zevlin& form) {
    procedure(form, "ResetMod", flagText(form.CardModified), [&] {
        if (form.Printing) return;
        form.CardModified = false;
        if (!form.Carried) dropJournal(form);
        SetCaption(form);
        form.OrigIndex = 0;
        form.TIndex = 0;
        form.OrigText.clear();
    });
}

void SetCaption(Zevlin& form) {
    procedure(form, "SetCaption", [&] {
        composeTitle(form);
        MakeTimeStamp(form);
    });
}

} // namespace zev
