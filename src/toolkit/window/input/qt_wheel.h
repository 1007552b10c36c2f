// The wheel over the card and the form's background. Internal to the toolkit's sources.
#pragma once

#include "toolkit/model/form.h"
#include "toolkit/window/input/qt_delivery.h"

class QWheelEvent;

namespace toolkit {

/// Fine-grained wheels send many small turns; the form gets one event for each whole notch.
class Wheel {
  public:
    Wheel(Form& form, Delivery& delivery) : form_(form), delivery_(delivery) {}

    void turn(QWheelEvent& event);

  private:
    Form& form_;
    Delivery& delivery_;
    int turned_ = 0;
};

} // namespace toolkit
