// The card as somebody knows it who doesn't see it: its fields by sections, each with a name.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/model/label.h"

namespace toolkit {

struct FieldId {
    enum class Kind { CheckBox, Text };
    Kind kind = Kind::CheckBox;
    int number = 0; ///< of its label
    friend bool operator==(const FieldId&, const FieldId&) = default;
};

struct AccessibleField {
    FieldId id;
    std::string name; ///< with its section's
};

struct AccessibleSection {
    std::string name;
    std::vector<AccessibleField> fields; ///< in the order in which one walks through them
};

/// Nothing of this is called before a screen reader, or a program like one, asks.
struct AccessibleCard {
    /// Changes whenever fields have come or gone.
    std::function<int()> fieldCount{};
    std::function<std::vector<AccessibleSection>()> sections{};
    std::function<const Label*(FieldId)> label{}; ///< nullptr for a field that is gone
    std::function<std::string(FieldId)> name{};
    std::function<bool(FieldId)> isSet{};
    /// Whether it can be changed just now.
    std::function<bool(FieldId)> isWithinReach{};
    std::function<std::string(FieldId)> text{};
    /// The field that the keys would act on.
    std::function<std::optional<FieldId>()> focused{};
    /// Turns a check box over, opens a text.
    std::function<void(FieldId)> activate{};
    /// Puts a UTF-8 text instead of the places from `start` to before `end` of what `text` says.
    std::function<void(FieldId, int start, int end, std::string_view utf8)> replace{};
};

} // namespace toolkit
