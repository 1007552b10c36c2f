// Screen, cursor and task bar.
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

/// 1440 over the screen's logical dots per inch, rounded; read once in a run.
[[nodiscard]] int twipsPerPixel();

/// In logical screen pixels; zero size at 0, 0 where there is none.
struct TaskBar {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
};
[[nodiscard]] TaskBar taskBar();

struct CursorPosition {
    int x = 0;
    int y = 0;
};
/// The cursor's place in screen pixels: the one asked for last until the pointer really moves.
[[nodiscard]] CursorPosition cursorPosition();
void setCursorPosition(CursorPosition position);

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

/// Pixels from twips at painting and reading: to nearest, halves to even.
[[nodiscard]] int pixelsFromTwips(float twips);

} // namespace toolkit
