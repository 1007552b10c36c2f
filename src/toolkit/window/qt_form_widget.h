// The form's window: menu bar above, the background with the controls below. Internal to the
// toolkit.
#pragma once

#include <filesystem>
#include <optional>

#include <QtWidgets/QWidget>

#include "toolkit/model/window_parts.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/input/qt_wheel.h"
#include "toolkit/window/menu/qt_menu_bar.h"
#include "toolkit/window/qt_form_area.h"
#include "toolkit/window/qt_form_place.h"

namespace toolkit {

/// Tells the platform how to ask about the form's window and its inside.
void answerAboutForms();

class FormWidget : public QWidget {
  public:
    FormWidget(const WindowParts& parts, EventDispatcher& dispatcher, Wheel& wheel);

    [[nodiscard]] FormArea& area() { return area_; }
    [[nodiscard]] MenuBar& menuBar() { return menuBar_; }

    void pull();
    void push();
    /// Separate from push: what lies on the form is in its place before the form is seen.
    void pushVisible();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] int menuHeight() const;
    [[nodiscard]] bool takesFile() const;
    void layOut();

    Form& form_;
    EventDispatcher& dispatcher_;
    MenuBar menuBar_;
    FormArea area_;
    FormPlace place_;
    MousePointer pointer_ = MousePointer::Default;
    std::optional<std::filesystem::path> dragged_; ///< the file over the window
    bool resizeQueued_ = false;                    ///< the form is about to hear of its new size
};

} // namespace toolkit
