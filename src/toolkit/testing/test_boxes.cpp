#include "toolkit/testing/test_boxes.h"

#include <functional>

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

#include "toolkit/base/qt_text.h"

namespace toolkit::test {
namespace {

/// A box runs an event loop of its own, so what ends it must wait in the queue from before.
void onceThere(std::function<bool()> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        if (!act()) onceThere(act);
    });
}

ScreenArea areaOf(const QWidget& shown) {
    const QRect area = shown.geometry();
    return {area.x(), area.y(), area.width(), area.height()};
}

QMessageBox::StandardButton qButton(Answer answer) {
    switch (answer) {
    case Answer::Ok:
        return QMessageBox::Ok;
    case Answer::Cancel:
        return QMessageBox::Cancel;
    case Answer::Yes:
        return QMessageBox::Yes;
    case Answer::No:
        return QMessageBox::No;
    case Answer::SaveAs:
        return QMessageBox::Save;
    }
    return QMessageBox::NoButton;
}

} // namespace

void endNextBox(std::optional<Answer> answer, ShownBox& seen) {
    onceThere([answer, &seen] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box == nullptr) return false;
        seen = {ansiText(box->windowTitle()), ansiText(box->text()),
                box->textFormat() == Qt::PlainText, areaOf(*box)};
        if (answer)
            box->button(qButton(*answer))->click();
        else
            box->close();
        return true;
    });
}

void fillNextInputBox(std::string_view utf8, ShownBox& seen) {
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    onceThere([text, &seen] {
        auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget());
        if (box == nullptr) return false;
        seen = {ansiText(box->windowTitle()), ansiText(box->labelText()),
                box->findChild<QLabel*>()->textFormat() == Qt::PlainText, areaOf(*box)};
        box->setTextValue(text);
        box->accept();
        return true;
    });
}

void chooseInNextPopup(int row) {
    static ScreenArea unread;
    chooseInNextPopup(row, unread);
}

void chooseInNextPopup(int row, ScreenArea& seen) {
    onceThere([row, &seen] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (menu == nullptr) return false;
        seen = areaOf(*menu);
        menu->setActiveAction(menu->actions().at(row));
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QCoreApplication::sendEvent(menu, &event);
        return true;
    });
}

} // namespace toolkit::test
