#include "design/undo.h"

#include "design/add_field.h"
#include "design/design_field.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"
#include "toolkit/window/program.h"

namespace zev {
namespace {

constexpr int undoKey = 26;

void moveBack(Zevlin& form) {
    const DesignField field{form.UndoIsText ? FieldKind::Text : FieldKind::Mark, form.UndoIndex};
    form.UndoIndex = 0;
    labelOf(form, field).Move(form.UndoLeft, form.UndoTop, form.UndoWidth, form.UndoHeight);
}

void unloadLastText(Zevlin& form) {
    const int last = form.AText.UBound() - 1;
    form.AText.UnloadAbove(last);
    form.Highlight.UnloadAbove(last);
    if (form.TIndex > last) form.TIndex = 0;
}

/// Removes the last field of the checked shape, if it was added. A field of the layout is never
/// removed: card files know the others by their numbers.
void unloadLast(Zevlin& form) {
    form.UndoIndex = 0;
    const DesignField last = form.MText.Checked ? DesignField{FieldKind::Text, form.AText.UBound()}
                                                : DesignField{FieldKind::Mark, form.AMark.UBound()};
    if (form.FieldAdded != last || last.index == 0) {
        toolkit::beep();
    } else if (last.kind == FieldKind::Text) {
        unloadLastText(form);
    } else {
        form.AMark.UnloadAbove(last.index - 1);
    }
    keepAddedField(form);
    form.SetFocus(form.P1);
}

void undo(Zevlin& form) {
    if (form.UndoIndex < 1) {
        toolkit::beep();
    } else if (form.UndoValid) {
        moveBack(form);
    } else {
        unloadLast(form);
    }
}

} // namespace

void P1_KeyPress(Zevlin& form, int& KeyAscii) {
    procedure(form, "P1_KeyPress", toolkit::numberText(KeyAscii), [&] {
        if (form.MShowShapes.Checked && KeyAscii == undoKey) undo(form);
    });
}

} // namespace zev
