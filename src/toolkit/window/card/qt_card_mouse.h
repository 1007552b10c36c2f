// Mouse events of the card and its labels. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include <QtCore/QPoint>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/card/qt_label_lookup.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

namespace toolkit {

/// A press, move or release with the modifiers held; the point in the card's logical pixels.
struct CardPointer {
    QPoint point;
    int shift = 0;
};

/// Decides who gets what the mouse does on the card: the front visible label or the card itself,
/// and as long as a button is held, whoever got the press.
class CardMouse {
  public:
    CardMouse(const WindowParts& parts, EventDispatcher& dispatcher)
        : parts_(parts), dispatcher_(dispatcher) {}

    enum class Held { None, Others };

    void press(CardPointer pointer, int button, Held before);
    void move(CardPointer pointer, int buttons);
    void release(CardPointer pointer, int button, Held after);

    /// The pointer for a place on the card, as long as nothing has set one.
    [[nodiscard]] MousePointer pointerOver(QPoint point) const;

  private:
    /// A label, or the card where there is none.
    using Target = std::optional<LabelPlace>;
    using LabelSlot = std::function<void(int, MouseArguments&)> LabelGroup::*;
    using CardSlot = std::function<void(MouseArguments&)> Control::*;

    [[nodiscard]] QRect areaOf(Target target) const;
    [[nodiscard]] bool canBeClicked(Target target) const;
    void send(Target target, LabelSlot labelSlot, CardSlot cardSlot, CardPointer pointer,
              int button);
    void sendMove(Target target, CardPointer pointer, int buttons);
    void sendClick(Target target);
    void takeFocus(Target target);

    const WindowParts& parts_;
    EventDispatcher& dispatcher_;
    std::optional<Target> pressed_;
    std::optional<QPoint> restingAt_; ///< the card's last MouseMove, where it had no button
};

} // namespace toolkit
