// The question before changes are lost.
#pragma once

namespace zev {

struct Zevlin;

/// What became of unsaved changes. The caller must not go on where they are kept.
enum class Changes { None, Saved, Discarded, Kept };

/// Commits an open field and asks about unsaved changes.
[[nodiscard]] Changes settleChanges(Zevlin& form);

/// The same; true if the caller must not go on.
[[nodiscard]] bool CheckMod(Zevlin& form);

} // namespace zev
