// A control array of labels with its events.
#pragma once

#include <functional>
#include <string>

#include "toolkit/model/control.h"
#include "toolkit/model/control_array.h"
#include "toolkit/model/label.h"

namespace toolkit {

/// Labels on the card or on a panel with their event slots. X and Y are relative to the label.
struct LabelGroup {
    ControlArray<Label>* labels = nullptr;
    bool TakesFocus = false; ///< a press gives the focus to the card before MouseDown runs
    std::function<void(int index, MouseArguments&)> MouseDown{};
    std::function<void(int index, MouseArguments&)> MouseMove{};
    std::function<void(int index, MouseArguments&)> MouseUp{};
    std::function<void(int index)> Click{};
    // Of a group on a panel of which one is chosen, for screen readers.
    std::function<std::string(int index)> AccessibleName{};
    std::function<bool(int index)> IsChosen{};
};

} // namespace toolkit
