// The menus of the menu bar, opened and walked by mouse and keys, for tests.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/model/form.h"

namespace toolkit::test {

// A row is told by its caption without "&", in whichever open menu has it. Each call lets what it
// has caused run. A row that isn't shown is a failure of the test.

/// Opens a menu by a click on the bar.
void openMenu(std::string_view caption);
/// The pointer comes to rest on a row, on a separator, or beside all menus.
void pointAtRow(std::string_view caption);
void pointAtSeparator();
void pointBesideMenus();
/// The row is clicked.
void clickRow(std::string_view caption);
/// A click beside all menus closes them.
void clickBesideMenus();
/// The deepest open menu gets the key.
void typeInMenu(int keyCode);

/// The entry of the bar that is highlighted; empty for none.
[[nodiscard]] std::string highlightedOnBar();

/// What the open menus cover. Twips, relative to the form.
[[nodiscard]] MenuSelection openMenus();
/// How a screen reader gets the row: its name, its description and its shortcut.
struct ReadRow {
    std::string name;
    std::string description;
    std::string shortcut;
    bool checked = false;
    bool greyed = false;
    bool highlighted = false;
    bool leadsToMenu = false;
    bool isInPlace = false; ///< whether the reader finds it where it is
};
[[nodiscard]] ReadRow readRow(std::string_view caption);
/// The reader does with the row what it offers to do; false if that is nothing.
bool useRow(std::string_view caption);

} // namespace toolkit::test
