#include "events/tab_walk.h"

#include <cstdlib>
#include <string>

#include "events/edit_field.h"
#include "events/flash_focus.h"
#include "form/field_values.h"
#include "form/modified.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "layout/field.h"
#include "marks/move_card.h"
#include "text/edit_box.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/cursor.h"

namespace zev {
namespace {

using toolkit::numberText;

/// From so many pixels of travel on, the cursor counts as moved away from the mark of the walk.
constexpr int cursorTravel = 5;

bool cursorIsStill(Zevlin& form) {
    form.CursorPos = toolkit::cursorPosition();
    return std::abs(form.CursorPos.x - form.TabCursorX) < cursorTravel &&
           std::abs(form.CursorPos.y - form.TabCursorY) < cursorTravel;
}

std::string walkTrace(const Zevlin& form) {
    return "  P1_KeyDown TabTo " + numberText(form.TabCode) + ", " +
           numberText(form.TabTable[form.TabCode]) + ", Cursor: " + numberText(form.CursorPos.x) +
           ", " + numberText(form.CursorPos.y) + " | " + numberText(form.TabCursorX) + ", " +
           numberText(form.TabCursorY);
}

bool isHole(const Zevlin& form, int item) {
    const auto& fields = item >= firstMarkItem ? form.AMark : form.AText;
    const int index = item >= firstMarkItem ? item - firstMarkItem : item;
    return fields.exists(index) && !isField(fields[index]);
}

/// The next item in one direction, past holes; 0 where the walk ends. The count of turns ends a
/// circle of holes alone.
template <typename Step>
int nextItem(const Zevlin& form, int from, Step step) {
    int item = step(from);
    for (int turns = form.TabTable.UBound(); item > 0 && isHole(form, item); --turns) {
        if (turns == 0) return 0;
        item = step(item);
    }
    return item;
}

int itemAfter(const Zevlin& form, int from) {
    return nextItem(form, from, [&](int item) {
        // The walk may have reached a hole beyond the table, where it ends. If it starts there,
        // that is failure 9.
        const bool ends = item != from && item > form.TabTable.UBound();
        return ends ? 0 : int{form.TabTable[item]};
    });
}

int itemBefore(const Zevlin& form, int from) {
    return nextItem(form, from,
                    [&](int item) { return form.TabTable.predecessor(item).value_or(0); });
}

void goToText(Zevlin& form, int item) {
    FlashFocus(form, item);
    // A press that never became a click has nothing to do with this field.
    form.ClickIndex = 0;
    // The flash lets events run: the field may be gone.
    if (form.AText.exists(item)) AText_Click(form, item);
}

void goFromMark(Zevlin& form, int item) {
    if (item >= firstMarkItem) return TabToMark(form, item);
    form.TabActive = false;
    goToText(form, item);
}

void goFromText(Zevlin& form, int item) {
    if (item < firstMarkItem) return goToText(form, item);
    hideTextBox(form, form.CText);
    hideTextBox(form, form.LText);
    TabToMark(form, item);
}

void traceFromText(Zevlin& form, int from, int to) {
    Traceit(form, "  xText_LostFocus TabTo " + numberText(to) + ", from " + numberText(from));
}

void moveToMark(Zevlin& form, int item) {
    const int index = item - firstMarkItem;
    Traceit(form, "TabToMark (" + numberText(item) + ") at " + placeText(form.AMark[index]));
    CheckOnScreen(form, item);
    const toolkit::Label& mark = form.AMark[index];
    const auto target = screenPlace(form, mark.Left + mark.Width / 3, mark.Top + mark.Height / 3);
    form.TabActive = true;
    form.TabCursorX = target.x;
    form.TabCursorY = target.y;
    form.TabCode = toolkit::toInteger16(item);
    Traceit(form, "  TabToMark (" + numberText(item) + ") Cursor at " + numberText(target.x) +
                      ", " + numberText(target.y));
    toolkit::setCursorPosition(target);
    FlashFocus(form, item);
    form.SetFocus(form.P1);
}

} // namespace

void walkFromText(Zevlin& form, bool backward) {
    const int from = form.TIndex;
    const int next = backward ? itemBefore(form, from) : itemAfter(form, from);
    if (next <= 0) return;
    traceFromText(form, from, next);
    goFromText(form, next);
}

void walkFromMark(Zevlin& form, int shift) {
    if (!form.TabActive) return;
    const bool still = cursorIsStill(form);
    Traceit(form, walkTrace(form));
    if (!still) return;
    if (form.TabTable[form.TabCode] <= 0) return;
    const int next = shift == 0 ? itemAfter(form, form.TabCode) : itemBefore(form, form.TabCode);
    if (next > 0) goFromMark(form, next);
}

void toggleTabbedMark(Zevlin& form) {
    if (!form.TabActive) return;
    if (!cursorIsStill(form)) {
        form.TabActive = false;
        return;
    }
    toolkit::Label& mark = form.AMark[form.TabCode - firstMarkItem];
    mark.Visible = !mark.Visible;
    SetMod(form);
}

void TabToMark(Zevlin& form, int item) {
    trapped(form, "Error in TabToMark: #", [&] { moveToMark(form, item); });
}

} // namespace zev
