#include "toolkit/window/qt_box_parent.h"

#include "toolkit/window/qt_window.h"

namespace toolkit {

QWidget* boxParent() {
    WindowImplementation* window = currentWindow();
    return window != nullptr && window->form().isVisible() ? &window->form() : nullptr;
}

} // namespace toolkit
