// What the form shows between frame and controls. Internal to the toolkit.
#pragma once

#include <QtWidgets/QWidget>

#include "toolkit/model/form.h"
#include "toolkit/window/input/qt_wheel.h"

namespace toolkit {

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
    std::string shownHint_;
};

} // namespace toolkit
