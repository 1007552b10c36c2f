// The one window of the program. Internal to the toolkit's sources.
#pragma once

#include <memory>
#include <vector>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/card/qt_card_widget.h"
#include "toolkit/window/control/qt_edit_box.h"
#include "toolkit/window/control/qt_list_view.h"
#include "toolkit/window/control/qt_note.h"
#include "toolkit/window/control/qt_overlay.h"
#include "toolkit/window/input/qt_key_dispatcher.h"
#include "toolkit/window/panel/qt_panel_widget.h"
#include "toolkit/window/qt_form_widget.h"

namespace toolkit {

/// Keeps the values of the controls and their widgets alike.
class WindowImplementation {
  public:
    explicit WindowImplementation(WindowParts shown);
    ~WindowImplementation();

    /// What the player changed goes into the values.
    void pull();
    /// What the program changed goes onto the screen, and nothing else does.
    void push();

    [[nodiscard]] FormWidget& form() { return form_; }
    [[nodiscard]] CardWidget& card() { return card_; }
    [[nodiscard]] EventDispatcher& dispatcher() { return dispatcher_; }
    /// nullptr until it is shown for the first time.
    [[nodiscard]] NoteView* note() { return note_.get(); }
    [[nodiscard]] const WindowParts& parts() const { return parts_; }
    /// The widget that shows the control, nullptr where none does.
    [[nodiscard]] QWidget* widgetOf(const Control* control);

  private:
    [[nodiscard]] bool isShown(const Control& control);
    void pushFocus();
    void pushStacking();
    void watchKeys();
    void nameControls();
    void nameOpenBox();
    void pushNote();

    WindowParts parts_;
    EventDispatcher dispatcher_;
    Wheel wheel_;
    FormWidget form_;
    CardWidget card_;
    std::vector<std::unique_ptr<EditBox>> boxes_;
    std::vector<std::unique_ptr<ListView>> lists_;
    std::vector<std::unique_ptr<Overlay>> overlays_;
    std::vector<std::unique_ptr<PanelWidget>> panels_;
    std::unique_ptr<NoteView> note_;
    KeyDispatcher keys_;
    std::vector<const Control*> stacked_; ///< card, panels and lists, the hindmost first
    bool pushing_ = false;
};

/// The window that is open, nullptr before and after.
[[nodiscard]] WindowImplementation* currentWindow();

/// Takes over all values, if there is a window.
void updateWindow();

} // namespace toolkit
