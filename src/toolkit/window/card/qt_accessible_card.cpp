#include "toolkit/window/card/qt_accessible_card.h"

#include <memory>
#include <utility>

#include "toolkit/base/qt_text.h"
#include "toolkit/window/card/qt_accessible_field.h"
#include "toolkit/window/card/qt_card_widget.h"

namespace toolkit {
namespace {

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* card = dynamic_cast<CardWidget*>(object);
    return card == nullptr ? nullptr : std::make_unique<AccessibleCardWidget>(*card).release();
}

} // namespace

void answerAboutCards() { QAccessible::installFactory(makeInterface); }

void tellScreenReaders(CardWidget& card) {
    if (!isHeard() || card.isFrozen()) return;
    auto* known = dynamic_cast<AccessibleCardWidget*>(QAccessible::queryAccessibleInterface(&card));
    if (known != nullptr) known->tellChanges();
}

AccessibleCardWidget::AccessibleCardWidget(CardWidget& card)
    : QAccessibleWidget(&card, QAccessible::Form, QStringLiteral("Convention card")), card_(card) {}

AccessibleCardWidget::~AccessibleCardWidget() { forget(); }

void AccessibleCardWidget::forget() const {
    for (const QAccessible::Id section : std::exchange(sections_, {}))
        QAccessible::deleteAccessibleInterface(section);
    fields_.clear();
}

void AccessibleCardWidget::build() const {
    if (!card_.accessible().sections || fieldCount_ == card_.accessible().fieldCount()) return;
    const bool isFirst = fieldCount_ < 0;
    forget();
    fieldCount_ = card_.accessible().fieldCount();
    for (const AccessibleSection& section : card_.accessible().sections()) {
        auto part = std::make_unique<AccessibleSectionPart>(card_, section);
        for (std::size_t index = 0; index < section.fields.size(); ++index)
            fields_.push_back({.field = section.fields[index].id, .id = part->fields()[index]});
        sections_.push_back(QAccessible::registerAccessibleInterface(part.release()));
    }
    const AccessibleCard& source = card_.accessible();
    for (Told& told : fields_) {
        if (told.field.kind == FieldId::Kind::Text)
            told.text = source.text(told.field);
        else
            told.isSet = source.isSet(told.field);
    }
    focused_ = source.focused();
    if (!isFirst) {
        QAccessibleEvent event(&card_, QAccessible::ObjectReorder);
        tell(event);
    }
}

int AccessibleCardWidget::childCount() const {
    build();
    return static_cast<int>(sections_.size()) + QAccessibleWidget::childCount();
}

QAccessibleInterface* AccessibleCardWidget::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    const auto place = static_cast<std::size_t>(index);
    if (place < sections_.size()) return QAccessible::accessibleInterface(sections_[place]);
    return QAccessibleWidget::child(index - static_cast<int>(sections_.size()));
}

int AccessibleCardWidget::indexOfChild(const QAccessibleInterface* child) const {
    for (std::size_t index = 0; index < sections_.size(); ++index)
        if (QAccessible::accessibleInterface(sections_[index]) == child)
            return static_cast<int>(index);
    const int own = QAccessibleWidget::indexOfChild(child);
    return own < 0 ? own : own + static_cast<int>(sections_.size());
}

QAccessibleInterface* AccessibleCardWidget::childAt(int x, int y) const {
    // A box lies over its field.
    for (int index = childCount() - 1; index >= 0; --index) {
        QAccessibleInterface* part = child(index);
        const bool isSection = index < static_cast<int>(sections_.size());
        if (QAccessibleInterface* field = isSection ? part->childAt(x, y) : nullptr) return field;
        if (!isSection && !part->state().invisible && part->rect().contains(x, y)) return part;
    }
    return nullptr;
}

QAccessibleInterface* AccessibleCardWidget::interfaceOf(FieldId field) const {
    for (const Told& told : fields_)
        if (told.field == field) return QAccessible::accessibleInterface(told.id);
    return nullptr;
}

QAccessibleInterface* AccessibleCardWidget::focusChild() const {
    build();
    const auto focused = card_.accessible().focused ? card_.accessible().focused() : std::nullopt;
    if (focused && focused->kind == FieldId::Kind::CheckBox) return interfaceOf(*focused);
    return QAccessibleWidget::focusChild();
}

void AccessibleCardWidget::tellField(Told& told) {
    QAccessibleInterface* field = QAccessible::accessibleInterface(told.id);
    if (!field->isValid()) return;
    if (told.field.kind == FieldId::Kind::CheckBox) {
        const bool isSet = card_.accessible().isSet(told.field);
        if (std::exchange(told.isSet, isSet) == isSet) return;
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(field, changed);
        return tell(event);
    }
    std::string text = card_.accessible().text(told.field);
    if (text == told.text) return;
    const QString before = qString(std::exchange(told.text, std::move(text)));
    QAccessibleTextUpdateEvent event(field, 0, before, qString(told.text));
    tell(event);
}

/// A text that is open has a box of its own, which tells its focus itself, but not where it goes on
/// to the next text.
void AccessibleCardWidget::tellFocus() {
    const auto focused = card_.accessible().focused();
    const auto before = std::exchange(focused_, focused);
    if (before == focused || !focused) return;
    const bool isBox = focused->kind == FieldId::Kind::Text;
    if (isBox && (!before || before->kind != FieldId::Kind::Text)) return;
    QAccessibleInterface* part = isBox ? QAccessibleWidget::focusChild() : interfaceOf(*focused);
    if (part == nullptr) return;
    QAccessibleEvent event(part, QAccessible::Focus);
    tell(event);
}

void AccessibleCardWidget::tellChanges() {
    if (fieldCount_ < 0) return;
    build();
    for (Told& told : fields_) tellField(told);
    tellFocus();
}

} // namespace toolkit
