// The wheel over the card and the form's background. Internal to the toolkit's sources.
#pragma once

#include "toolkit/model/form.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

class QWheelEvent;

namespace toolkit {

/// Fine-grained wheels send many small turns; the form gets one event for each whole notch.
class Wheel {
  public:
    Wheel(Form& form, EventDispatcher& dispatcher) : form_(form), dispatcher_(dispatcher) {}

    void turn(QWheelEvent& event);

  private:
    Form& form_;
    EventDispatcher& dispatcher_;
    int turned_ = 0;
};

} // namespace toolkit
