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
    // Still changed if the player cancelled the question for a name.
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

bool CheckMod(Zevlin& form) {
    bool refused = false;
    procedure(form, "CheckMod",
              std::string(truthText(form.CardModified)) + ", " +
                  std::string(truthText(form.Printing)) + ", " +
                  std::string(truthText(form.MShowShapes.Checked)),
              [&] { refused = checkChanges(form); });
    return refused;
}

} // namespace zev
