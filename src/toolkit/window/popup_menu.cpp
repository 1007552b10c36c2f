#include "toolkit/window/popup_menu.h"

#include <functional>

#include <QtWidgets/QMenu>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/control/qt_list_view.h"
#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/menu/qt_menu_rows.h"
#include "toolkit/window/qt_box_parent.h"
#include "toolkit/window/qt_cursor.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

/// The row that the player chooses, nullptr for none.
const PopupRow* chosenOnScreen(std::span<const PopupRow> rows, std::string_view name,
                               QPoint place) {
    QMenu menu(boxParent());
    menu.setAccessibleName(qString(name));
    const PopupRow* chosen = nullptr;
    for (const PopupRow& row : rows)
        QObject::connect(&addMenuAction(menu, row.item, row.shortcut), &QAction::triggered, &menu,
                         [&menu, &row, &chosen] {
                             chosen = &row;
                             // A screen reader that presses a row leaves the menu open.
                             menu.close();
                         });
    menu.exec(place);
    return chosen;
}

void popupMenuAt(std::span<const PopupRow> rows, std::string_view name,
                 const std::function<QPoint()>& place) {
    updateWindow();
    if (dialogAnswers().popup) return dialogAnswers().popup(rows);
    const PopupRow* chosen = chosenOnScreen(rows, name, place());
    rethrowKept();
    if (chosen != nullptr && chosen->Click) chosen->Click();
}

} // namespace

void popupMenu(std::span<const PopupRow> rows, std::string_view name) {
    popupMenuAt(rows, name, cursorAmongScreens);
}

void popupMenu(std::span<const PopupRow> rows, std::string_view name, const ListBox& list) {
    popupMenuAt(rows, name, [&list] {
        const auto* view = dynamic_cast<ListView*>(currentWindow()->widgetOf(&list));
        return view == nullptr ? cursorAmongScreens() : view->placeBelowRow();
    });
}

} // namespace toolkit
