// A text on the form, over the card, that the player only reads. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include <QtWidgets/QLabel>

#include "toolkit/model/control.h"

namespace toolkit {

class Overlay : public QLabel {
  public:
    Overlay(QWidget& container, const TextBox& box);

    /// Takes over what the program changed.
    void push();

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const TextBox& box_;
    std::optional<FontSpec> font_;
};

} // namespace toolkit
