// The screen and its task bar.
#pragma once

namespace toolkit {

// Where there are several screens, all of this is told of the one that holds the form's centre, and
// places are relative to its upper left corner.

/// Width and height in twips.
struct Screen {
    float Width = 0;
    float Height = 0;
    float TwipsPerPixelX = 15;
    float TwipsPerPixelY = 15;
};
[[nodiscard]] Screen screen();

/// In logical screen pixels; zero size at 0, 0 where there is none.
struct TaskBar {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};
[[nodiscard]] TaskBar taskBar();

/// Settings for tests: a zero leaves the real value.
struct ScreenOverrides {
    int twipsPerPixel = 0;
    float width = 0;
    float height = 0;
    TaskBar taskBar{};
    bool hasTaskBar = false;
    bool pointerStays = false; ///< as on platforms that let no program move it
};
void overrideScreen(const ScreenOverrides& overrides);

/// Whether a test wants the pointer to stay wherever the program would move it.
[[nodiscard]] bool pointerStays();

} // namespace toolkit
