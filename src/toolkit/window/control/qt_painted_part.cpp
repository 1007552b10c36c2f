#include "toolkit/window/control/qt_painted_part.h"

#include <utility>

namespace toolkit {
namespace {

std::function<void(QAccessibleEvent&)>& heardBy() {
    static std::function<void(QAccessibleEvent&)> hear;
    return hear;
}

} // namespace

bool isHeard() { return heardBy() || QAccessible::isActive(); }

void tell(QAccessibleEvent& event) {
    if (heardBy()) return heardBy()(event);
    QAccessible::updateAccessibility(&event);
}

void hearWith(std::function<void(QAccessibleEvent&)> hear) { heardBy() = std::move(hear); }

void* PressablePart::interface_cast(QAccessible::InterfaceType kind) {
    return kind == QAccessible::ActionInterface && canBePressed()
               ? static_cast<QAccessibleActionInterface*>(this)
               : nullptr;
}

QStringList PressablePart::actionNames() const { return {pressAction()}; }

void PressablePart::doAction(const QString& name) {
    if (canBePressed() && actionNames().contains(name)) press();
}

void PaintedParts::resize(int count) {
    const auto size = static_cast<std::size_t>(count);
    for (std::size_t index = size; index < parts_.size(); ++index)
        if (parts_[index] != 0) QAccessible::deleteAccessibleInterface(parts_[index]);
    parts_.resize(size);
}

QAccessibleInterface* PaintedParts::at(int index,
                                       const std::function<std::unique_ptr<PaintedPart>()>& make) {
    const auto place = static_cast<std::size_t>(index);
    if (index < 0 || place >= parts_.size()) return nullptr;
    if (parts_[place] == 0)
        parts_[place] = QAccessible::registerAccessibleInterface(make().release());
    return QAccessible::accessibleInterface(parts_[place]);
}

int PaintedParts::indexOf(const QAccessibleInterface* part) const {
    for (std::size_t index = 0; index < parts_.size(); ++index)
        if (parts_[index] != 0 && QAccessible::accessibleInterface(parts_[index]) == part)
            return static_cast<int>(index);
    return -1;
}

} // namespace toolkit
