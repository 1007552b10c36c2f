// Walking up and down the ladder of sizes.
#pragma once

namespace zev {

struct Zevlin;

/// The next larger step; from a fit the first step above it. A beep at the ladder's end.
void MZoomIn_Click(Zevlin& form);

/// The next smaller step; from a fit the first step below it. A beep at the ladder's end.
void MZoomOut_Click(Zevlin& form);

} // namespace zev
