// The window that shows the form: it paints the values of the controls and sends their events.
#pragma once

#include <memory>

#include "toolkit/model/window_parts.h"

namespace toolkit {

class WindowImplementation;

/// Events run in the order of the platform: MouseDown, MouseUp, Click for every button, the control
/// that got the press keeps the moves and the release; a MouseMove without button precedes a press
/// on the card whenever the pointer isn't where the last one was sent. Keys go to the form, the
/// menu's shortcuts, the control's KeyDown, KeyPress and then the control itself.
class Window {
  public:
    explicit Window(WindowParts parts);
    ~Window();
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    /// Takes over all values now (events, boxes and waits do it by themselves).
    void update();

  private:
    std::unique_ptr<WindowImplementation> implementation_;
};

} // namespace toolkit
