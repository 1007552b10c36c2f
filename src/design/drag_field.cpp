#include "design/drag_field.h"

#include "design/field_colors.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

void rememberForUndo(Zevlin& form, DesignField field) {
    const toolkit::Label& label = labelOf(form, field);
    form.UndoValid = true;
    form.UndoIndex = toolkit::toInteger16(field.index);
    form.UndoIsText = field.kind == FieldKind::Text;
    form.UndoLeft = label.Left;
    form.UndoTop = label.Top;
    form.UndoWidth = label.Width;
    form.UndoHeight = label.Height;
}

void takeHold(Zevlin& form, DesignField field, const toolkit::MouseArguments& mouse) {
    toolkit::Label& label = labelOf(form, field);
    form.LastX = mouse.X;
    form.LastY = mouse.Y;
    form.DragLeft = label.Left;
    form.DragTop = label.Top;
    if (field.kind == FieldKind::Text) {
        form.TextDragX = mouse.X;
        form.TextDragY = mouse.Y;
    }
    showReadOut(form, field);
    form.P1Stack.bringToFront(label);
}

/// X and Y count from the field, which has moved with the pointer: so the point that was grabbed
/// stays under it.
void drag(Zevlin& form, DesignField field, const toolkit::MouseArguments& mouse) {
    toolkit::Label& label = labelOf(form, field);
    const float left = form.DragLeft + mouse.X - form.LastX;
    const float top = form.DragTop + mouse.Y - form.LastY;
    if (left == label.Left && top == label.Top) return;
    form.DesignDirty = true;
    label.Move(left, top);
    form.DragLeft = label.Left;
    form.DragTop = label.Top;
    showReadOut(form, field);
}

/// False where the step would leave no width: the field couldn't be grabbed any more.
bool widen(Zevlin& form, DesignField field, float step) {
    toolkit::Label& label = labelOf(form, field);
    if (step == 0) return true;
    if (label.Width + step <= 0) return false;
    label.Width += step;
    form.DesignDirty = true;
    showReadOut(form, field);
    return true;
}

bool isDrag(const Zevlin& form, const toolkit::MouseArguments& mouse) {
    return form.FieldHeld && (mouse.Button & toolkit::button::left) != 0;
}

void moveOverText(Zevlin& form, int index, const toolkit::MouseArguments& mouse) {
    form.MousePointer = toolkit::MousePointer::Arrow;
    const DesignField field{FieldKind::Text, index};
    if (isDrag(form, mouse)) {
        if (mouse.Shift != toolkit::shift::ctrl) {
            drag(form, field, mouse);
        } else if (!widen(form, field, mouse.X - form.TextDragX)) {
            return;
        }
    }
    form.TextDragX = mouse.X;
    form.TextDragY = mouse.Y;
}

void letGo(Zevlin& form) {
    form.FieldHeld = false;
    form.LastX = form.LastY = 0;
    form.DragLeft = form.DragTop = 0;
}

} // namespace

void pressField(Zevlin& form, DesignField field, toolkit::MouseArguments& mouse) {
    takeHold(form, field, mouse);
    const int button = mouse.Button;
    // The press must have no other effect.
    mouse.Button = mouse.Shift = 0;
    form.LastButton = 0;
    form.FieldHeld = button == toolkit::button::left;
    if (button == toolkit::button::left) {
        rememberForUndo(form, field);
    } else if (button == toolkit::button::right) {
        openColorMenu(form, field);
    } else {
        form.UndoValid = false;
    }
}

void AMark_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    if (!form.MShowShapes.Checked) return;
    trapped(form, "Error in AMark_MouseMove: #", [&] {
        form.MousePointer = toolkit::MousePointer::Arrow;
        if (isDrag(form, mouse)) drag(form, {FieldKind::Mark, index}, mouse);
    });
}

void AMark_MouseUp(Zevlin& form, int /*index*/, toolkit::MouseArguments& mouse) {
    Traceit(form, "AMark_MouseUp " + toolkit::numberText(mouse.Button));
    if (form.MShowShapes.Checked) letGo(form);
}

void AText_MouseMove(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    if (!form.MShowShapes.Checked || form.MSetTabs.Checked) return;
    trapped(form, "Error in AText_MouseMove: #", [&] { moveOverText(form, index, mouse); });
}

void AText_MouseUp(Zevlin& form, int index, toolkit::MouseArguments& mouse) {
    procedure(form, "AText_MouseUp", toolkit::numberText(mouse.Button), [&] {
        if (!form.MShowShapes.Checked) return;
        letGo(form);
        form.TextDragX = form.TextDragY = 0;
        form.MousePointer = toolkit::MousePointer::Default;
        form.TIndex = toolkit::toInteger16(index);
        form.DesignDirty = true;
        form.SetFocus(form.P1);
    });
}

} // namespace zev
