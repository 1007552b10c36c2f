// How far a run has come, for a terminal.
#pragma once

#include <cstddef>
#include <string>

namespace zev {

struct Progress {
    std::size_t done = 0;
    std::size_t all = 0;
    double seconds = 0; ///< since the beginning
};

/// A line of at most 70 characters: bar, count, rate and the time left, as far as they are known.
[[nodiscard]] std::string progressText(const Progress& progress);

} // namespace zev
