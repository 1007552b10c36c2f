// The text areas of a layout.
#pragma once

namespace zev {

struct Zevlin;
struct InitializeRun;
class LayoutReader;

/// Points of the small letters at the design size, unless the player has chosen others.
constexpr float usualTextPoints = 11;

/// Reads the text records and makes one shown label and one highlight for each.
void buildTexts(Zevlin& form, InitializeRun& run, LayoutReader& layout);

/// Twips by which a text area of this size stands higher than the layout tells, so that letters
/// larger than the usual ones keep their line and don't reach into the rule below it.
[[nodiscard]] float riseOf(const Zevlin& form, int size);

/// Puts the highlight of the field with this number behind its text, where that lies now.
void placeHighlight(Zevlin& form, int index);

} // namespace zev
