#include "toolkit/window/card/qt_label_lookup.h"

#include "toolkit/base/qt_geometry.h"

namespace toolkit {

const LabelGroup* groupOf(const WindowParts& parts, LabelPlace place) {
    return place.group < parts.cardGroups.size() ? &parts.cardGroups[place.group] : nullptr;
}

const Label* labelAt(const WindowParts& parts, LabelPlace place) {
    if (const LabelGroup* group = groupOf(parts, place); group != nullptr)
        return group->labels->exists(place.index) ? &(*group->labels)[place.index] : nullptr;
    return parts.cardLabels[static_cast<std::size_t>(place.index)];
}

std::optional<LabelPlace> frontLabelAt(const WindowParts& parts, QPoint point) {
    std::optional<LabelPlace> front;
    int frontStack = 0;
    forEachLabel(parts, [&](LabelPlace place, const Label& label) {
        if (!label.Visible || (front && label.Stack < frontStack)) return;
        if (!pixelRectangle(label).contains(point)) return;
        front = place;
        frontStack = label.Stack;
    });
    return front;
}

} // namespace toolkit
