// What one run of Initialize keeps for itself: runs can nest.
#pragma once

#include <array>
#include <optional>

#include "layout/layout_file.h"

namespace zev {

/// Corrections in twips that the layout's places get on this machine: [kind][size][side].
using Corrections = std::array<std::array<std::array<float, 3>, 4>, 4>;

struct InitializeRun {
    int step = 0; ///< told when a step fails
    bool firstRun = false;
    FileOffsets fileOffsets{};
    float ratio = 1; ///< twips per pixel of this screen over the layout's
    Corrections corrections{};
};

} // namespace zev
