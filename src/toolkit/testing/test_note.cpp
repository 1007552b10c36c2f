#include "toolkit/testing/test_note.h"

#include <stdexcept>

#include <QtGui/QAccessible>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include "toolkit/testing/qt_test_window.h"

namespace toolkit::test {
namespace {

NoteView& note() {
    updateWindow();
    if (window().note() == nullptr) throw std::logic_error("no note was shown yet");
    return *window().note();
}

void click(QWidget& widget) {
    const QPointF place = widget.rect().center();
    const QPointF global = widget.mapToGlobal(place);
    QMouseEvent press(QEvent::MouseButtonPress, place, global, Qt::LeftButton, Qt::LeftButton, {});
    send(widget, press);
    QMouseEvent release(QEvent::MouseButtonRelease, place, global, Qt::LeftButton, {}, {});
    send(widget, release);
}

QAccessibleInterface& linkOf(QAccessibleInterface& part) {
    for (int i = 0; i < part.childCount(); ++i)
        if (part.child(i)->role() == QAccessible::Button) return *part.child(i);
    throw std::logic_error("the note has no button");
}

} // namespace

ShownNote shownNote() {
    updateWindow();
    if (window().note() == nullptr || window().note()->isHidden()) return {};
    NoteView& view = note();
    const bool takesFocus = view.focusPolicy() != Qt::NoFocus ||
                            view.text().focusPolicy() != Qt::NoFocus ||
                            view.link().focusPolicy() != Qt::NoFocus;
    return {.text = view.text().text().toStdString(),
            .link = view.link().text().toStdString(),
            .toolTip = view.toolTip().toStdString(),
            .isWithinWindow = view.parentWidget()->rect().contains(view.geometry()),
            .isCut = view.text().text() != view.accessibleName(),
            .isLinkBelow = view.link().y() >= view.text().geometry().bottom(),
            .takesFocus = takesFocus};
}

void clickNoteLink() { click(note().link()); }

void clickNote() { click(note().text()); }

ReadNote readNote() {
    QAccessibleInterface& part = *QAccessible::queryAccessibleInterface(&note());
    QAccessibleInterface& link = linkOf(part);
    ReadNote read{.isNotification = part.role() == QAccessible::Notification,
                  .name = part.text(QAccessible::Name).toStdString(),
                  .link = link.text(QAccessible::Name).toStdString()};
    for (const QString& action : link.actionInterface()->actionNames())
        read.actions.push_back(action.toStdString());
    return read;
}

} // namespace toolkit::test
