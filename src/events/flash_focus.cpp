#include "events/flash_focus.h"

#include "form/trace.h"
#include "form/zevlin.h"
#include "marks/move_card.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr int flashMilliseconds = 100;
constexpr toolkit::Color flashYellow = toolkit::rgb(255, 255, 160);

void flashText(Zevlin& form, int item) {
    CheckOnScreen(form, item);
    form.AText[item].BackStyle = toolkit::BackStyle::Opaque;
    form.AText[item].BackColor = flashYellow;
    toolkit::doEvents();
    toolkit::wait(flashMilliseconds);
    if (!form.AText.exists(item)) return;
    toolkit::Label& label = form.AText[item];
    label.BackColor = toolkit::white;
    label.BackStyle = toolkit::BackStyle::Transparent;
    toolkit::setCursorPosition(screenPlace(form, label.Left, label.Top));
    form.TabActive = false;
}

/// Inverted twice, the mark is as it was.
void blinkMark(Zevlin& form, int index) {
    for (int turn = 0; turn < 2; ++turn) {
        if (!form.AMark.exists(index)) return;
        form.AMark[index].Visible = !form.AMark[index].Visible;
        toolkit::wait(flashMilliseconds);
    }
}

} // namespace

toolkit::CursorPosition screenPlace(const Zevlin& form, float x, float y) {
    const auto twips = static_cast<float>(form.TwipsPerPixel);
    return {toolkit::roundToInteger((form.FrameWidth + form.Left + form.P1.Left + x) / twips),
            toolkit::roundToInteger((form.FrameHeight + form.Top + form.P1.Top + y) / twips)};
}

void FlashFocus(Zevlin& form, int item) {
    procedure(form, "FlashFocus", toolkit::numberText(item), [&] {
        if (item >= firstMarkItem) {
            // In normal use the cursor alone shows the mark.
            if (form.MShowShapes.Checked) blinkMark(form, item - firstMarkItem);
        } else if (item >= 1) {
            flashText(form, item);
        }
    });
}

} // namespace zev
