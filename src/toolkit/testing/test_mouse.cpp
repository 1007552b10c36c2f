#include "toolkit/testing/test_mouse.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QWheelEvent>
#include <QtTest/QSpontaneKeyEvent>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/window/input/qt_mouse_input.h"
#include "toolkit/window/qt_cursor.h"

namespace toolkit::test {
namespace {

/// What the platform keeps between events: the buttons held and the widget that got the press.
struct Mouse {
    Qt::MouseButtons held;
    QPointer<QWidget> grabber;
};

Mouse& mouse() {
    static Mouse state;
    return state;
}

QPointF globalPlace(float x, float y) {
    const QPointF place(static_cast<double>(x) / twipsPerPixel(),
                        static_cast<double>(y) / twipsPerPixel());
    return window().card().mapToGlobal(place);
}

QWidget& widgetUnder(QPointF global) {
    FormArea& area = window().form().area();
    QWidget* child = area.childAt(area.mapFromGlobal(pixelAt(global)));
    return child == nullptr ? area : *child;
}

void sendMouse(QEvent::Type type, float x, float y, Qt::MouseButton button,
               Qt::MouseButtons buttons, int shift) {
    updateWindow();
    const QPointF global = globalPlace(x, y);
    assumeCursorAt(pixelAt(global));
    const bool grabbed = mouse().grabber != nullptr && type != QEvent::MouseButtonPress &&
                         type != QEvent::MouseButtonDblClick;
    QWidget& widget = grabbed ? *mouse().grabber : widgetUnder(global);
    if (buttons != Qt::NoButton) mouse().grabber = &widget;
    if (type == QEvent::MouseButtonRelease && buttons == Qt::NoButton) mouse().grabber = nullptr;
    QMouseEvent event(type, widget.mapFromGlobal(global), window().form().mapFromGlobal(global),
                      global, button, buttons, modifiersOf(shift));
    send(widget, event);
}

void press(QEvent::Type type, float x, float y, int button, int shift) {
    const Qt::MouseButton pressed = qButtonOf(button);
    mouse().held |= pressed;
    sendMouse(type, x, y, pressed, mouse().held, shift);
}

} // namespace

void moveMouse(float x, float y, int buttons, int shift) {
    Qt::MouseButtons held;
    for (const int one : {button::left, button::right, button::middle})
        if ((buttons & one) != 0) held |= qButtonOf(one);
    if (buttons == 0) mouse() = {};
    sendMouse(QEvent::MouseMove, x, y, Qt::NoButton, held, shift);
}

void pressMouse(float x, float y, int button, int shift) {
    press(QEvent::MouseButtonPress, x, y, button, shift);
}

void releaseMouse(float x, float y, int button, int shift) {
    const Qt::MouseButton released = qButtonOf(button);
    mouse().held &= ~Qt::MouseButtons(released);
    sendMouse(QEvent::MouseButtonRelease, x, y, released, mouse().held, shift);
}

void click(float x, float y, int button, int shift) {
    moveMouse(x, y, 0, shift);
    pressMouse(x, y, button, shift);
    releaseMouse(x, y, button, shift);
}

void doubleClick(float x, float y) {
    click(x, y);
    press(QEvent::MouseButtonDblClick, x, y, button::left, 0);
    releaseMouse(x, y);
}

void turnWheel(int rotation, int shift) {
    updateWindow();
    CardWidget& card = window().card();
    const QPointF place = card.mapToGlobal(QRectF(card.rect()).center());
    QWidget& widget = widgetUnder(place);
    QWheelEvent event(widget.mapFromGlobal(place), place, QPoint(), QPoint(0, rotation),
                      Qt::NoButton, modifiersOf(shift), Qt::NoScrollPhase, false);
    // Only wheel events from outside go on to the widget behind one that can't use them.
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(&widget, &event);
    rethrowKept();
}

} // namespace toolkit::test
