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
};

std::optional<AssumedCursor>& assumed() {
    static std::optional<AssumedCursor> cursor;
    return cursor;
}

QPoint pointer() { return qGuiApp == nullptr ? QPoint() : QCursor::pos(); }

} // namespace

QPoint cursorAmongScreens() {
    const QPoint now = pointer();
    if (assumed() && assumed()->pointerThen != now) assumed().reset();
    return assumed() ? assumed()->asked : now;
}

CursorPosition cursorPosition() {
    const QPoint place = cursorAmongScreens() - screenOrigin();
    return {place.x(), place.y()};
}

void setCursorPosition(CursorPosition position) {
    const QPoint place = screenOrigin() + QPoint(position.x, position.y);
    if (qGuiApp != nullptr && !pointerStays()) QCursor::setPos(place);
    assumeCursorAt(place);
}

void assumeCursorAt(QPoint place) { assumed() = AssumedCursor{place, pointer()}; }

} // namespace toolkit
