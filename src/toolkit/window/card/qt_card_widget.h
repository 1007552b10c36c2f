// The card on the screen: its picture, its labels, its mouse. Internal to the toolkit's sources.
#pragma once

#include <QtWidgets/QWidget>

#include "toolkit/window/card/qt_card_mouse.h"
#include "toolkit/window/card/qt_label_scene.h"
#include "toolkit/window/control/qt_pointer.h"
#include "toolkit/window/input/qt_wheel.h"

namespace toolkit {

class CardWidget : public QWidget {
  public:
    CardWidget(QWidget& container, const WindowParts& parts, EventDispatcher& dispatcher,
               Wheel& wheel);

    /// Takes over what the program changed and asks for a repaint of just that.
    void push();
    /// Whether it goes on showing what it showed before, whatever becomes of the values.
    [[nodiscard]] bool isFrozen() const;

    // For screen readers.
    [[nodiscard]] const AccessibleCard& accessible() const { return parts_.accessible; }
    void activate(FieldId field);
    void replaceText(FieldId field, int start, int end, const std::string& utf8);

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    [[nodiscard]] CardPointer pointerOf(const QMouseEvent& event) const;
    [[nodiscard]] static bool isReachable();
    void pushPlace();
    void pushPicture();
    void pushWaitPointer();
    void pushPointer();
    void pushFrame();
    void paintFrame(QPainter& painter, const QRegion& area) const;
    [[nodiscard]] MousePointer wantedPointer() const;
    void paintPicture(QPainter& painter, const QRect& area) const;
    void paintSharpPicture(QPainter& painter, const QRect& area) const;
    [[nodiscard]] bool findSharpPicture(double ratio);

    const WindowParts& parts_;
    EventDispatcher& dispatcher_;
    CardMouse mouse_;
    Wheel& wheel_;
    LabelScene scene_;
    std::shared_ptr<const Bitmap> picture_;
    /// The picture in the pixels of the screen that it was last painted on, and their ratio.
    std::shared_ptr<const Bitmap> sharp_;
    double sharpRatio_ = 0;
    QRect frame_; ///< around a label; empty for none
    MousePointer pointer_ = MousePointer::Default;
    Grip grip_ = Grip::Open;
    std::optional<QPoint> pointedAt_; ///< where the mouse was seen last, among all screens
    bool dragged_ = false;            ///< the mouse has moved since a button went down
};

} // namespace toolkit
