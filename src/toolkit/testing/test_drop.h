// Files and texts that another program drags over the window, for tests.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace toolkit::test {

/// What is dragged: files as a file manager offers them, or addresses as they are given.
struct Dragged {
    std::vector<std::filesystem::path> files{};
    std::vector<std::string> addresses{};
    std::string text{};
    bool isOnlyMoved = false; ///< its owner would have it moved, not copied
};

/// What the pointer says over the middle of the window.
enum class DragAnswer { Refused, Copied, Other };
[[nodiscard]] DragAnswer dragOver(const Dragged& dragged);

/// Drops it there, if the window takes it, and lets what follows run; true if it was taken.
bool drop(const Dragged& dragged);

} // namespace toolkit::test
