#include "toolkit/window/menu/qt_menu_rows.h"

#include "toolkit/base/qt_text.h"

namespace toolkit {

QAction& addMenuAction(QMenu& menu, const MenuItem* item, std::string_view shortcut) {
    if (item == nullptr) return *menu.addSeparator();
    QString text = qString(item->Caption);
    if (!shortcut.empty()) text += u'\t' + qString(shortcut);
    QAction& action = *menu.addAction(text);
    action.setCheckable(item->Checked);
    action.setChecked(item->Checked);
    action.setEnabled(item->Enabled);
    action.setVisible(item->Visible);
    return action;
}

} // namespace toolkit
