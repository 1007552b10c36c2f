// The question before changes are lost.
#pragma once

namespace zev {

struct Zevlin;

/// Commits an open field and asks about unsaved changes; true if the caller must not go on.
[[nodiscard]] bool CheckMod(Zevlin& form);

} // namespace zev
