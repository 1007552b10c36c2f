// The pop-up text that explains the row of a menu on which the player rests.
#pragma once

#include <string>
#include <string_view>

namespace toolkit {
struct MenuSelection;
}

namespace zev {

struct Zevlin;

/// Fills Lmenus. Called once at the start, before the descriptions are installed.
void InitMenuDescriptions(Zevlin& form);

/// What Lmenus says of a caption; empty if nothing.
[[nodiscard]] std::string Description(const Zevlin& form, std::string_view caption);

/// Shows in PopHelp what the highlighted row does, beside the menus. Hides it where there is
/// nothing to say, or no room to say it.
void showDescription(Zevlin& form, const toolkit::MenuSelection& selection);

} // namespace zev
