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

const auto& fieldsOf(const Zevlin& form, int item) {
    return item >= firstMarkItem ? form.AMark : form.AText;
}

int indexOf(int item) { return item >= firstMarkItem ? item - firstMarkItem : item; }

bool isHole(const Zevlin& form, int item) {
    const auto& fields = fieldsOf(form, item);
    return fields.exists(indexOf(item)) && !isField(fields[indexOf(item)]);
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

void goFromCard(Zevlin& form, int item) {
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
    form.TabCode = form.TabLast = toolkit::toInteger16(item);
    Traceit(form, "  TabToMark (" + numberText(item) + ") Cursor at " + numberText(target.x) +
                      ", " + numberText(target.y));
    toolkit::setCursorPosition(target);
    FlashFocus(form, item);
    form.SetFocus(form.P1);
}

/// Whether the walk leads on from the item. A mark without a successor has no way back, either.
bool leadsOn(const Zevlin& form, int item) { return form.TabTable[item] > 0; }

void walkFromMark(Zevlin& form, int shift) {
    const bool still = cursorIsStill(form);
    Traceit(form, walkTrace(form));
    if (!still || !leadsOn(form, form.TabCode)) return;
    const int next = shift == 0 ? itemAfter(form, form.TabCode) : itemBefore(form, form.TabCode);
    if (next > 0) goFromCard(form, next);
}

void walkFromLast(Zevlin& form, int shift) {
    const int from = form.TabLast;
    if (from == 0 || (from >= firstMarkItem && !leadsOn(form, from))) return;
    const int next = shift == 0 ? itemAfter(form, from) : itemBefore(form, from);
    if (next <= 0) return;
    Traceit(form, "  P1_KeyDown TabTo " + numberText(next) + ", from " + numberText(from));
    goFromCard(form, next);
}

/// Where the walk is entered: at text 1, if TAB comes there or goes on from there.
int entryOf(const TabTable& table) {
    if (table.predecessor(1) || (table.UBound() >= 1 && table[1] > 0)) return 1;
    for (int item = 1; item <= table.UBound(); ++item)
        if (table[item] > 0) return item;
    return 1;
}

/// Back to the item to which no TAB leads; in a circle there is none.
int headOf(const TabTable& table, int entry) {
    int item = entry;
    for (auto before = table.predecessor(item); before; before = table.predecessor(item)) {
        if (*before == entry) return entry;
        item = *before;
    }
    return item;
}

int lowestField(const Zevlin& form) {
    for (int i = 1; i <= form.AText.UBound(); ++i)
        if (isField(form.AText[i])) return i;
    for (int i = 1; i <= form.AMark.UBound(); ++i)
        if (isField(form.AMark[i])) return firstMarkItem + i;
    return 0;
}

} // namespace

void walkFromText(Zevlin& form, bool backward) {
    const int from = form.TIndex;
    const int next = backward ? itemBefore(form, from) : itemAfter(form, from);
    if (next <= 0) return;
    traceFromText(form, from, next);
    goFromText(form, next);
}

void walkFromCard(Zevlin& form, int shift) {
    // A text that was opened by a click leaves the walk's rest on a mark as it is.
    if (form.TabActive && form.TabLast == form.TabCode)
        walkFromMark(form, shift);
    else
        walkFromLast(form, shift);
}

void toggleTabbedMark(Zevlin& form) {
    if (!form.TabActive) return;
    if (!cursorIsStill(form)) {
        endRest(form);
        return;
    }
    toolkit::Label& mark = form.AMark[form.TabCode - firstMarkItem];
    mark.Visible = !mark.Visible;
    SetMod(form);
}

void TabToMark(Zevlin& form, int item) {
    trapped(form, "Error in TabToMark: #", [&] { moveToMark(form, item); });
}

const toolkit::Label* unseenMark(const Zevlin& form) {
    if (!form.TabActive || form.ActiveControl != &form.P1 || !toolkit::isCursorUnseen())
        return nullptr;
    const int index = indexOf(form.TabCode);
    return form.AMark.exists(index) ? &form.AMark[index] : nullptr;
}

int firstItem(const Zevlin& form) {
    const int head = headOf(form.TabTable, entryOf(form.TabTable));
    const auto& fields = fieldsOf(form, head);
    if (fields.exists(indexOf(head)) && isField(fields[indexOf(head)])) return head;
    const int next = head <= form.TabTable.UBound() ? itemAfter(form, head) : 0;
    return next > 0 ? next : lowestField(form);
}

void MFirstField_Click(Zevlin& form) {
    procedure(form, "MFirstField_Click", [&] {
        commitOpenField(form);
        form.SetFocus(form.P1);
        if (const int item = firstItem(form); item > 0) goFromCard(form, item);
    });
}

} // namespace zev
