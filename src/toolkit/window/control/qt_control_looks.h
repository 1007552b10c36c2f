// What edit boxes and lists have in common on the screen. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include <QtCore/QMargins>
#include <QtCore/QPoint>

#include "toolkit/model/form.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

class QMouseEvent;
class QWidget;

namespace toolkit {

/// Gives a widget the place, font, colours and visibility of its control, each only on a change.
class ControlLooks {
  public:
    /// The widget is larger than the control's place by the pixels of `outset`.
    void push(QWidget& widget, const Control& control, QMargins outset);

  private:
    std::optional<FontSpec> font_;
    std::optional<Color> foreColor_;
    std::optional<Color> backColor_;
};

/// Sends the mouse events of one such widget to its control.
class ControlMouse {
  public:
    /// `container` is the control that this one lies on; nullptr is the form.
    ControlMouse(Form& form, EventDispatcher& dispatcher, Control& control,
                 const Control* container, int widening)
        : form_(form), dispatcher_(dispatcher), control_(control), container_(container),
          widening_(widening) {}

    enum class Own { Skip, Handle };

    /// Gives the control the focus, then runs MouseDown. The widget's own handling is skipped for
    /// the right button, for a disabled control and where the handler has swallowed the press.
    [[nodiscard]] Own press(const QWidget& widget, const QMouseEvent& event);
    [[nodiscard]] bool isEnabled() const;
    void takeFocus();
    void release(const QWidget& widget, const QMouseEvent& event);
    /// Runs the Click or DblClick slot.
    void send(std::function<void()> Control::*slot);

  private:
    [[nodiscard]] MouseArguments argumentsOf(const QWidget& widget, const QMouseEvent& event) const;

    Form& form_;
    EventDispatcher& dispatcher_;
    Control& control_;
    const Control* container_;
    int widening_;
};

} // namespace toolkit
