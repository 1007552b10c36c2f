// What the form gets only between its load and its unload.
#pragma once

namespace zev {

struct Zevlin;

/// The wheel moves the card from now on.
void hookWheel(Zevlin& form);
/// The wheel does nothing from now on. Harmless where it did nothing before.
void unhookWheel(Zevlin& form);

/// Rows of the menus are explained from now on, once Lmenus is filled.
void hookMenus(Zevlin& form);
/// Nothing is explained from now on. Harmless where nothing was before.
void unhookMenus(Zevlin& form);

} // namespace zev
