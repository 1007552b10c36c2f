// What a disk may hold after the power was cut.
#pragma once

#include <functional>
#include <map>
#include <span>
#include <string>

#include "faults/watched_calls.h"

namespace test_faults {

/// Contents by path.
using Files = std::map<std::string, std::string>;

/// All regular files below the folder.
[[nodiscard]] Files filesIn(const std::filesystem::path& folder);

/// Hands out each state that the disk may be in if the power is cut after these operations, which
/// began with the files `before`, all of them on the disk. Of content that wasn't synced nothing,
/// half or all may have reached it, and of changes of names since the last sync of the folder any.
void forEachDisk(const Files& before, std::span<const Operation> done,
                 const std::function<void(const Files&)>& check);

} // namespace test_faults
