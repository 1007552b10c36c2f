// A button with a caption.
#pragma once

#include <string>

#include "toolkit/model/control.h"

namespace toolkit {

/// "&" in the caption marks the access key. A modal form places and shows its buttons itself.
struct CommandButton : Control {
    std::string Caption;
    bool Default = false; ///< Enter presses it where no other control takes the key
    bool Cancel = false;  ///< Esc does
};

} // namespace toolkit
