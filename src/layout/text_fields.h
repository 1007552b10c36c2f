// The text areas of a layout.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;
class LayoutReader;

/// Reads the text records and makes one shown label and one highlight for each.
void buildTexts(Zevlin& form, InitializeRun& run, LayoutReader& layout);

/// Puts the highlight of the field with this number behind its text, where that lies now.
void placeHighlight(Zevlin& form, int index);

} // namespace zev
