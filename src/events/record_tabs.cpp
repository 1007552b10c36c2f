#include "events/record_tabs.h"

#include "events/flash_focus.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/dialog.h"

namespace zev {
namespace {

constexpr std::string_view modifyQuestion =
    "To modify the existing tab sequence, click 'Yes'.  To discard all existing tabs and define a "
    "new sequence, click 'No'.  To make no changes to the tab sequence, click 'Cancel'.  To make "
    "the result permanent, you will also have to 'Save Design' when finished with tab definitions.";

void askAboutPresentSequence(Zevlin& form) {
    const auto answer = toolkit::show({.text = std::string(modifyQuestion),
                                       .buttons = toolkit::Buttons::YesNoCancel,
                                       .icon = toolkit::Icon::Information,
                                       .title = "ZEV - Modify tabbing sequence"});
    if (answer == toolkit::Answer::No) form.TabTable.discard();
    if (answer == toolkit::Answer::Cancel) form.MSetTabs.Checked = false;
}

void switchRecording(Zevlin& form) {
    form.MSetTabs.Checked = !form.MSetTabs.Checked;
    if (!form.MSetTabs.Checked) {
        form.TabRecordPrev = 0;
    } else if (form.TabTable.UBound() > 0) {
        askAboutPresentSequence(form);
    }
}

/// The first press only chooses where the sequence starts.
void recordStep(Zevlin& form, std::int16_t item) {
    if (form.TabRecordPrev != 0) {
        form.TabTable.growTo(form.TabRecordPrev);
        form.TabTable.set(form.TabRecordPrev, item);
        form.DesignDirty = true;
    }
    form.TabRecordPrev = item;
    FlashFocus(form, item);
}

} // namespace

void MSetTabs_Click(Zevlin& form) {
    procedure(form, "MSetTabs_Click", [&] { switchRecording(form); });
}

bool recordTabPress(Zevlin& form, int item, toolkit::MouseArguments& mouse) {
    if (!form.MShowShapes.Checked || !form.MSetTabs.Checked) return false;
    if (mouse.Button == toolkit::button::left || mouse.Button == toolkit::button::right) {
        recordStep(form, toolkit::toInteger16(item));
    }
    // Neither a drag nor a pop-up may follow.
    mouse.Button = mouse.Shift = 0;
    form.LastButton = 0;
    return true;
}

} // namespace zev
