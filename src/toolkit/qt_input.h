// Buttons, modifiers and keys of Qt's events as handlers see them. Internal to the toolkit.
#pragma once

#include <QtCore/qnamespace.h>

class QKeyEvent;

namespace toolkit {

/// One button, 0 for those that handlers don't know.
[[nodiscard]] int buttonOf(Qt::MouseButton button);
/// The sum of the buttons.
[[nodiscard]] int buttonsOf(Qt::MouseButtons buttons);
[[nodiscard]] int shiftOf(Qt::KeyboardModifiers modifiers);

/// The virtual key code of a press or release; 255 for a key that has none.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);

/// The character that KeyPress gets, 0 for a key that gives none.
[[nodiscard]] int characterOf(const QKeyEvent& event);

// The way back, for tests that press buttons and keys by the codes of handlers.
[[nodiscard]] Qt::MouseButton qButtonOf(int button);
[[nodiscard]] Qt::KeyboardModifiers modifiersOf(int shift);

/// A key as the platform names it.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    bool repeated = false;
};
[[nodiscard]] KeyStroke keyStrokeOf(int keyCode, int shift);

} // namespace toolkit
