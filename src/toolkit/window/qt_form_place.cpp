#include "toolkit/window/qt_form_place.h"

#include <algorithm>
#include <utility>

#include <QtGui/QGuiApplication>
#include <QtGui/QWindow>
#include <QtWidgets/QStyle>
#include <QtWidgets/QWidget>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/twips.h"
#include "toolkit/window/qt_screen.h"
#include "toolkit/window/screen.h"

namespace toolkit {
namespace {

/// What a window manager will put around the form, guessed until it has.
QMargins estimatedFrame(const QWidget& widget) {
    if (QGuiApplication::platformName() == u"offscreen") return {};
    return {1, widget.style()->pixelMetric(QStyle::PM_TitleBarHeight), 1, 1};
}

bool isExposed(const QWidget& widget) {
    return widget.windowHandle() != nullptr && widget.windowHandle()->isExposed();
}

QRect placeOnScreen(const QWidget& widget) {
    return widget.frameGeometry().translated(-screenOrigin());
}

bool fillsTheScreen(const QWidget& widget) { return widget.isMaximized() || widget.isFullScreen(); }

} // namespace

FormPlace::Outer FormPlace::wanted() const {
    return {form_.Left, form_.Top, form_.Width, form_.Height};
}

/// The real frame is known from the first exposure on.
QMargins FormPlace::presentFrame() const {
    if (isExposed(widget_)) return widget_.windowHandle()->frameMargins();
    return knownPixels_.isNull() ? estimatedFrame(widget_) : frame_;
}

void FormPlace::pull(int menuHeight) {
    form_.FillsScreen = fillsTheScreen(widget_);
    hasFilled_ = hasFilled_ || form_.FillsScreen;
    pullFrame(menuHeight);
    frameChanged_ = frameChanged_ && !hasFilled_;
    pullPlace();
}

void FormPlace::pullFrame(int menuHeight) {
    const QMargins frame = presentFrame();
    const QScreen* screen = widget_.screen();
    const bool isElsewhere = std::exchange(screen_, screen) != screen && !knownPixels_.isNull();
    if (frame == frame_ && menuHeight == menuHeight_) return;
    // The player may just be taking the form to a screen of other pixels.
    frameChanged_ = frameChanged_ || (frame != frame_ && !isElsewhere);
    // With that state the frame changes, too; then place and size are the window manager's.
    const bool isManagers = form_.FillsScreen || ((hasFilled_ || isElsewhere) && frame != frame_);
    frame_ = frame;
    menuHeight_ = menuHeight;
    const float width = twipsFromPixels(frame.left() + frame.right());
    const float height = twipsFromPixels(frame.top() + frame.bottom() + menuHeight);
    // Before the first placing there is no inside yet that could be kept.
    if (!knownPixels_.isNull() && !isManagers) keepInside(width, height);
    form_.FrameWidth = width;
    form_.FrameHeight = height;
}

/// The program sized the inside to the card: a frame other than guessed must not cut it, unless the
/// screen does.
void FormPlace::keepInside(float frameWidth, float frameHeight) {
    const Screen screen = toolkit::screen();
    const auto grown = [](float outer, float change, float most) {
        return std::min(outer + change, std::max(outer, most));
    };
    form_.Width = grown(form_.Width, frameWidth - form_.FrameWidth, screen.Width);
    form_.Height = grown(form_.Height, frameHeight - form_.FrameHeight, screen.Height);
}

/// A value stays exactly as the program set it unless the window really is elsewhere. Before the
/// first exposure it only seems to be, for its frame isn't known.
void FormPlace::pullPlace() {
    if (!isExposed(widget_) || widget_.isMinimized()) return;
    const QRect now = placeOnScreen(widget_);
    if (now == knownPixels_ || frameChanged_) return;
    if (now.left() != knownPixels_.left()) form_.Left = twipsFromPixels(now.left());
    if (now.top() != knownPixels_.top()) form_.Top = twipsFromPixels(now.top());
    if (now.width() != knownPixels_.width()) form_.Width = twipsFromPixels(now.width());
    if (now.height() != knownPixels_.height()) form_.Height = twipsFromPixels(now.height());
    knownPixels_ = now;
    known_ = wanted();
}

void FormPlace::push() {
    const Outer outer = wanted();
    if (outer == known_ && !frameChanged_) return;
    const bool moved = outer.left != known_.left || outer.top != known_.top || frameChanged_;
    frameChanged_ = false;
    known_ = outer;
    const QSize inside =
        QSize(pixelsFromTwips(outer.width), pixelsFromTwips(outer.height)).shrunkBy(frame_);
    if (moved)
        moveTo(screenOrigin() + QPoint(pixelsFromTwips(outer.left), pixelsFromTwips(outer.top)),
               inside.expandedTo({1, 1}));
    else if (inside != widget_.size())
        widget_.resize(inside.expandedTo({1, 1}));
    knownPixels_ = placeOnScreen(widget_);
}

/// A shown window gets both at once, for each change that the window manager makes is seen.
void FormPlace::moveTo(QPoint corner, QSize inside) {
    if (widget_.isVisible()) {
        const QPoint frame = widget_.geometry().topLeft() - widget_.pos();
        return widget_.setGeometry(QRect(corner + frame, inside));
    }
    widget_.resize(inside);
    widget_.move(corner);
}

} // namespace toolkit
