#include "toolkit/window/window.h"

#include <utility>

#include "toolkit/window/qt_window.h"

namespace toolkit {

Window::Window(WindowParts parts)
    : implementation_(std::make_unique<WindowImplementation>(std::move(parts))) {}

Window::~Window() = default;

void Window::update() { updateWindow(); }

} // namespace toolkit
