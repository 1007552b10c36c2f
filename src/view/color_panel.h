// The panel on which the player chooses one colour for all marks and texts.
#pragma once

#include <string>

namespace zev {

struct Zevlin;

/// Chooses the scheme with this index of the menu: index 0 is the ACBL's, the last one opens the
/// panel for a colour. While the program initializes, the stored colour stands and no panel opens.
void mColorScheme_Click(Zevlin& form, int index);

/// What a person calls the colour of a preset.
[[nodiscard]] std::string colorSampleName(int index);
/// A preset was clicked.
void ColorSample_Click(Zevlin& form, int index);
/// The number of a primary colour was clicked: that primary is chosen.
void ColorID_Click(Zevlin& form, int index);
/// A slider was moved.
void ColorScroll_Scroll(Zevlin& form, int index);
constexpr int colorPanelOk = 0;
constexpr int colorPanelCancel = 1;
/// OK takes the colour, Cancel goes back to the scheme before; both close the panel.
void ColorBut_Click(Zevlin& form, int index);

/// Marks the preset that is the chosen colour.
void ColorSampleMark(Zevlin& form);

} // namespace zev
