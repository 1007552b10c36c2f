#include "toolkit/testing/test_menus.h"

#include <stdexcept>

#include <QtGui/QAccessible>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMenu>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/model/label.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/input/qt_key_input.h"

namespace toolkit::test {
namespace {

/// Keeps the pointer's place from one event to the next: a menu takes a move for none if the place
/// is the one of before.
QPoint& pointer() {
    static QPoint place;
    return place;
}

std::string captionOf(const QAction& row) {
    return paintedText(ansiText(row.text().section(u'\t', 0, 0)));
}

QList<QMenu*> menus() {
    QList<QMenu*> open;
    for (QWidget* widget : QApplication::topLevelWidgets())
        if (auto* menu = qobject_cast<QMenu*>(widget); menu != nullptr && menu->isVisible())
            open.push_back(menu);
    return open;
}

struct Place {
    QMenu* menu = nullptr;
    QAction* row = nullptr;

    [[nodiscard]] QPoint middle() const {
        return menu->mapToGlobal(menu->actionGeometry(row).center());
    }
};

template <typename Wanted>
Place find(Wanted wanted) {
    for (QMenu* menu : menus())
        for (QAction* row : menu->actions())
            if (row->isVisible() && wanted(*row)) return {menu, row};
    throw std::logic_error("no open menu has the row");
}

Place rowWith(std::string_view caption) {
    return find([&](const QAction& row) { return captionOf(row) == caption; });
}

void sendMouse(QWidget& widget, QEvent::Type type, QPoint place, Qt::MouseButton button) {
    QMouseEvent event(type, widget.mapFromGlobal(place), place, button,
                      type == QEvent::MouseButtonPress ? button : Qt::NoButton, Qt::NoModifier);
    send(widget, event);
}

/// All that is over a menu goes to the menu that was opened last.
void movePointer(QPoint place) {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr) throw std::logic_error("no menu is open");
    // On its way it passes a place nearby.
    for (const QPoint step : {QPoint(1, 0), QPoint()}) {
        pointer() = place + step;
        sendMouse(*popup, QEvent::MouseMove, pointer(), Qt::NoButton);
    }
    settle();
}

void clickAt(QWidget& widget, QPoint place) {
    const QPointer<QWidget> clicked = &widget;
    sendMouse(widget, QEvent::MouseButtonPress, place, Qt::LeftButton);
    if (clicked) sendMouse(widget, QEvent::MouseButtonRelease, place, Qt::LeftButton);
    settle();
}

QAccessibleInterface* readerOf(const Place& place) {
    return QAccessible::queryAccessibleInterface(place.menu)
        ->child(static_cast<int>(place.menu->actions().indexOf(place.row)));
}

QPoint besideMenus() {
    QRect covered;
    for (const QMenu* menu : menus()) covered |= menu->geometry();
    return covered.bottomRight() + QPoint(50, 50);
}

} // namespace

std::string highlightedOnBar() {
    const QAction* entry = window().form().menuBar().activeAction();
    return entry == nullptr ? std::string() : captionOf(*entry);
}

void openMenu(std::string_view caption) {
    updateWindow();
    MenuBar& bar = window().form().menuBar();
    for (QAction* entry : bar.actions())
        if (captionOf(*entry) == caption)
            return clickAt(bar, bar.mapToGlobal(bar.actionGeometry(entry).center()));
    throw std::logic_error("the bar has no such menu");
}

void pointAtRow(std::string_view caption) { movePointer(rowWith(caption).middle()); }

void pointAtSeparator() {
    movePointer(find([](const QAction& row) { return row.isSeparator(); }).middle());
}

void pointBesideMenus() { movePointer(besideMenus()); }

void clickRow(std::string_view caption) {
    pointAtRow(caption);
    const Place place = rowWith(caption);
    clickAt(*place.menu, place.middle());
}

void clickBesideMenus() { clickAt(*QApplication::activePopupWidget(), besideMenus()); }

void typeInMenu(int keyCode) {
    QWidget* popup = QApplication::activePopupWidget();
    if (popup == nullptr) throw std::logic_error("no menu is open");
    const KeyStroke stroke = keyStrokeOf(keyCode, 0);
    QKeyEvent event(QEvent::KeyPress, stroke.key, stroke.modifiers);
    send(*popup, event);
    settle();
}

MenuSelection openMenus() {
    QRect covered;
    for (const QMenu* menu : menus()) covered |= QRect(menu->mapToGlobal(QPoint()), menu->size());
    const MenuBar& bar = window().form().menuBar();
    covered.translate(-bar.mapToGlobal(QPoint(0, bar.height())));
    return {.Left = twipsFromPixels(covered.left()),
            .Top = twipsFromPixels(covered.top()),
            .Width = twipsFromPixels(covered.width()),
            .Height = twipsFromPixels(covered.height())};
}

ReadRow readRow(std::string_view caption) {
    const Place place = rowWith(caption);
    const QAccessibleInterface* row = readerOf(place);
    const QAccessible::State state = row->state();
    return {.name = ansiText(row->text(QAccessible::Name)),
            .description = ansiText(row->text(QAccessible::Description)),
            .shortcut = ansiText(row->text(QAccessible::Accelerator)),
            .checked = state.checked != 0,
            .greyed = state.disabled != 0,
            .highlighted = state.focused != 0,
            .leadsToMenu = row->childCount() == 1 && row->child(0)->object() == place.row->menu(),
            .isInPlace = row->isValid() && row->role() == QAccessible::MenuItem &&
                         row->parent()->object() == place.menu &&
                         row->rect().contains(place.middle())};
}

bool useRow(std::string_view caption) {
    QAccessibleActionInterface* actions = readerOf(rowWith(caption))->actionInterface();
    const QStringList offered = actions->actionNames();
    if (offered.isEmpty()) return false;
    actions->doAction(offered.front());
    settle();
    return true;
}

} // namespace toolkit::test
