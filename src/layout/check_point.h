// Setting the layout file aside while the program needs another layout for a moment, which the
// player hasn't asked to save.
#pragma once

namespace zev {

struct Zevlin;

/// Sets Definitions.Ini aside as $$TempDef.Ini and writes the present layout in its place.
void CheckPointShapes(Zevlin& form);

/// Whether a layout is set aside, by this copy of the program or another one.
[[nodiscard]] bool isLayoutSetAside(const Zevlin& form);

/// Puts the layout that was set aside back; nothing happens if there is none, or if it is that of
/// another living copy of the program. Where that fails finishRestore does it later, or the next
/// start.
void RestoreShapes(Zevlin& form);

/// Puts the file back that an earlier RestoreShapes of this run couldn't; false if it still can't.
bool finishRestore(Zevlin& form);

} // namespace zev
