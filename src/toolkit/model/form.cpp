#include "toolkit/model/form.h"

#include <utility>

namespace toolkit {

void Form::SetFocus(Control& control) {
    if (ActiveControl == &control) return;
    // The focus has moved before LostFocus runs: what that procedure opens in its turn takes the
    // focus from here on, and keeps it.
    Control* previous = std::exchange(ActiveControl, &control);
    if (previous != nullptr && previous->LostFocus) previous->LostFocus();
    if (ActiveControl == &control && control.GotFocus) control.GotFocus();
}

} // namespace toolkit
