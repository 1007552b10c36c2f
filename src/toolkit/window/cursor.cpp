#include "toolkit/window/cursor.h"

#include <optional>

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

#include "toolkit/window/qt_cursor.h"
#include "toolkit/window/qt_screen.h"
#include "toolkit/window/screen.h"

namespace toolkit {
namespace {

/// Some platforms let no program move the pointer. The walk from field to field must work there
/// too, so a place that was asked for stands until the pointer is seen elsewhere than just then.
struct AssumedCursor {
    QPoint asked;
    QPoint pointerThen;
    bool refused = false;
};

std::optional<AssumedCursor>& assumed() {
    static std::optional<AssumedCursor> cursor;
    return cursor;
}

QPoint pointer() { return qGuiApp == nullptr ? QPoint() : QCursor::pos(); }

/// The player's hand decides: what was assumed ends as soon as the pointer moves.
void forgetWhenMoved(QPoint now) {
    if (assumed() && assumed()->pointerThen != now) assumed().reset();
}

/// Wayland has no request for it, and its plugin would only complain.
bool mayMovePointer() {
    return qGuiApp != nullptr && !pointerStays() &&
           !QGuiApplication::platformName().startsWith("wayland");
}

/// A pixel or two are lost where the screen's pixels aren't the logical ones.
bool isNear(QPoint place, QPoint other) {
    constexpr int nearness = 3;
    return (place - other).manhattanLength() <= nearness;
}

/// The others ignore such a request without a word. Where it only couldn't go as far as it was
/// asked to, it has moved, or stands at the edge of the screens.
bool hasStayed(QPoint before, QPoint asked) {
    return pointer() == before && !isNear(before, asked) &&
           QGuiApplication::screenAt(asked) != nullptr;
}

} // namespace

QPoint cursorAmongScreens() {
    const QPoint now = pointer();
    forgetWhenMoved(now);
    return assumed() ? assumed()->asked : now;
}

CursorPosition cursorPosition() {
    const QPoint place = cursorAmongScreens() - screenOrigin();
    return {place.x(), place.y()};
}

void setCursorPosition(CursorPosition position) {
    const QPoint place = screenOrigin() + QPoint(position.x, position.y);
    const QPoint before = pointer();
    if (mayMovePointer()) QCursor::setPos(place);
    assumeCursorAt(place);
    assumed()->refused = hasStayed(before, place);
}

bool isCursorUnseen() {
    // Only where it was refused is the pointer worth a question.
    if (!assumed() || !assumed()->refused) return false;
    forgetWhenMoved(pointer());
    return assumed().has_value();
}

void assumeCursorAt(QPoint place) { assumed() = AssumedCursor{place, pointer()}; }

} // namespace toolkit
