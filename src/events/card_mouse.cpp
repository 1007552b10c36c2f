#include "events/card_mouse.h"

#include <optional>
#include <string>

#include "design/add_field.h"
#include "events/mark_clicks.h"
#include "form/field_values.h"
#include "form/modified.h"
#include "form/panels.h"
#include "form/trace.h"
#include "form/zevlin.h"
#include "marks/hit_test.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

using toolkit::numberText;

std::string pressDetails(const toolkit::MouseArguments& mouse) {
    return " B=" + numberText(mouse.Button) + " S=" + numberText(mouse.Shift) +
           " X=" + numberText(mouse.X) + " Y=" + numberText(mouse.Y);
}

std::optional<int> scan(const Zevlin& form) {
    return markAt(form.AMark, form.LastX, form.LastY, form.TwipsPerPixel);
}

void pressCard(Zevlin& form, const toolkit::MouseArguments& mouse) {
    if (form.MShowShapes.Checked) return pressDesign(form, mouse);
    if (mouse.Button != toolkit::button::left) return;
    if (const auto hit = scan(form)) {
        form.LastX = mouse.X;
        form.LastY = mouse.Y;
        form.LastButton = toolkit::button::left;
        form.MarkHitPending = true;
        Traceit(form,
                "  P1_MouseDown Amark(" + numberText(*hit) + ") at " + placeText(form.AMark[*hit]));
    }
    // There is no mark to set here: the card is about to be dragged.
    if (!form.MarkHitPending) form.P1.MousePointer = toolkit::MousePointer::Hand;
}

void moveCard(Zevlin& form, const toolkit::MouseArguments& mouse) {
    form.P1.MousePointer = toolkit::MousePointer::Hand;
    // X and Y count from the card, which has moved with the pointer: so the point that was grabbed
    // stays under it.
    form.P1.Move(form.P1.Left + mouse.X - form.LastX, form.P1.Top + mouse.Y - form.LastY);
}

void followMouse(Zevlin& form, const toolkit::MouseArguments& mouse) {
    if (form.MShowShapes.Checked && (mouse.Button & toolkit::button::right) != 0)
        shapeNewField(form, mouse);
    const bool dragging = mouse.Button == toolkit::button::left && !form.MarkHitPending;
    if (!dragging) {
        form.LastX = mouse.X;
        form.LastY = mouse.Y;
    } else if (form.LastButton == toolkit::button::left) {
        moveCard(form, mouse);
    }
    form.LastButton = static_cast<std::int16_t>(mouse.Button);
    form.LastShift = static_cast<std::int16_t>(mouse.Shift);
}

void setMark(Zevlin& form, int index) {
    form.AMark[index].Visible = true;
    rememberTabMark(form, index);
    Traceit(form, "  P1_Click " + focusText(form, index));
    SetMod(form);
    form.P1Stack.bringToFront(form.AMark[index]);
}

void clickCard(Zevlin& form) {
    if (form.THelp.Visible) return hideHelp(form);
    if (form.LastButton != toolkit::button::left || form.MShowShapes.Checked) return;
    if (const auto hit = scan(form)) setMark(form, *hit);
}

} // namespace

toolkit::MousePointer pointerOver(const Zevlin& form,
                                  const toolkit::ControlArray<toolkit::Label>* group, float X,
                                  float Y) {
    using enum toolkit::MousePointer;
    if (form.MShowShapes.Checked || form.THelp.Visible) return Default;
    if (group == &form.AText || group == &form.SText) return IBeam;
    if (group != nullptr || markAt(form.AMark, X, Y, form.TwipsPerPixel)) return Default;
    return Hand;
}

void P1_MouseDown(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "P1_MouseDown", pressDetails(mouse), [&] { pressCard(form, mouse); });
}

void P1_MouseMove(Zevlin& form, toolkit::MouseArguments& mouse) {
    trapped(form, "Error in P1_MouseMove: #", [&] { followMouse(form, mouse); });
}

void P1_MouseUp(Zevlin& form, toolkit::MouseArguments& mouse) {
    procedure(form, "P1_MouseUp", numberText(mouse.Button), [&] {
        form.P1.MousePointer = toolkit::MousePointer::Default;
        form.MarkHitPending = false;
        if (mouse.Button == toolkit::button::right) letGoOfNewField(form);
    });
}

void P1_Click(Zevlin& form) {
    procedure(form, "P1_Click", numberText(form.LastX) + ", " + numberText(form.LastY),
              [&] { clickCard(form); });
}

} // namespace zev
