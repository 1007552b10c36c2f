#include "toolkit/window/menu/qt_menu_watch.h"

#include <utility>

#include <QtCore/QTimer>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QMenu>

namespace toolkit {
namespace {

QRect placeOf(const QMenu& menu) { return {menu.mapToGlobal(QPoint()), menu.size()}; }

HighlightedRow rowIn(const QMenu& menu, QAction& row) {
    return {.row = &row, .place = menu.actionGeometry(&row).translated(menu.mapToGlobal(QPoint()))};
}

} // namespace

void MenuWatch::watch(QMenu& menu) {
    menu.installEventFilter(this);
    connect(&menu, &QMenu::hovered, this, &MenuWatch::tellSoon);
}

bool MenuWatch::eventFilter(QObject* watched, QEvent* event) {
    auto& menu = static_cast<QMenu&>(*watched);
    switch (event->type()) {
    case QEvent::Show:
        open_.push_back(&menu);
        pointed_ = nullptr;
        tellSoon();
        break;
    case QEvent::Hide:
        std::erase(open_, &menu);
        pointed_ = nullptr;
        tellNow();
        break;
    case QEvent::MouseMove:
        pointed_ = menu.actionAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        tellSoon();
        break;
    case QEvent::KeyPress:
    case QEvent::Leave:
        pointed_ = nullptr;
        tellSoon();
        break;
    default:
        break;
    }
    return false;
}

/// The menu itself takes the event only after this has seen it.
void MenuWatch::tellSoon() {
    if (std::exchange(willTell_, true)) return;
    QTimer::singleShot(0, this, [this] {
        willTell_ = false;
        tellNow();
    });
}

void MenuWatch::tellNow() {
    if (tell_) tell_(highlighted());
}

HighlightedRow MenuWatch::highlighted() const {
    HighlightedRow found;
    QRect menus;
    for (const QMenu* menu : open_) {
        menus |= placeOf(*menu);
        if (QAction* row = menu->activeAction()) found = rowIn(*menu, *row);
        // A greyed row under the pointer: another one's highlight is about to go.
        if (pointed_ && !pointed_->isEnabled() && menu->actions().contains(pointed_)) {
            found = rowIn(*menu, *pointed_);
            break;
        }
    }
    found.menus = menus;
    return found;
}

} // namespace toolkit
