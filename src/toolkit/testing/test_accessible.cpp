#include "toolkit/testing/test_accessible.h"

#include <stdexcept>

#include <QtGui/QAccessible>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/testing/qt_test_window.h"

namespace toolkit::test {
namespace {

QAccessibleInterface& cardPart() {
    updateWindow();
    return *QAccessible::queryAccessibleInterface(&window().card());
}

std::string roleOf(const QAccessibleInterface& part) {
    switch (part.role()) {
    case QAccessible::Grouping:
        return "group";
    case QAccessible::CheckBox:
        return "check box";
    case QAccessible::EditableText:
        return "text";
    default:
        return "other";
    }
}

AccessiblePart described(QAccessibleInterface& part) {
    AccessiblePart description{.role = roleOf(part),
                               .name = part.text(QAccessible::Name).toStdString(),
                               .value = part.text(QAccessible::Value).toStdString()};
    const QAccessible::State state = part.state();
    description.isChecked = state.checked;
    description.isFocused = state.focused;
    description.isOffscreen = state.offscreen;
    const QPoint corner = window().card().mapFromGlobal(part.rect().topLeft());
    description.corner = {twipsFromPixels(corner.x()), twipsFromPixels(corner.y())};
    description.width = twipsFromPixels(part.rect().width());
    description.height = twipsFromPixels(part.rect().height());
    if (auto* actions = part.actionInterface())
        for (const QString& name : actions->actionNames())
            description.actions.push_back(name.toStdString());
    return description;
}

template <typename Act>
void forEachSection(Act act) {
    QAccessibleInterface& card = cardPart();
    for (int i = 0; i < card.childCount(); ++i)
        if (QAccessibleInterface* part = card.child(i); part->role() == QAccessible::Grouping)
            act(*part);
}

template <typename Act>
void forEachField(Act act) {
    forEachSection([&](QAccessibleInterface& section) {
        for (int i = 0; i < section.childCount(); ++i) act(*section.child(i));
    });
}

QAccessibleInterface& fieldNamed(std::string_view name) {
    QAccessibleInterface* found = nullptr;
    forEachField([&](QAccessibleInterface& field) {
        if (field.text(QAccessible::Name) == qString(name)) found = &field;
    });
    if (found == nullptr) throw std::logic_error("no field has this name");
    return *found;
}

} // namespace

std::vector<AccessiblePart> accessibleSections() {
    std::vector<AccessiblePart> sections;
    forEachSection([&](QAccessibleInterface& part) { sections.push_back(described(part)); });
    return sections;
}

std::vector<AccessiblePart> accessibleFields() {
    std::vector<AccessiblePart> fields;
    forEachField([&](QAccessibleInterface& part) { fields.push_back(described(part)); });
    return fields;
}

AccessiblePart accessibleField(std::string_view name) { return described(fieldNamed(name)); }

std::string accessibleFieldAt(PointOnCard point) {
    const QPoint global =
        window().card().mapToGlobal(QPoint(pixelsFromTwips(point.x), pixelsFromTwips(point.y)));
    QAccessibleInterface* part = cardPart().childAt(global.x(), global.y());
    return part == nullptr ? std::string() : part->text(QAccessible::Name).toStdString();
}

std::string accessibleFocus() {
    QAccessibleInterface* part = cardPart().focusChild();
    return part == nullptr ? std::string() : part->text(QAccessible::Name).toStdString();
}

void act(std::string_view field, std::string_view action) {
    fieldNamed(field).actionInterface()->doAction(qString(action));
}

void replaceText(std::string_view field, int start, int end, std::string_view utf8) {
    fieldNamed(field).editableTextInterface()->replaceText(
        start, end, QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string textOf(std::string_view field, int start, int end) {
    return fieldNamed(field).textInterface()->text(start, end).toStdString();
}

} // namespace toolkit::test
