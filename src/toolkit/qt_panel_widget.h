// A panel on the form. Internal to the toolkit.
#pragma once

#include <optional>

#include <QtWidgets/QWidget>

#include "toolkit/form.h"
#include "toolkit/qt_control_looks.h"

namespace toolkit {

class PanelWidget : public QWidget {
  public:
    PanelWidget(QWidget& container, const Form& form, const Panel& panel);

    /// Takes over what the program changed and asks for a repaint of just that.
    void push();

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

  private:
    /// What decides the panel's own pixels.
    struct Painted {
        PanelFill fill = PanelFill::Plain;
        int cornerRadius = 0;
        Color backColor = 0;
        FormBackground background;
        int formHeight = 0;

        friend bool operator==(const Painted&, const Painted&) = default;
    };
    [[nodiscard]] Painted wanted() const;

    const Form& form_;
    const Panel& panel_;
    ControlLooks looks_;
    std::optional<Painted> painted_;
};

} // namespace toolkit
