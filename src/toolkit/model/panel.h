// What lies on a panel over the form: labels and controls of its own.
#pragma once

#include <functional>
#include <string>
#include <variant>
#include <vector>

#include "toolkit/model/command_button.h"
#include "toolkit/model/control.h"
#include "toolkit/model/label_group.h"

namespace toolkit {

/// A horizontal slider.
struct ScrollBar : Control {
    int Min = 0;
    int Max = 32767;
    int Value = 0;
    int SmallChange = 1;          ///< an arrow key's step
    int LargeChange = 1;          ///< the step of a page key or a press beside the knob
    std::function<void()> Scroll; ///< the player has changed Value; never the program
};

/// A label that can be pressed. An opaque one has a fine frame, and its text in the middle of its
/// height.
struct PanelLabel : Label {
    bool Wraps = false; ///< a caption that is too wide goes on in the next line, at a blank
    /// Whether a caption that is too wide loses its middle; the tool tip begins with all of it
    /// then.
    bool Shortens = false;
    std::string ToolTip;
    std::string AccessibleName; ///< for screen readers, where the caption doesn't say it
    std::function<void(MouseArguments&)> MouseDown; ///< any button
    std::function<void()> Click;                    ///< the left button
};

using PanelControl = std::variant<TextBox*, ListBox*, CommandButton*, ScrollBar*>;

/// Places on a panel are twips relative to it.
struct PanelContents {
    Panel* box = nullptr; ///< the panel itself
    std::vector<PanelLabel*> labels{};
    std::vector<LabelGroup> groups{}; ///< element 0 is shown like any other; Click is for the left
                                      ///< button, MouseMove and MouseUp never come
    std::vector<PanelControl> controls{}; ///< in the order of the TAB key, which walks in a circle
};

} // namespace toolkit
