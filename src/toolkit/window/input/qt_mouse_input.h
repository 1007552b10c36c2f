// Buttons and modifiers of Qt's events as handlers see them. Internal to the toolkit.
#pragma once

#include <QtCore/QPoint>

class QMouseEvent;
class QWidget;

namespace toolkit {

/// One button, 0 for those that handlers don't know.
[[nodiscard]] int buttonOf(Qt::MouseButton button);
/// The sum of the buttons.
[[nodiscard]] int buttonsOf(Qt::MouseButtons buttons);
[[nodiscard]] int shiftOf(Qt::KeyboardModifiers modifiers);

/// The whole pixel of the widget that the pointer is in. Worked out when it is asked for: the
/// widget may have moved under the pointer since the event was made.
[[nodiscard]] QPoint pixelUnder(const QMouseEvent& event, const QWidget& widget);

// The way back, for tests that press buttons by the codes of handlers.
[[nodiscard]] Qt::MouseButton qButtonOf(int button);
[[nodiscard]] Qt::KeyboardModifiers modifiersOf(int shift);

} // namespace toolkit
