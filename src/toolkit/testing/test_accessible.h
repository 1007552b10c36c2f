// The card as a screen reader knows it, for tests.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "toolkit/testing/test_mouse.h"

namespace toolkit::test {

struct AccessiblePart {
    std::string role; ///< "group", "check box", "text" or "other"
    std::string name;
    std::string value;
    bool isChecked = false;
    bool isFocused = false;
    bool isOffscreen = false;
    PointOnCard corner{}; ///< top left
    float width = 0;      ///< twips
    float height = 0;
    std::vector<std::string> actions{};
};

/// The sections of the card, and all fields in their order.
[[nodiscard]] std::vector<AccessiblePart> accessibleSections();
[[nodiscard]] std::vector<AccessiblePart> accessibleFields();
/// One of them; a failure of the test's own if there is none of that name.
[[nodiscard]] AccessiblePart accessibleField(std::string_view name);
/// The field at a point of the card, by its name; empty for none.
[[nodiscard]] std::string accessibleFieldAt(PointOnCard point);
/// The part that has the focus, by its name.
[[nodiscard]] std::string accessibleFocus();

void act(std::string_view field, std::string_view action);
void replaceText(std::string_view field, int start, int end, std::string_view utf8);
[[nodiscard]] std::string textOf(std::string_view field, int start, int end);

} // namespace toolkit::test
