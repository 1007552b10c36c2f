#include "toolkit/window/card/qt_accessible_field.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/window/card/qt_card_widget.h"

namespace toolkit {

AccessibleSectionPart::AccessibleSectionPart(CardWidget& card, const AccessibleSection& section)
    : card_(card), name_(section.name) {
    for (const AccessibleField& field : section.fields)
        fields_.push_back(QAccessible::registerAccessibleInterface(
            std::make_unique<AccessibleFieldPart>(card, *this, field).release()));
}

AccessibleSectionPart::~AccessibleSectionPart() {
    for (const QAccessible::Id field : fields_) QAccessible::deleteAccessibleInterface(field);
}

QWindow* AccessibleSectionPart::window() const { return card_.window()->windowHandle(); }

QAccessibleInterface* AccessibleSectionPart::parent() const {
    return QAccessible::queryAccessibleInterface(&card_);
}

QAccessibleInterface* AccessibleSectionPart::child(int index) const {
    const auto place = static_cast<std::size_t>(index);
    return place < fields_.size() ? QAccessible::accessibleInterface(fields_[place]) : nullptr;
}

int AccessibleSectionPart::indexOfChild(const QAccessibleInterface* child) const {
    for (std::size_t index = 0; index < fields_.size(); ++index)
        if (QAccessible::accessibleInterface(fields_[index]) == child)
            return static_cast<int>(index);
    return -1;
}

QAccessibleInterface* AccessibleSectionPart::childAt(int x, int y) const {
    for (int index = 0; index < childCount(); ++index)
        if (QAccessibleInterface* field = child(index); field->rect().contains(x, y)) return field;
    return nullptr;
}

QString AccessibleSectionPart::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? qString(name_) : QString();
}

QRect AccessibleSectionPart::rect() const {
    QRect all;
    for (int index = 0; index < childCount(); ++index) all |= child(index)->rect();
    return all;
}

AccessibleFieldPart::AccessibleFieldPart(CardWidget& card, AccessibleSectionPart& section,
                                         AccessibleField field)
    : PaintedPart(card), card_(card), section_(section), field_(std::move(field)) {}

bool AccessibleFieldPart::isValid() const { return card_.accessible().label(field_.id) != nullptr; }

QString AccessibleFieldPart::said() const {
    return isValid() && isText() ? qString(card_.accessible().text(field_.id)) : QString();
}

QString AccessibleFieldPart::text(QAccessible::Text kind) const {
    switch (kind) {
    case QAccessible::Name:
        return qString(field_.name);
    case QAccessible::Value:
        return said();
    default:
        return {};
    }
}

void AccessibleFieldPart::setText(QAccessible::Text kind, const QString& text) {
    if (kind == QAccessible::Value) replaceText(0, characterCount(), text);
}

QRect AccessibleFieldPart::rect() const {
    const Label* label = card_.accessible().label(field_.id);
    if (label == nullptr) return {};
    const QRect onCard(pixelsFromTwips(label->Left), pixelsFromTwips(label->Top),
                       pixelsFromTwips(label->Width), pixelsFromTwips(label->Height));
    return {card_.mapToGlobal(onCard.topLeft()), onCard.size()};
}

QAccessible::Role AccessibleFieldPart::role() const {
    return isText() ? QAccessible::EditableText : QAccessible::CheckBox;
}

QAccessible::State AccessibleFieldPart::state() const {
    QAccessible::State state;
    if (!isValid()) {
        state.invalid = true;
        return state;
    }
    state.focusable = true;
    state.disabled = !card_.accessible().isWithinReach(field_.id);
    state.focused = card_.accessible().focused() == field_.id;
    state.editable = isText();
    state.checkable = !isText();
    state.checked = !isText() && card_.accessible().isSet(field_.id);
    state.invisible = !card_.isVisible();
    state.offscreen = !card_.visibleRegion().boundingRect().intersects(
        QRect(card_.mapFromGlobal(rect().topLeft()), rect().size()));
    return state;
}

void* AccessibleFieldPart::interface_cast(QAccessible::InterfaceType type) {
    switch (type) {
    case QAccessible::ActionInterface:
        return static_cast<QAccessibleActionInterface*>(this);
    case QAccessible::TextInterface:
        return isText() ? static_cast<QAccessibleTextInterface*>(this) : nullptr;
    case QAccessible::EditableTextInterface:
        return isText() ? static_cast<QAccessibleEditableTextInterface*>(this) : nullptr;
    default:
        return nullptr;
    }
}

QStringList AccessibleFieldPart::actionNames() const {
    if (isText()) return {setFocusAction(), pressAction()};
    return {toggleAction(), pressAction()};
}

void AccessibleFieldPart::doAction(const QString& name) {
    if (isValid() && actionNames().contains(name)) card_.activate(field_.id);
}

QString AccessibleFieldPart::text(int start, int end) const {
    const QString all = said();
    return all.mid(start, (end < 0 ? static_cast<int>(all.size()) : end) - start);
}

int AccessibleFieldPart::characterCount() const { return static_cast<int>(said().size()); }

QString AccessibleFieldPart::attributes(int /*offset*/, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void AccessibleFieldPart::replaceText(int start, int end, const QString& text) {
    if (isValid() && isText())
        card_.replaceText(field_.id, start, end < 0 ? characterCount() : end, text.toStdString());
}

} // namespace toolkit
