// Place, size and frame of the form. Internal to the toolkit's sources.
#pragma once

#include <QtCore/QMargins>
#include <QtCore/QRect>

#include "toolkit/model/form.h"

class QScreen;
class QWidget;

namespace toolkit {

/// Keeps the form's outer rectangle and that of its window alike, whichever changed last.
class FormPlace {
  public:
    FormPlace(Form& form, QWidget& widget) : form_(form), widget_(widget) {}

    /// `menuHeight` in pixels counts as part of the frame.
    void pull(int menuHeight);
    void push();

  private:
    /// In twips.
    struct Outer {
        float left = 0;
        float top = 0;
        float width = 0;
        float height = 0;

        friend bool operator==(const Outer&, const Outer&) = default;
    };

    [[nodiscard]] Outer wanted() const;
    [[nodiscard]] QMargins presentFrame() const;
    void pullFrame(int menuHeight);
    void keepInside(float frameWidth, float frameHeight);
    void pullPlace();
    void moveTo(QPoint corner, QSize inside);

    Form& form_;
    QWidget& widget_;
    Outer known_;       ///< the form's values when both agreed last
    QRect knownPixels_; ///< the window's rectangle then
    QMargins frame_;
    const QScreen* screen_ = nullptr; ///< only to be compared: it may be unplugged
    int menuHeight_ = 0;
    bool frameChanged_ = true;
    bool hasFilled_ = false; ///< the screen, and be it some time ago
};

} // namespace toolkit
