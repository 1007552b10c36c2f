#include "toolkit/window/card/qt_card_widget.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/window/input/qt_mouse_input.h"

namespace toolkit {
namespace {

// Of the frame around a label, in pixels. The printed words may begin right beside the label.
constexpr int frameOutset = 1;
constexpr int frameWidth = 2;
constexpr QColor frameBlue(0, 90, 200);

} // namespace

CardWidget::CardWidget(QWidget& container, const WindowParts& parts, EventDispatcher& dispatcher,
                       Wheel& wheel)
    : QWidget(&container), parts_(parts), dispatcher_(dispatcher), mouse_(parts, dispatcher),
      wheel_(wheel) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::NoFocus);
    setContextMenuPolicy(Qt::PreventContextMenu);
    setVisible(parts.card->Visible);
}

void CardWidget::push() {
    if (isFrozen()) return pushWaitPointer();
    pushPlace();
    pushPointer();
    if (picture_ != parts_.card->Picture) pushPicture();
    const QRegion changes = scene_.takeOver(parts_);
    if (!changes.isEmpty()) update(changes);
    pushFrame();
    if (isHidden() == parts_.card->Visible) setVisible(parts_.card->Visible);
}

void CardWidget::pushPicture() {
    picture_ = parts_.card->Picture;
    sharp_.reset();
    update();
}

bool CardWidget::isFrozen() const {
    return parts_.frozenCard != nullptr && parts_.frozenCard->Visible;
}

/// The card's own pointer would say that it can be worked upon.
void CardWidget::pushWaitPointer() {
    if (pointer_ == parts_.form->MousePointer) return;
    pointer_ = parts_.form->MousePointer;
    setPointer(*this, pointer_, grip_);
}

/// The size doesn't depend on where the card lies, or a drag would make it flicker by a pixel.
void CardWidget::pushPlace() {
    const PictureBox& card = *parts_.card;
    const QRect place(pixelsFromTwips(card.Left), pixelsFromTwips(card.Top),
                      pixelsFromTwips(card.Width), pixelsFromTwips(card.Height));
    if (place != geometry()) setGeometry(place);
}

/// Reckoned anew after each event: the card may have moved below a pointer that rests.
MousePointer CardWidget::wantedPointer() const {
    const PictureBox& card = *parts_.card;
    const bool isSet = card.MousePointer != MousePointer::Default ||
                       parts_.form->MousePointer != MousePointer::Default;
    if (isSet || !pointedAt_ || !card.Enabled) return card.MousePointer;
    return mouse_.pointerOver(mapFromGlobal(*pointedAt_));
}

/// The hand closes when it takes the card along.
void CardWidget::pushPointer() {
    const Grip grip = dragged_ ? Grip::Closed : Grip::Open;
    const MousePointer wanted = wantedPointer();
    if (pointer_ == wanted && grip_ == grip) return;
    pointer_ = wanted;
    grip_ = grip;
    setPointer(*this, pointer_, grip_);
}

void CardWidget::pushFrame() {
    const Label* label = parts_.framedLabel ? parts_.framedLabel() : nullptr;
    const QMargins outset(frameOutset, frameOutset, frameOutset, frameOutset);
    const QRect frame = label == nullptr ? QRect() : pixelRectangle(*label) + outset;
    if (frame == frame_) return;
    update(frame_);
    update(frame_ = frame);
}

/// As four bars, whole on a screen of any pixel ratio.
void CardWidget::paintFrame(QPainter& painter, const QRegion& area) const {
    if (!area.intersects(frame_)) return;
    const int width = frameWidth;
    const QRegion bars = QRegion(frame_) - frame_.adjusted(width, width, -width, -width);
    painter.setClipRegion(area);
    for (const QRect& bar : bars) painter.fillRect(bar, frameBlue);
}

/// Whether this screen gets a picture of its own, made when it is first painted there.
bool CardWidget::findSharpPicture(double ratio) {
    if (isFrozen()) return sharp_ && !sharp_->empty();
    const SharpPicture& sharp = parts_.card->Sharp;
    if (ratio <= 1 || !picture_ || sharp.of != picture_ || !sharp.drawn) return false;
    if (!sharp_ || sharpRatio_ != ratio) {
        sharp_ = sharp.drawn(static_cast<float>(ratio));
        sharpRatio_ = ratio;
    }
    return !sharp_->empty();
}

/// Pixel by pixel where it has the screen's own, else stretched.
void CardWidget::paintSharpPicture(QPainter& painter, const QRect& area) const {
    const QImage image = imageOver(std::as_const(*sharp_));
    const QSizeF size(picture_->width(), picture_->height());
    painter.save();
    painter.setClipRect(area);
    if (image.size() == (size * sharpRatio_).toSize()) {
        painter.scale(1 / sharpRatio_, 1 / sharpRatio_);
        painter.drawImage(0, 0, image);
    } else {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(QRectF(QPointF(0, 0), size), image);
    }
    painter.restore();
    for (const QRect& rest : QRegion(area) - QRect(QPoint(0, 0), size.toSize()))
        painter.fillRect(rest, qColor(parts_.card->BackColor));
}

void CardWidget::paintPicture(QPainter& painter, const QRect& area) const {
    QRect pictureArea;
    if (picture_ && !picture_->empty()) {
        pictureArea = area & QRect(0, 0, picture_->width(), picture_->height());
        painter.drawImage(pictureArea.topLeft(), imageOver(*picture_), pictureArea);
    }
    if (pictureArea == area) return;
    for (const QRect& rest : QRegion(area) - pictureArea)
        painter.fillRect(rest, qColor(parts_.card->BackColor));
}

void CardWidget::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    const bool sharp = findSharpPicture(painter.deviceTransform().m11());
    for (const QRect& area : event->region()) {
        if (sharp)
            paintSharpPicture(painter, area);
        else
            paintPicture(painter, area);
    }
    scene_.paint(painter, event->region());
    paintFrame(painter, event->region());
}

CardPointer CardWidget::pointerOf(const QMouseEvent& event) const {
    return {pixelUnder(event, *this), shiftOf(event.modifiers())};
}

void CardWidget::mousePressEvent(QMouseEvent* event) {
    event->accept();
    const int button = buttonOf(event->button());
    const int others = buttonsOf(event->buttons()) & ~button;
    if (button != 0)
        mouse_.press(pointerOf(*event), button,
                     others == 0 ? CardMouse::Held::None : CardMouse::Held::Others);
}

/// The second press of a double click is a press like any other.
void CardWidget::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void CardWidget::mouseMoveEvent(QMouseEvent* event) {
    event->accept();
    dragged_ = event->buttons() != Qt::NoButton;
    pointedAt_ = event->globalPosition().toPoint();
    mouse_.move(pointerOf(*event), buttonsOf(event->buttons()));
    if (!isFrozen()) pushPointer();
}

void CardWidget::leaveEvent(QEvent* /*event*/) { pointedAt_.reset(); }

void CardWidget::mouseReleaseEvent(QMouseEvent* event) {
    event->accept();
    const int button = buttonOf(event->button());
    const int others = buttonsOf(event->buttons()) & ~button;
    dragged_ = dragged_ && others != 0;
    if (button != 0)
        mouse_.release(pointerOf(*event), button,
                       others == 0 ? CardMouse::Held::None : CardMouse::Held::Others);
}

/// A message box keeps mouse and keys from the card, and screen readers, too.
bool CardWidget::isReachable() { return QApplication::activeModalWidget() == nullptr; }

void CardWidget::activate(FieldId field) {
    if (isReachable()) dispatcher_.run([&] { parts_.accessible.activate(field); });
}

void CardWidget::replaceText(FieldId field, int start, int end, const std::string& utf8) {
    if (isReachable()) dispatcher_.run([&] { parts_.accessible.replace(field, start, end, utf8); });
}

void CardWidget::wheelEvent(QWheelEvent* event) { wheel_.turn(*event); }

} // namespace toolkit
