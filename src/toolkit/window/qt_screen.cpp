#include "toolkit/window/qt_screen.h"

#include <QtGui/QGuiApplication>
#include <QtWidgets/QWidget>

namespace toolkit {
namespace {

const QWidget* form = nullptr;

} // namespace

void reckonByScreenOf(const QWidget* window) { form = window; }

const QScreen* presentScreen() {
    if (form == nullptr) return QGuiApplication::primaryScreen();
    const QScreen* underCentre =
        form->isVisible() ? QGuiApplication::screenAt(form->frameGeometry().center()) : nullptr;
    return underCentre == nullptr ? form->screen() : underCentre;
}

QPoint screenOrigin() {
    const QScreen* present = presentScreen();
    return present == nullptr ? QPoint() : present->geometry().topLeft();
}

} // namespace toolkit
