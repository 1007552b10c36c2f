#include "toolkit/window/popup_menu.h"

#include <map>

#include <QtWidgets/QMenu>

#include "toolkit/window/dialog_answers.h"
#include "toolkit/window/input/qt_event_dispatcher.h"
#include "toolkit/window/menu/qt_menu_rows.h"
#include "toolkit/window/qt_box_parent.h"
#include "toolkit/window/qt_cursor.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {
namespace {

/// The row that the player chooses, nullptr for none.
const PopupRow* chosenOnScreen(std::span<const PopupRow> rows) {
    QMenu menu(boxParent());
    std::map<const QAction*, const PopupRow*> byAction;
    for (const PopupRow& row : rows) byAction[&addMenuAction(menu, row.item, row.shortcut)] = &row;
    const QAction* chosen = menu.exec(cursorAmongScreens());
    const auto found = byAction.find(chosen);
    return found == byAction.end() ? nullptr : found->second;
}

} // namespace

void popupMenu(std::span<const PopupRow> rows) {
    updateWindow();
    if (dialogAnswers().popup) return dialogAnswers().popup(rows);
    const PopupRow* chosen = chosenOnScreen(rows);
    rethrowKept();
    if (chosen != nullptr && chosen->Click) chosen->Click();
}

} // namespace toolkit
