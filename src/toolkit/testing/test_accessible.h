// The card as a screen reader knows it, for tests.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "toolkit/testing/screen_area.h"
#include "toolkit/testing/test_mouse.h"

namespace toolkit::test {

struct AccessiblePart {
    std::string role; ///< "group", "check box", "text", "list", "row" and so on, or "other"
    std::string name;
    std::string value;
    std::string description{};
    bool isChecked = false;
    bool isFocused = false;
    bool isOffscreen = false;
    bool isDefault = false;
    bool isSelected = false;
    bool isShown = false;
    PointOnCard corner{}; ///< top left
    float width = 0;      ///< twips
    float height = 0;
    ScreenArea area{};
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

/// The part of this name, wherever it is: in the menu or the box that is open, else in the window.
/// A failure of the test's own if there is none.
[[nodiscard]] AccessiblePart accessiblePart(std::string_view name);
/// Those of a name and a role. A label may have the name of what stands beside it.
[[nodiscard]] std::vector<AccessiblePart> accessiblePartsNamed(std::string_view name,
                                                               std::string_view role);
/// All parts just below it.
[[nodiscard]] std::vector<AccessiblePart> accessiblePartsOf(std::string_view name);
/// The innermost part in the middle of this one, by its name.
[[nodiscard]] std::string accessiblePartAt(std::string_view name);
/// Does the first of its actions; false if it has none.
bool press(std::string_view name);
/// The same for a part of the window, even below a box.
bool pressInWindow(std::string_view name);
/// Gives a slider a value.
void slideTo(std::string_view name, int value);

/// Runs once the next box, dialog or pop-up menu is there, which must close in it.
void readNextBox(std::function<void()> act);

/// While it lives somebody listens, and what the toolkit tells is noted: "Focus Help". What the
/// platform tells by itself is not.
class ScreenReader {
  public:
    ScreenReader();
    ~ScreenReader();
    ScreenReader(const ScreenReader&) = delete;
    ScreenReader& operator=(const ScreenReader&) = delete;

    [[nodiscard]] bool heard(std::string_view what) const;
    [[nodiscard]] const std::vector<std::string>& all() const;
    void forget();
};

/// How many parts have been made so far, counted from anywhere. The platform makes one for a widget
/// that comes up, even where nobody listens.
[[nodiscard]] unsigned partsMade();

void act(std::string_view field, std::string_view action);
void replaceText(std::string_view field, int start, int end, std::string_view utf8);
[[nodiscard]] std::string textOf(std::string_view field, int start, int end);

} // namespace toolkit::test
