// What keys do on a panel when none of its controls has taken them.
#include <algorithm>

#include <QtGui/QKeyEvent>

#include "toolkit/key.h"
#include "toolkit/qt_panel_widget.h"

namespace toolkit {
namespace {

bool canHaveFocus(const PanelPart& part) { return part.control->Visible && part.control->Enabled; }

} // namespace

void PanelWidget::takeKey(const PanelPart& part, QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Tab:
        return walk(part, 1);
    case Qt::Key_Backtab:
        return walk(part, -1);
    case Qt::Key_Escape:
        return clickWhere(&CommandButton::Cancel);
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return part.button != nullptr ? click(*part.button) : clickWhere(&CommandButton::Default);
    case Qt::Key_Space:
        if (part.button != nullptr) return click(*part.button);
        break;
    default:
        break;
    }
    part.takeKey(event);
}

/// From the first such step on, the platform shows where the focus is.
void PanelWidget::walk(const PanelPart& from, int step) {
    window()->setAttribute(Qt::WA_KeyboardFocusChange);
    const auto count = static_cast<int>(parts_.size());
    const auto start = static_cast<int>(&from - parts_.data());
    for (int i = 1; i < count; ++i) {
        const PanelPart& next =
            parts_[static_cast<std::size_t>((start + i * step + i * count) % count)];
        if (canHaveFocus(next)) return delivery_.run([&] { form_.SetFocus(*next.control); });
    }
}

/// A key that is held down presses a button once.
void PanelWidget::click(const CommandButton& button) {
    if (!button.Visible || !button.Enabled || isKeyRepeat()) return;
    delivery_.run([&] {
        if (button.Click) button.Click();
    });
}

void PanelWidget::clickWhere(bool CommandButton::*role) {
    const auto found = std::ranges::find_if(parts_, [role](const PanelPart& part) {
        return part.button != nullptr && part.button->*role;
    });
    if (found != parts_.end()) click(*found->button);
}

} // namespace toolkit
