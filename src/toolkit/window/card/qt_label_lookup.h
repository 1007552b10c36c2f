// Which labels lie on the card and where. Internal to the toolkit's sources.
#pragma once

#include <cstddef>
#include <optional>

#include <QtCore/QPoint>

#include "toolkit/model/window_parts.h"

namespace toolkit {

/// Names a label of the card for longer than a pointer is good: element `index` of a group, or of
/// the single labels where `group` is the number of groups.
struct LabelPlace {
    std::size_t group = 0;
    int index = 0;

    friend bool operator==(const LabelPlace&, const LabelPlace&) = default;
};

/// The label, nullptr once it is unloaded.
[[nodiscard]] const Label* labelAt(const WindowParts& parts, LabelPlace place);

/// The group that the label belongs to, nullptr for a single label.
[[nodiscard]] const LabelGroup* groupOf(const WindowParts& parts, LabelPlace place);

/// Calls visit(place, label) for each label in the order that decides between equal stack places,
/// the hindmost first.
template <typename Visit>
void forEachLabel(const WindowParts& parts, Visit visit) {
    for (std::size_t group = 0; group < parts.cardGroups.size(); ++group) {
        int index = 0;
        for (const Label& label : std::as_const(*parts.cardGroups[group].labels))
            visit(LabelPlace{group, index++}, label);
    }
    int index = 0;
    for (const Label* label : parts.cardLabels)
        visit(LabelPlace{parts.cardGroups.size(), index++}, *label);
}

/// The front visible label whose pixel rectangle holds the point, right and bottom edge excluded.
[[nodiscard]] std::optional<LabelPlace> frontLabelAt(const WindowParts& parts, QPoint point);

} // namespace toolkit
