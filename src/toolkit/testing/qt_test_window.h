// What the parts of the test support share. Internal to the toolkit.
#pragma once

#include "toolkit/window/qt_window.h"

class QEvent;

namespace toolkit::test {

/// The window under test.
[[nodiscard]] WindowImplementation& window();

/// Takes over what the test has set, sends the event to the widget and throws what a handler threw.
void send(QWidget& widget, QEvent& event);

} // namespace toolkit::test
