// A text on the form, over the card, that the player only reads. Internal to the toolkit's sources.
#pragma once

#include <optional>

#include <QtWidgets/QLabel>

#include "toolkit/model/control.h"

namespace toolkit {

/// Tells the platform how to ask about overlays.
void answerAboutOverlays();

class Overlay : public QLabel {
  public:
    Overlay(QWidget& container, const TextBox& box);

    /// Takes over what the program changed.
    void push();
    [[nodiscard]] bool isNotice() const { return box_.IsNotice; }

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const TextBox& box_;
    std::optional<FontSpec> font_;
};

} // namespace toolkit
