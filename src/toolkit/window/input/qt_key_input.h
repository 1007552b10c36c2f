// Keys of Qt's events as handlers see them. Internal to the toolkit.
#pragma once

#include <QtCore/Qt>

class QKeyEvent;

namespace toolkit {

/// The virtual key code of a press or release; 255 for a key that has none.
[[nodiscard]] int keyCodeOf(const QKeyEvent& event);

/// The character that KeyPress gets, 0 for a key that gives none.
[[nodiscard]] int characterOf(const QKeyEvent& event);

// The way back, for tests that press keys by the codes of handlers.
/// A key as the platform names it.
struct KeyStroke {
    int key = 0;
    Qt::KeyboardModifiers modifiers;
    bool repeated = false;
};
[[nodiscard]] KeyStroke keyStrokeOf(int keyCode, int shift);

} // namespace toolkit
