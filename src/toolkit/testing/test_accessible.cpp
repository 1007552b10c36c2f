#include "toolkit/testing/test_accessible.h"

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <utility>

#include <QtCore/QTimer>
#include <QtGui/QAccessible>
#include <QtWidgets/QApplication>

#include "toolkit/base/qt_geometry.h"
#include "toolkit/base/qt_text.h"
#include "toolkit/testing/qt_test_window.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/control/qt_painted_part.h"

namespace toolkit::test {
namespace {

QAccessibleInterface& cardPart() {
    updateWindow();
    return *QAccessible::queryAccessibleInterface(&window().card());
}

constexpr std::array roleNames{
    std::pair{QAccessible::Grouping, "group"},
    std::pair{QAccessible::CheckBox, "check box"},
    std::pair{QAccessible::EditableText, "text"},
    std::pair{QAccessible::StaticText, "label"},
    std::pair{QAccessible::Button, "button"},
    std::pair{QAccessible::RadioButton, "radio button"},
    std::pair{QAccessible::ComboBox, "combo box"},
    std::pair{QAccessible::SpinBox, "number"},
    std::pair{QAccessible::Slider, "slider"},
    std::pair{QAccessible::List, "list"},
    std::pair{QAccessible::ListItem, "row"},
    std::pair{QAccessible::Link, "link"},
    std::pair{QAccessible::Dialog, "dialog"},
    std::pair{QAccessible::AlertMessage, "alert"},
    std::pair{QAccessible::Notification, "notice"},
    std::pair{QAccessible::ToolTip, "tip"},
    std::pair{QAccessible::Window, "window"},
    std::pair{QAccessible::PopupMenu, "menu"},
    std::pair{QAccessible::MenuItem, "menu row"},
};

std::string roleOf(const QAccessibleInterface& part) {
    const auto found =
        std::ranges::find(roleNames, part.role(), [](const auto& pair) { return pair.first; });
    return found == roleNames.end() ? "other" : found->second;
}

AccessiblePart described(QAccessibleInterface& part) {
    AccessiblePart description{.role = roleOf(part),
                               .name = part.text(QAccessible::Name).toStdString(),
                               .value = part.text(QAccessible::Value).toStdString(),
                               .description = part.text(QAccessible::Description).toStdString()};
    const QAccessible::State state = part.state();
    description.isChecked = state.checked;
    description.isFocused = state.focused;
    description.isOffscreen = state.offscreen;
    description.isDefault = state.defaultButton;
    description.isSelected = state.selected;
    description.isShown = !state.invisible;
    const QRect place = part.rect();
    const QPoint corner = window().card().mapFromGlobal(place.topLeft());
    description.corner = {twipsFromPixels(corner.x()), twipsFromPixels(corner.y())};
    description.width = twipsFromPixels(place.width());
    description.height = twipsFromPixels(place.height());
    description.area = {place.x(), place.y(), place.width(), place.height()};
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

/// Where the player is.
QWidget& topmostWindow() {
    if (QWidget* menu = QApplication::activePopupWidget()) return *menu;
    if (QWidget* box = QApplication::activeModalWidget()) return *box;
    return window().form();
}

QAccessibleInterface* partBelow(QAccessibleInterface* part, const QString& name) {
    if (part == nullptr || part->text(QAccessible::Name) == name) return part;
    for (int i = 0; i < part->childCount(); ++i)
        if (QAccessibleInterface* found = partBelow(part->child(i), name)) return found;
    return nullptr;
}

QAccessibleInterface& partNamed(std::string_view name, QWidget& within) {
    updateWindow();
    auto* found = partBelow(QAccessible::queryAccessibleInterface(&within), qString(name));
    if (found == nullptr) throw std::logic_error("no part has the name " + std::string(name));
    return *found;
}

QAccessibleInterface& partNamed(std::string_view name) { return partNamed(name, topmostWindow()); }

bool press(QAccessibleInterface& part) {
    QAccessibleActionInterface* actions = part.actionInterface();
    if (actions == nullptr || actions->actionNames().isEmpty()) return false;
    actions->doAction(actions->actionNames().front());
    settle();
    return true;
}

std::vector<std::string>& heardByReader() {
    static std::vector<std::string> heard;
    return heard;
}

std::string kindOf(QAccessibleEvent& event) {
    switch (event.type()) {
    case QAccessible::Focus:
        return "Focus";
    case QAccessible::NameChanged:
        return "Name";
    case QAccessible::ObjectReorder:
        return "Order";
    case QAccessible::StateChanged:
        return static_cast<QAccessibleStateChangeEvent&>(event).changedStates().checked ? "Checked"
                                                                                        : "State";
    default:
        return "Other";
    }
}

void listen(QAccessibleEvent& event) {
    const QAccessibleInterface* part = event.accessibleInterface();
    if (part == nullptr) return;
    heardByReader().push_back(kindOf(event) + " " + part->text(QAccessible::Name).toStdString());
}

/// Its number tells how many were made before it.
class Probe : public PaintedPart {
  public:
    using PaintedPart::PaintedPart;
    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QString text(QAccessible::Text /*kind*/) const override { return {}; }
    [[nodiscard]] QRect rect() const override { return {}; }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::NoRole; }
    [[nodiscard]] QAccessible::State state() const override { return {}; }
};

} // namespace

AccessiblePart accessiblePart(std::string_view name) { return described(partNamed(name)); }

std::vector<AccessiblePart> accessiblePartsNamed(std::string_view name, std::string_view role) {
    updateWindow();
    std::vector<AccessiblePart> found;
    std::vector<QAccessibleInterface*> rest{
        QAccessible::queryAccessibleInterface(&topmostWindow())};
    while (!rest.empty()) {
        QAccessibleInterface& part = *rest.back();
        rest.pop_back();
        if (part.text(QAccessible::Name) == qString(name) && roleOf(part) == role)
            found.push_back(described(part));
        for (int i = 0; i < part.childCount(); ++i) rest.push_back(part.child(i));
    }
    return found;
}

std::vector<AccessiblePart> accessiblePartsOf(std::string_view name) {
    QAccessibleInterface& part = partNamed(name);
    std::vector<AccessiblePart> parts;
    for (int i = 0; i < part.childCount(); ++i) {
        QAccessibleInterface& below = *part.child(i);
        if (part.indexOfChild(&below) != i) throw std::logic_error("a part isn't where it is");
        parts.push_back(described(below));
    }
    return parts;
}

std::string accessiblePartAt(std::string_view name) {
    const QPoint middle = partNamed(name).rect().center();
    QAccessibleInterface* part = QAccessible::queryAccessibleInterface(&topmostWindow());
    while (QAccessibleInterface* inner = part->childAt(middle.x(), middle.y())) part = inner;
    return part->text(QAccessible::Name).toStdString();
}

bool press(std::string_view name) { return press(partNamed(name)); }

bool pressInWindow(std::string_view name) { return press(partNamed(name, window().form())); }

void slideTo(std::string_view name, int value) {
    partNamed(name).valueInterface()->setCurrentValue(value);
}

void readNextBox(std::function<void()> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        if (QApplication::activePopupWidget() == nullptr &&
            QApplication::activeModalWidget() == nullptr)
            return readNextBox(act);
        act();
    });
}

ScreenReader::ScreenReader() {
    forget();
    hearWith(listen);
}

ScreenReader::~ScreenReader() { hearWith({}); }

bool ScreenReader::heard(std::string_view what) const {
    return std::ranges::find(heardByReader(), what) != heardByReader().end();
}

const std::vector<std::string>& ScreenReader::all() const { return heardByReader(); }

void ScreenReader::forget() { heardByReader().clear(); }

unsigned partsMade() {
    const QAccessible::Id probe = QAccessible::registerAccessibleInterface(
        std::make_unique<Probe>(window().form()).release());
    QAccessible::deleteAccessibleInterface(probe);
    return probe;
}

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
