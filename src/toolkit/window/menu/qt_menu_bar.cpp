#include "toolkit/window/menu/qt_menu_bar.h"

#include <algorithm>

#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QApplication>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/window/menu/qt_menu_rows.h"

namespace toolkit {
namespace {

/// The action with this caption that the player could choose, nullptr where there is none.
QAction* offeredAction(const QList<QAction*>& offered, std::string_view caption) {
    for (QAction* action : offered) {
        const QString text = action->text().section(u'\t', 0, 0);
        if (action->isVisible() && action->isEnabled() && paintedText(ansiText(text)) == caption)
            return action;
    }
    return nullptr;
}

} // namespace

MenuBar::MenuBar(QWidget& form, const WindowParts& parts, EventDispatcher& dispatcher)
    : QMenuBar(&form), parts_(parts), dispatcher_(dispatcher),
      watch_([this](const HighlightedRow& highlighted) { tellSelection(highlighted); }) {
    setNativeMenuBar(false);
    setFocusPolicy(Qt::NoFocus);
    for (std::size_t row = 0; row < parts.menu.size(); ++row) {
        const std::string_view text = parts.menu[row].shortcut;
        shortcuts_.push_back(QKeySequence::fromString(qString(text), QKeySequence::PortableText));
        if (parts.menu[row].level == 0) addEntry(row);
    }
}

void MenuBar::addEntry(std::size_t row) {
    if (!hasMenu(row) && !parts_.menu[row].Click) {
        readOut_ = std::make_unique<ReadOut>(*this, *parts_.menu[row].item);
        return;
    }
    Entry& entry = *entries_.emplace_back(std::make_unique<Entry>());
    entry.row = row;
    if (hasMenu(row)) {
        entry.action = addMenu(&entry.menu);
        watch_.watch(entry.menu);
        connect(&entry.menu, &QMenu::aboutToShow, this, [this, &entry] {
            entry.menu.clear();
            for (QMenu* submenu :
                 entry.menu.findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly))
                submenu->deleteLater();
            fill(entry.menu, entry.row + 1, 1);
        });
    } else {
        entry.action = addAction(QString());
        connectRow(*entry.action, row);
    }
}

void MenuBar::push() {
    for (const auto& entry : entries_) {
        const MenuItem& item = *parts_.menu[entry->row].item;
        if (entry->caption != item.Caption) {
            entry->caption = item.Caption;
            entry->action->setText(qString(item.Caption));
            entry->menu.setAccessibleName(qString(paintedText(item.Caption)));
        }
        entry->action->setVisible(item.Visible);
        entry->action->setEnabled(item.Enabled);
    }
    if (readOut_ != nullptr) readOut_->push();
    placeReadOut();
    endGlow();
    const Form& form = *parts_.form;
    if (isEnabled() == form.MenusEnabled) return;
    showRest(form.MousePointer == MousePointer::Hourglass ? Rest::OfAMoment : Rest::Lasting);
    setEnabled(form.MenusEnabled);
}

void MenuBar::resizeEvent(QResizeEvent* event) {
    QMenuBar::resizeEvent(event);
    placeReadOut();
}

void MenuBar::placeReadOut() {
    if (readOut_ == nullptr || readOut_->isHidden()) return;
    int menusEnd = 0;
    for (QAction* action : actions())
        menusEnd = std::max(menusEnd, actionGeometry(action).right() + 1);
    readOut_->place(menusEnd);
}

/// Arrows go from an open menu to an entry beside it that has none, which the platform goes on
/// highlighting, though the keys are the form's again.
void MenuBar::endGlow() {
    const QAction* entry = activeAction();
    const bool isLeft = entry != nullptr && entry->menu() == nullptr && !underMouse() &&
                        !hasFocus() && QApplication::activePopupWidget() == nullptr;
    if (!isLeft) return;
    QEvent leave(QEvent::Leave);
    leaveEvent(&leave);
}

/// While the program works for a moment, words that turn grey and back would only flicker.
void MenuBar::showRest(Rest rest) {
    QPalette looks;
    if (rest == Rest::OfAMoment)
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            looks.setColor(QPalette::Disabled, role, looks.color(QPalette::Active, role));
    setPalette(looks);
}

bool MenuBar::hasMenu(std::size_t row) const {
    return row + 1 < parts_.menu.size() && parts_.menu[row + 1].level > parts_.menu[row].level;
}

/// Adds the rows of one menu, from `first` up to the end of its level.
void MenuBar::fill(QMenu& menu, std::size_t first, int level) {
    std::size_t row = first;
    while (row < parts_.menu.size() && parts_.menu[row].level >= level) row = addRow(menu, row);
}

/// Returns the row behind this one and its submenu.
std::size_t MenuBar::addRow(QMenu& menu, std::size_t row) {
    const MenuRow& shown = parts_.menu[row];
    if (!hasMenu(row)) {
        QAction& action = addMenuAction(menu, shown.item, shown.shortcut);
        if (shown.item == nullptr) return row + 1;
        connectRow(action, row);
        describe(action, row);
        return row + 1;
    }
    QMenu& submenu = *menu.addMenu(qString(shown.item->Caption));
    submenu.setAccessibleName(qString(paintedText(shown.item->Caption)));
    submenu.menuAction()->setVisible(shown.item->Visible);
    submenu.setEnabled(shown.item->Enabled);
    describe(*submenu.menuAction(), row);
    watch_.watch(submenu);
    fill(submenu, row + 1, shown.level + 1);
    do {
        ++row;
    } while (row < parts_.menu.size() && parts_.menu[row].level > shown.level);
    return row;
}

void MenuBar::connectRow(QAction& action, std::size_t row) {
    connect(&action, &QAction::triggered, this, [this, row] {
        if (QApplication::activePopupWidget() == nullptr) return runIfOffered(row);
        // A row pressed by a screen reader leaves its menus open, and the reader waits for an
        // answer.
        while (QWidget* menu = QApplication::activePopupWidget())
            if (!menu->close()) break;
        QTimer::singleShot(0, this, [this, row] { runIfOffered(row); });
    });
}

/// Styles of the desktop change an action's text, so the row is known by its number.
void MenuBar::describe(QAction& action, std::size_t row) {
    action.setData(QVariant::fromValue(row));
    const auto& description = parts_.form->MenuDescription;
    if (description) action.setWhatsThis(qString(description(parts_.menu[row].item->Caption)));
}

void MenuBar::tellSelection(const HighlightedRow& highlighted) {
    MenuSelection selection;
    if (highlighted.row != nullptr && highlighted.row->data().isValid()) {
        const QRect menus = highlighted.menus.translated(-mapToGlobal(QPoint(0, height())));
        const int rowTop = mapFromGlobal(highlighted.place.topLeft()).y() - height();
        selection = {.Caption =
                         parts_.menu[highlighted.row->data().value<std::size_t>()].item->Caption,
                     .RowTop = twipsFromPixels(rowTop),
                     .Left = twipsFromPixels(menus.left()),
                     .Top = twipsFromPixels(menus.top()),
                     .Width = twipsFromPixels(menus.width()),
                     .Height = twipsFromPixels(menus.height())};
    }
    if (told_ == selection || !parts_.form->MenuSelect) return;
    told_ = selection;
    dispatcher_.run([&] { parts_.form->MenuSelect(selection); });
}

/// A row stays after its menu has closed, and a screen reader can press it whatever has come since.
void MenuBar::runIfOffered(std::size_t row) {
    if (mayAct(row) && QApplication::activeModalWidget() == nullptr) run(row);
}

void MenuBar::run(std::size_t row) {
    dispatcher_.run([&] {
        if (parts_.menu[row].Click) parts_.menu[row].Click();
    });
}

std::optional<std::size_t> MenuBar::menuAround(std::size_t row) const {
    const int level = parts_.menu[row].level;
    while (row-- > 0)
        if (parts_.menu[row].level < level) return row;
    return std::nullopt;
}

bool MenuBar::mayAct(std::size_t row) const {
    const MenuItem* item = parts_.menu[row].item;
    if (!parts_.form->MenusEnabled || item == nullptr || !item->Visible || !item->Enabled)
        return false;
    const std::optional<std::size_t> around = menuAround(row);
    return !around || mayAct(*around);
}

bool MenuBar::runShortcut(const QKeyEvent& event) {
    const QKeyCombination pressed(event.modifiers() & ~Qt::KeypadModifier,
                                  static_cast<Qt::Key>(event.key()));
    const QKeySequence sequence(pressed);
    for (std::size_t row = 0; row < shortcuts_.size(); ++row) {
        if (shortcuts_[row].isEmpty() || shortcuts_[row] != sequence || !mayAct(row)) continue;
        run(row);
        return true;
    }
    return false;
}

bool MenuBar::choose(std::string_view captionPath) {
    QAction* chosen = offeredRow(captionPath);
    if (chosen != nullptr) chosen->trigger();
    return chosen != nullptr;
}

QAction* MenuBar::offeredRow(std::string_view captionPath) {
    QList<QAction*> offered = actions();
    if (!isEnabled()) return nullptr;
    for (;;) {
        const std::size_t end = captionPath.find('>');
        QAction* row = offeredAction(offered, captionPath.substr(0, end));
        if (row == nullptr || end == std::string_view::npos) return row;
        if (row->menu() == nullptr) return nullptr;
        Q_EMIT row->menu()->aboutToShow();
        offered = row->menu()->actions();
        captionPath.remove_prefix(end + 1);
    }
}

} // namespace toolkit
