#include "toolkit/window/card/qt_card_mouse.h"

#include "toolkit/base/qt_geometry.h"

namespace toolkit {

QRect CardMouse::areaOf(Target target) const {
    if (!target) return {QPoint(0, 0), pixelRectangle(*parts_.card).size()};
    const Label* label = labelAt(parts_, *target);
    return label == nullptr ? QRect() : pixelRectangle(*label);
}

bool CardMouse::canBeClicked(Target target) const {
    if (!parts_.card->Visible || !parts_.card->Enabled) return false;
    if (!target) return true;
    const Label* label = labelAt(parts_, *target);
    return label != nullptr && label->Visible;
}

/// The place is worked out anew for each event: handlers move what they were pressed on.
void CardMouse::send(Target target, LabelSlot labelSlot, CardSlot cardSlot, CardPointer pointer,
                     int button) {
    dispatcher_.run([&] {
        const QPoint place = pointer.point - areaOf(target).topLeft();
        MouseArguments arguments{button, pointer.shift, twipsFromPixels(place.x()),
                                 twipsFromPixels(place.y())};
        if (!target) {
            if (const auto& slot = parts_.card->*cardSlot) slot(arguments);
            return;
        }
        const LabelGroup* group = groupOf(parts_, *target);
        if (group == nullptr || labelAt(parts_, *target) == nullptr) return;
        if (const auto& slot = group->*labelSlot) slot(target->index, arguments);
    });
}

void CardMouse::sendMove(Target target, CardPointer pointer, int buttons) {
    if (!target) restingAt_ = buttons == 0 ? std::optional(pointer.point) : std::optional<QPoint>();
    send(target, &LabelGroup::MouseMove, &Control::MouseMove, pointer, buttons);
}

void CardMouse::sendClick(Target target) {
    dispatcher_.run([&] {
        if (!target) {
            if (parts_.card->Click) parts_.card->Click();
        } else if (const LabelGroup* group = groupOf(parts_, *target);
                   group != nullptr && group->Click) {
            group->Click(target->index);
        }
    });
}

void CardMouse::takeFocus(Target target) {
    const LabelGroup* group = target ? groupOf(parts_, *target) : nullptr;
    if (target && (group == nullptr || !group->TakesFocus)) return;
    dispatcher_.run([&] { parts_.form->SetFocus(*parts_.card); });
}

/// A press that began on bare card says by the card's own pointer whether it drags.
MousePointer CardMouse::pointerOver(QPoint point) const {
    if (!parts_.pointerOver || (pressed_ && !*pressed_)) return MousePointer::Default;
    const Target target = pressed_ ? *pressed_ : frontLabelAt(parts_, point);
    const LabelGroup* group = target ? groupOf(parts_, *target) : nullptr;
    if (target && group == nullptr) return MousePointer::Default;
    return parts_.pointerOver(group == nullptr ? nullptr : group->labels,
                              twipsFromPixels(point.x()), twipsFromPixels(point.y()));
}

void CardMouse::press(CardPointer pointer, int button, Held before) {
    if (!parts_.card->Enabled) return;
    if (before == Held::None || !pressed_) pressed_.emplace(frontLabelAt(parts_, pointer.point));
    const Target target = *pressed_;
    // The procedures of a press read the place of the last move. None need have come: a label that
    // was under the pointer may have gone, or the card may have been moved below it.
    if (!target && restingAt_ != pointer.point && before == Held::None)
        sendMove(target, pointer, 0);
    takeFocus(target);
    send(target, &LabelGroup::MouseDown, &Control::MouseDown, pointer, button);
    // The next press at this very place must not be taken for a drag of this one's button.
    restingAt_.reset();
}

void CardMouse::move(CardPointer pointer, int buttons) {
    if (buttons == 0) pressed_.reset();
    if (!parts_.card->Enabled) return;
    sendMove(pressed_ ? *pressed_ : frontLabelAt(parts_, pointer.point), pointer, buttons);
}

void CardMouse::release(CardPointer pointer, int button, Held after) {
    if (!pressed_) return;
    const Target target = *pressed_;
    if (after == Held::None) pressed_.reset();
    if (!parts_.card->Enabled) return;
    const bool inside = areaOf(target).contains(pointer.point);
    send(target, &LabelGroup::MouseUp, &Control::MouseUp, pointer, button);
    if (inside && canBeClicked(target)) sendClick(target);
}

} // namespace toolkit
