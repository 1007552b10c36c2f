#include <optional>

#include <QtGui/QCursor>
#include <QtGui/QGuiApplication>

#include "toolkit/qt_cursor.h"

namespace toolkit {
namespace {

/// Some platforms let no program move the pointer. The walk from field to field must work there
/// too, so a place that was asked for stands until the pointer is seen elsewhere than just then.
struct AssumedCursor {
    CursorPosition asked;
    QPoint pointerThen;
};

std::optional<AssumedCursor>& assumed() {
    static std::optional<AssumedCursor> cursor;
    return cursor;
}

QPoint pointer() { return qGuiApp == nullptr ? QPoint() : QCursor::pos(); }

} // namespace

CursorPosition cursorPosition() {
    const QPoint now = pointer();
    if (assumed() && assumed()->pointerThen == now) return assumed()->asked;
    assumed().reset();
    return {now.x(), now.y()};
}

void setCursorPosition(CursorPosition position) {
    if (qGuiApp != nullptr) QCursor::setPos(position.x, position.y);
    assumeCursorAt(position);
}

void assumeCursorAt(CursorPosition position) { assumed() = AssumedCursor{position, pointer()}; }

} // namespace toolkit
