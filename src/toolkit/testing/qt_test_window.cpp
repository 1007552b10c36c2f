#include "toolkit/testing/qt_test_window.h"

#include <stdexcept>

#include <QtCore/QCoreApplication>

#include "toolkit/window/input/qt_event_dispatcher.h"

namespace toolkit::test {

WindowImplementation& window() {
    if (currentWindow() == nullptr) throw std::logic_error("no window is open");
    return *currentWindow();
}

void send(QWidget& widget, QEvent& event) {
    updateWindow();
    QCoreApplication::sendEvent(&widget, &event);
    rethrowKept();
}

} // namespace toolkit::test
