#include "card/check_mod.h"

#include <string>

#include "card/save.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "text/edit_box.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

/// Notices an edit that was committed without the release of a key, which would have marked the
/// card as changed.
void noticeCommittedEdit(Zevlin& form) {
    if (form.OrigIndex > 0 && form.AText[form.OrigIndex].Tag != form.OrigText) SetMod(form);
}

Changes askAboutChanges(Zevlin& form) {
    const auto answer = toolkit::show({.text = "Do you want to save the current card first?",
                                       .buttons = toolkit::Buttons::YesNoCancel,
                                       .icon = toolkit::Icon::Question,
                                       .title = "Unsaved changes",
                                       .preset = {}});
    if (answer == toolkit::Answer::Cancel) return Changes::Kept;
    if (answer == toolkit::Answer::No) {
        ResetMod(form);
        return Changes::Discarded;
    }
    MSave_Click(form);
    // Still changed if the player cancelled the question for a name.
    return form.CardModified ? Changes::Kept : Changes::Saved;
}

Changes checkChanges(Zevlin& form) {
    if (form.Printing) return Changes::None;
    if (form.MShowShapes.Checked) {
        ResetMod(form);
        return Changes::None;
    }
    commitOpenField(form);
    noticeCommittedEdit(form);
    return form.CardModified ? askAboutChanges(form) : Changes::None;
}

} // namespace

Changes settleChanges(Zevlin& form) {
    Changes changes = Changes::None;
    procedure(form, "CheckMod",
              std::string(truthText(form.CardModified)) + ", " +
                  std::string(truthText(form.Printing)) + ", " +
                  std::string(truthText(form.MShowShapes.Checked)),
              [&] { changes = checkChanges(form); });
    return changes;
}

bool CheckMod(Zevlin& form) { return settleChanges(form) == Changes::Kept; }

} // namespace zev
