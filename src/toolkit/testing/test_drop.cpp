#include "toolkit/testing/test_drop.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>

#include "toolkit/testing/qt_test_window.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/input/qt_event_dispatcher.h"

namespace toolkit::test {
namespace {

void fill(QMimeData& data, const Dragged& dragged) {
    QList<QUrl> addresses;
    for (const auto& file : dragged.files)
        addresses.append(QUrl::fromLocalFile(QString::fromStdU16String(file.u16string())));
    for (const std::string& address : dragged.addresses)
        addresses.append(QUrl::fromEncoded(QByteArray::fromStdString(address)));
    if (!addresses.isEmpty()) data.setUrls(addresses);
    if (!dragged.text.empty()) data.setText(QString::fromStdString(dragged.text));
}

Qt::DropActions actionsOf(const Dragged& dragged) {
    if (dragged.isOnlyMoved) return Qt::MoveAction;
    return Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;
}

/// The platform begins with what lies under the pointer.
QWidget& target() {
    updateWindow();
    QWidget& form = window().form();
    QWidget* below = form.childAt(form.rect().center());
    return below == nullptr ? form : *below;
}

} // namespace

DragAnswer dragOver(const Dragged& dragged) {
    QMimeData data;
    fill(data, dragged);
    QWidget& widget = target();
    QDragEnterEvent enter(widget.rect().center(), actionsOf(dragged), &data, Qt::LeftButton, {});
    // The platform would have it moved.
    enter.setDropAction(Qt::MoveAction);
    QCoreApplication::sendEvent(&widget, &enter);
    QDragMoveEvent move(widget.rect().center(), actionsOf(dragged), &data, Qt::LeftButton, {});
    move.setDropAction(Qt::MoveAction);
    if (enter.isAccepted()) QCoreApplication::sendEvent(&window().form(), &move);
    if (!enter.isAccepted() || !move.isAccepted()) return DragAnswer::Refused;
    return move.dropAction() == Qt::CopyAction ? DragAnswer::Copied : DragAnswer::Other;
}

bool drop(const Dragged& dragged) {
    if (dragOver(dragged) == DragAnswer::Refused) return false;
    QMimeData data;
    fill(data, dragged);
    QDropEvent event(window().form().rect().center(), actionsOf(dragged), &data, Qt::LeftButton,
                     {});
    QCoreApplication::sendEvent(&window().form(), &event);
    settle();
    rethrowKept();
    return event.isAccepted();
}

} // namespace toolkit::test
