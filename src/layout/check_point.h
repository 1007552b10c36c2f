// Setting the layout file aside while something touches it without the player's wish.
#pragma once

namespace zev {

struct Zevlin;

/// Sets Definitions.Ini aside as $$TempDef.Ini and writes the present layout in its place.
void CheckPointShapes(Zevlin& form);

/// Puts the layout that was set aside back; nothing happens if there is none.
void RestoreShapes(Zevlin& form);

} // namespace zev
