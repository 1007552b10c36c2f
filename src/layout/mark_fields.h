// The checkmarks and circles of a layout.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;
class LayoutReader;

/// Reads the mark records and makes one hidden label for each.
void buildMarks(Zevlin& form, InitializeRun& run, LayoutReader& layout);

} // namespace zev
