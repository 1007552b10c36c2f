// The menu bar: one row for each item.
#pragma once

#include <span>
#include <string_view>

#include "form/zevlin.h"

namespace zev {

/// Whether an item can be chosen when the program starts.
enum class AtStart { Enabled, Disabled };

struct MenuEntry {
    int level = 0;                             ///< 0 on the bar, 1 in its menu, 2 in a submenu
    toolkit::MenuItem Zevlin::*item = nullptr; ///< none: a separator
    std::string_view caption{};
    std::string_view shortcut{};          ///< works while the item is shown and enabled
    void (*procedure)(Zevlin&) = nullptr; ///< none: a menu
    AtStart atStart = AtStart::Enabled;
    int scheme = -1; ///< the element of mcolorscheme that is the item, where `item` is none

    [[nodiscard]] constexpr bool isSeparator() const { return item == nullptr && scheme < 0; }
};

/// The item of a row, nullptr for a separator.
[[nodiscard]] toolkit::MenuItem* itemOf(Zevlin& form, const MenuEntry& entry);

[[nodiscard]] std::span<const MenuEntry> menuTable();

} // namespace zev
