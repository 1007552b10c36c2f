#include "toolkit/window/input/qt_mouse_input.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/model/control.h"

namespace toolkit {

int buttonOf(Qt::MouseButton button) {
    switch (button) {
    case Qt::LeftButton:
        return button::left;
    case Qt::RightButton:
        return button::right;
    case Qt::MiddleButton:
        return button::middle;
    default:
        return 0;
    }
}

int buttonsOf(Qt::MouseButtons buttons) {
    int sum = 0;
    for (const Qt::MouseButton one : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        if (buttons.testFlag(one)) sum += buttonOf(one);
    return sum;
}

int shiftOf(Qt::KeyboardModifiers modifiers) {
    return (modifiers.testFlag(Qt::ShiftModifier) ? shift::shift : 0) +
           (modifiers.testFlag(Qt::ControlModifier) ? shift::ctrl : 0) +
           (modifiers.testFlag(Qt::AltModifier) ? shift::alt : 0);
}

/// From the place in the window: the global one reaches widgets rounded to the nearest pixel.
QPoint pixelUnder(const QMouseEvent& event, const QWidget& widget) {
    return pixelAt(widget.mapFrom(widget.window(), event.scenePosition()));
}

Qt::MouseButton qButtonOf(int button) {
    switch (button) {
    case button::left:
        return Qt::LeftButton;
    case button::right:
        return Qt::RightButton;
    case button::middle:
        return Qt::MiddleButton;
    default:
        return Qt::NoButton;
    }
}

Qt::KeyboardModifiers modifiersOf(int shift) {
    Qt::KeyboardModifiers modifiers;
    modifiers.setFlag(Qt::ShiftModifier, (shift & shift::shift) != 0);
    modifiers.setFlag(Qt::ControlModifier, (shift & shift::ctrl) != 0);
    modifiers.setFlag(Qt::AltModifier, (shift & shift::alt) != 0);
    return modifiers;
}

} // namespace toolkit
