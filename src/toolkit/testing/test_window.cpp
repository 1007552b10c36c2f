#include "toolkit/testing/test_window.h"

#include <cstring>
#include <stdexcept>
#include <utility>

#include <QtCore/QCoreApplication>
#include <QtCore/QTimer>
#include <QtGui/QCloseEvent>
#include <QtGui/QImage>
#include <QtGui/QPaintEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>

#include "toolkit/base/qt_text.h"
#include "toolkit/picture/qt_picture.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

namespace toolkit::test {
namespace {

Bitmap bitmapOf(const QImage& image) {
    Bitmap bitmap(image.width(), image.height());
    for (int y = 0; y < image.height(); ++y)
        std::memcpy(bitmap.row(y), image.constScanLine(y),
                    static_cast<std::size_t>(image.width()) * sizeof(std::uint32_t));
    return bitmap;
}

/// On grey, so that what is white in the picture can be told from what is transparent.
Bitmap onGrey(const QPixmap& picture) {
    QImage image(picture.size(), QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter(&image).drawPixmap(0, 0, picture);
    return bitmapOf(image);
}

Bitmap grab(QWidget& widget, double pixelRatio = 1) {
    updateWindow();
    const QSize size = (QSizeF(widget.size()) * pixelRatio).toSize();
    Bitmap bitmap(size.width(), size.height());
    QImage image = imageOver(bitmap);
    image.setDevicePixelRatio(pixelRatio);
    widget.render(&image);
    return bitmap;
}

/// Sees each paint before the widget does.
class PaintCount : public QObject {
  public:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            ++painted_.paints;
            for (const QRect& area : static_cast<QPaintEvent*>(event)->region())
                painted_.pixels += std::int64_t{area.width()} * area.height();
        }
        return QObject::eventFilter(watched, event);
    }
    [[nodiscard]] CardPaints painted() const { return painted_; }

  private:
    CardPaints painted_;
};

/// Sees each place and size that a window gets.
class PlaceCount : public QObject {
  public:
    explicit PlaceCount(QWidget& widget) : widget_(widget), last_(widget.geometry()) {
        widget.installEventFilter(this);
    }
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool isChange = event->type() == QEvent::Move || event->type() == QEvent::Resize;
        if (isChange && std::exchange(last_, widget_.geometry()) != widget_.geometry()) ++count_;
        return QObject::eventFilter(watched, event);
    }
    [[nodiscard]] int count() const { return count_; }

  private:
    QWidget& widget_;
    QRect last_;
    int count_ = 0;
};

} // namespace

bool chooseMenu(std::string_view captionPath) {
    updateWindow();
    const bool chosen = window().form().menuBar().choose(captionPath);
    rethrowKept();
    return chosen;
}

bool showsCheck(std::string_view captionPath) {
    updateWindow();
    const QAction* row = window().form().menuBar().offeredRow(captionPath);
    return row != nullptr && row->isCheckable() && row->isChecked();
}

ShownReadOut shownReadOut() {
    updateWindow();
    MenuBar& bar = window().form().menuBar();
    const ReadOut* label = bar.readOut();
    if (label == nullptr || !label->isVisible()) return {};
    bool isWhole =
        label->sizeHint().width() <= label->width() && bar.rect().contains(label->geometry());
    for (QAction* menu : bar.actions())
        isWhole = isWhole && !bar.actionGeometry(menu).intersects(label->geometry());
    return {ansiText(label->text()), label->x(), label->width(), isWhole};
}

void resizeWindow(int wider, int higher) {
    updateWindow();
    QWidget& form = window().form();
    form.resize(form.width() + wider, form.height() + higher);
    settle();
}

void shiftWindow(int toTheRight, int down) {
    updateWindow();
    QWidget& form = window().form();
    const QScreen* before = form.screen();
    form.move(form.pos() + QPoint(toTheRight, down));
    settle();
    // The platform of the tests has nothing painted on a screen to which a window has come.
    if (form.screen() != before) form.repaint();
}

void changeExtent(Extent extent) {
    updateWindow();
    QWidget& form = window().form();
    form.setWindowState(extent == Extent::Maximised    ? Qt::WindowMaximized
                        : extent == Extent::FullScreen ? Qt::WindowFullScreen
                                                       : Qt::WindowNoState);
    settle();
}

Extent windowExtent() {
    updateWindow();
    const QWidget& form = window().form();
    if (form.isFullScreen()) return Extent::FullScreen;
    return form.isMaximized() ? Extent::Maximised : Extent::Normal;
}

int countPlaces(const std::function<void()>& act) {
    updateWindow();
    const PlaceCount places(window().form());
    act();
    return places.count();
}

void requestClose() {
    QCloseEvent event;
    send(window().form(), event);
}

void closeWindow() {
    requestClose();
    settle();
}

void endSession() {
    updateWindow();
    window().dispatcher().askToEnd();
    settle();
}

void whenRunning(std::function<void()> act) { QTimer::singleShot(0, qApp, std::move(act)); }

/// Twice, because what runs first may queue more; not until nothing is left, for a blinking caret
/// never comes to an end.
void settle() {
    updateWindow();
    for (int round = 0; round < 2; ++round) {
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
    }
    rethrowKept();
}

void endEvent() {
    settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

Bitmap grabCard() { return grab(window().card()); }
Bitmap grabCardAt(double pixelRatio) { return grab(window().card(), pixelRatio); }
Bitmap grabWindow() { return grab(window().form()); }

Bitmap shownPointer() {
    updateWindow();
    return onGrey(window().card().cursor().pixmap());
}

bool showsIBeam() {
    updateWindow();
    return window().card().cursor().shape() == Qt::IBeamCursor;
}

Bitmap shownIcon(int size) {
    return onGrey(window().form().windowIcon().pixmap(QSize(size, size), 1));
}

bool isShown(const Control& control) {
    updateWindow();
    const QWidget* widget = window().widgetOf(&control);
    return widget != nullptr && widget->isVisible();
}

bool hasPlatformFocus(const Control& control) {
    updateWindow();
    const QWidget* widget = window().widgetOf(&control);
    return widget != nullptr && window().form().focusWidget() == widget;
}

std::string shownText(const TextBox& box) {
    updateWindow();
    const auto* edit = dynamic_cast<EditBox*>(window().widgetOf(&box));
    return edit == nullptr ? std::string() : ansiText(edit->text());
}

void elapseAlarms() {
    for (QTimer* timer : qApp->findChildren<QTimer*>(QStringLiteral("alarm"))) {
        QTimerEvent elapsed(timer->timerId());
        QCoreApplication::sendEvent(timer, &elapsed);
    }
}

CardPaints cardPaints() {
    static PaintCount count;
    // Once more is no more than once.
    window().card().installEventFilter(&count);
    return count.painted();
}

} // namespace toolkit::test
