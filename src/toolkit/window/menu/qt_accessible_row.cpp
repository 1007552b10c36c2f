#include "toolkit/window/menu/qt_accessible_row.h"

#include <memory>

#include <QtCore/QPointer>
#include <QtGui/QAccessible>
#include <QtGui/QAction>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>

#include "toolkit/base/qt_text.h"
#include "toolkit/model/label.h"

namespace toolkit {
namespace {

/// The menu on which the row stands. What stands on the bar is no row, even while the bar has no
/// room and keeps it in a menu.
QMenu* menuOf(const QAction& row) {
    QMenu* found = nullptr;
    for (QObject* object : row.associatedObjects()) {
        if (qobject_cast<QMenuBar*>(object) != nullptr) return nullptr;
        if (auto* menu = qobject_cast<QMenu*>(object)) found = menu;
    }
    return found;
}

class AccessibleRow : public QAccessibleInterface, public QAccessibleActionInterface {
  public:
    explicit AccessibleRow(QAction& row) : row_(&row), menu_(menuOf(row)) {}

    [[nodiscard]] bool isValid() const override { return row_ != nullptr && menu_ != nullptr; }
    [[nodiscard]] QObject* object() const override { return row_; }
    [[nodiscard]] QWindow* window() const override { return menu_->windowHandle(); }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(menu_);
    }
    [[nodiscard]] int childCount() const override { return row_->menu() == nullptr ? 0 : 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 && childCount() > 0 ? QAccessible::queryAccessibleInterface(row_->menu())
                                              : nullptr;
    }
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override {
        QAccessibleInterface* submenu = child(0);
        return submenu != nullptr && submenu->rect().contains(x, y) ? submenu : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* other) const override {
        return child(0) != nullptr && child(0)->object() == other->object() ? 0 : -1;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        switch (kind) {
        case QAccessible::Name:
            // Blanks stand before what is a key's name in the caption.
            return qString(paintedText(ansiText(row_->text().section(u'\t', 0, 0)))).simplified();
        case QAccessible::Accelerator:
            return row_->text().section(u'\t', 1);
        case QAccessible::Description:
            return row_->whatsThis();
        default:
            return {};
        }
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}
    [[nodiscard]] QRect rect() const override {
        return menu_->actionGeometry(row_).translated(menu_->mapToGlobal(QPoint()));
    }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::MenuItem; }
    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state;
        state.invisible = !menu_->isVisible() || !row_->isVisible();
        state.disabled = !row_->isEnabled();
        state.focusable = row_->isEnabled();
        state.focused = menu_->activeAction() == row_;
        state.hotTracked = true;
        state.checkable = row_->isCheckable();
        state.checked = row_->isChecked();
        state.hasPopup = row_->menu() != nullptr;
        return state;
    }

    void* interface_cast(QAccessible::InterfaceType kind) override {
        return kind == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override {
        if (!row_->isEnabled()) return {};
        return {row_->menu() == nullptr ? pressAction() : showMenuAction()};
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name)) return;
        if (name == pressAction())
            row_->trigger();
        else
            menu_->setActiveAction(row_);
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& /*name*/) const override {
        return {};
    }

  private:
    QPointer<QAction> row_;
    QPointer<QMenu> menu_;
};

/// The platform keeps what this returns as long as the object lives. Its own rows have no
/// description, and the key within their name.
QAccessibleInterface* makeRowPart(const QString& className, QObject* object) {
    if (className != u"QAction") return nullptr;
    auto* row = qobject_cast<QAction*>(object);
    if (row == nullptr || row->isSeparator() || menuOf(*row) == nullptr) return nullptr;
    return std::make_unique<AccessibleRow>(*row).release();
}

} // namespace

void answerAboutRows() { QAccessible::installFactory(makeRowPart); }

} // namespace toolkit
