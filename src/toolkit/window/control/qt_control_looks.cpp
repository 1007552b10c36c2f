#include "toolkit/window/control/qt_control_looks.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QWidget>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/text/text_painter.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {

void ControlLooks::push(QWidget& widget, const Control& control, QMargins outset) {
    const QRect place = pixelRectangle(control).marginsAdded(outset);
    if (place != widget.geometry()) widget.setGeometry(place);
    if (font_ != control.Font) {
        font_ = control.Font;
        widget.setFont(qtFont(control.Font));
    }
    if (foreColor_ != control.ForeColor || backColor_ != control.BackColor) {
        foreColor_ = control.ForeColor;
        backColor_ = control.BackColor;
        QPalette palette = widget.palette();
        palette.setColor(QPalette::Base, qColor(control.BackColor));
        palette.setColor(QPalette::Text, qColor(control.ForeColor));
        widget.setPalette(palette);
    }
    if (widget.isHidden() == control.Visible) widget.setVisible(control.Visible);
}

bool ControlMouse::isEnabled() const {
    return control_.Enabled && (container_ == nullptr || container_->Enabled);
}

MouseArguments ControlMouse::argumentsOf(const QWidget& widget, const QMouseEvent& event) const {
    const QPoint place = pixelUnder(event, widget);
    return {buttonOf(event.button()), shiftOf(event.modifiers()),
            twipsFromPixels(place.x() - widening_), twipsFromPixels(place.y())};
}

ControlMouse::Own ControlMouse::press(const QWidget& widget, const QMouseEvent& event) {
    if (!isEnabled() || buttonOf(event.button()) == 0) return Own::Skip;
    takeFocus();
    MouseArguments arguments = argumentsOf(widget, event);
    dispatcher_.run([&] {
        if (control_.MouseDown) control_.MouseDown(arguments);
    });
    return arguments.Button == button::left || arguments.Button == button::middle ? Own::Handle
                                                                                  : Own::Skip;
}

void ControlMouse::takeFocus() {
    dispatcher_.run([&] { form_.SetFocus(control_); });
}

void ControlMouse::release(const QWidget& widget, const QMouseEvent& event) {
    if (!isEnabled() || buttonOf(event.button()) == 0) return;
    dispatcher_.run([&] {
        MouseArguments arguments = argumentsOf(widget, event);
        if (control_.MouseUp) control_.MouseUp(arguments);
    });
}

void ControlMouse::send(std::function<void()> Control::*slot) {
    if (!isEnabled() || !control_.Visible) return;
    dispatcher_.run([&] {
        if (control_.*slot) (control_.*slot)();
    });
}

} // namespace toolkit
