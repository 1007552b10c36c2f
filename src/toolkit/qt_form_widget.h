// The form's window: menu bar above, the background with the controls below. Internal to the
// toolkit.
#pragma once

#include <QtWidgets/QWidget>

#include "toolkit/qt_delivery.h"
#include "toolkit/qt_form_place.h"
#include "toolkit/qt_menu_bar.h"
#include "toolkit/qt_wheel.h"
#include "toolkit/window_parts.h"

namespace toolkit {

/// What the form shows between frame and controls.
class FormArea : public QWidget {
  public:
    FormArea(QWidget& form, const Form& values, Wheel& wheel);

    void push();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    const Form& form_;
    Wheel& wheel_;
    FormBackground shown_;
    Color shownColor_ = 0;
};

class FormWidget : public QWidget {
  public:
    FormWidget(const WindowParts& parts, Delivery& delivery, Wheel& wheel);

    [[nodiscard]] FormArea& area() { return area_; }
    [[nodiscard]] MenuBar& menuBar() { return menuBar_; }

    void pull();
    void push();
    /// Separate from push: what lies on the form is in its place before the form is seen.
    void pushVisible();

  protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    [[nodiscard]] int menuHeight() const;
    void layOut();

    Form& form_;
    Delivery& delivery_;
    MenuBar menuBar_;
    FormArea area_;
    FormPlace place_;
    MousePointer pointer_ = MousePointer::Default;
};

} // namespace toolkit
