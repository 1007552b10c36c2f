#include "toolkit/window/control/qt_accessible_list.h"

#include <memory>

#include "toolkit/window/control/qt_list_view.h"

namespace toolkit {
namespace {

QAccessibleInterface* makeListPart(const QString& /*className*/, QObject* object) {
    auto* list = dynamic_cast<ListView*>(object);
    return list == nullptr ? nullptr : std::make_unique<AccessibleList>(*list).release();
}

} // namespace

void answerAboutLists() { QAccessible::installFactory(makeListPart); }

AccessibleList::AccessibleList(ListView& list)
    : QAccessibleWidget(&list, QAccessible::List), list_(list) {}

int AccessibleList::childCount() const {
    rows_.resize(list_.model()->rowCount());
    return rows_.size();
}

QAccessibleInterface* AccessibleList::child(int index) const {
    if (index >= childCount()) return nullptr;
    return rows_.at(index,
                    [this, index] { return std::make_unique<AccessibleListRow>(list_, index); });
}

int AccessibleList::indexOfChild(const QAccessibleInterface* child) const {
    return rows_.indexOf(child);
}

QAccessibleInterface* AccessibleList::childAt(int x, int y) const {
    return child(list_.indexAt(list_.viewport()->mapFromGlobal(QPoint(x, y))).row());
}

QAccessibleInterface* AccessibleList::focusChild() const {
    return list_.hasFocus() ? child(list_.currentIndex().row()) : nullptr;
}

AccessibleListRow::AccessibleListRow(ListView& list, int row)
    : PressablePart(list), list_(list), row_(row) {}

bool AccessibleListRow::isValid() const { return row_ < list_.model()->rowCount(); }

QString AccessibleListRow::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? list_.model()->index(row_, 0).data().toString() : QString();
}

QRect AccessibleListRow::rect() const {
    const QRect place = list_.visualRect(list_.model()->index(row_, 0));
    return {list_.viewport()->mapToGlobal(place.topLeft()), place.size()};
}

QAccessible::Role AccessibleListRow::role() const {
    return list_.isLink(row_) ? QAccessible::Link : QAccessible::ListItem;
}

QAccessible::State AccessibleListRow::state() const {
    QAccessible::State state;
    state.invalid = !isValid();
    state.selectable = true;
    state.focusable = true;
    state.selected = list_.currentIndex().row() == row_;
    state.focused = state.selected && list_.hasFocus();
    state.invisible = !list_.isVisible();
    state.offscreen = !list_.viewport()->rect().intersects(
        QRect(list_.viewport()->mapFromGlobal(rect().topLeft()), rect().size()));
    state.linked = list_.isLink(row_);
    return state;
}

void AccessibleListRow::press() { list_.choose(row_); }

} // namespace toolkit
