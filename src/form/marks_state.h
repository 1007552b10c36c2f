// The marks' share of the form's state, with the mouse and the walk by TAB.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/model/control.h"
#include "toolkit/model/control_array.h"
#include "toolkit/model/label.h"
#include "toolkit/window/cursor.h"

namespace zev {

struct MarksState {
    toolkit::ControlArray<toolkit::Label> AMark; ///< a mark is set exactly when it is visible
    std::vector<toolkit::Color> MarkColors;      ///< present colour of each AMark
    std::string MarkFontName;
    std::string MarkFontName2;
    std::array<float, 4> MarkFontSize{}; ///< points, [1..3]
    std::int16_t FirstLargeMark = 0;     ///< lowest mark of size 3; 0 if none
    float LargeMarkBottom = 0;           ///< twips; 0 without such a mark

    std::int16_t LastButton = 0; ///< of the last mouse event on the card
    std::int16_t LastShift = 0;
    float LastX = 0; ///< last pointer position on the card, twips, or the grab point of a drag
    float LastY = 0;
    bool MarkHitPending = false; ///< the press was on an unset mark: no drag may start

    bool TabActive = false; ///< the TAB walk has stopped on a mark
    int TabCursorX = 0;     ///< screen pixels
    int TabCursorY = 0;
    std::int16_t TabCode = 0; ///< item number: a mark is its index plus 1000
    std::int16_t TabLast = 0; ///< the field that was last in focus, from which TAB goes on where
                              ///< no text is open; 0 for none
    toolkit::CursorPosition CursorPos;
    std::int16_t TabRecordPrev = 0; ///< item pressed last while recording; 0 when none

    toolkit::MenuItem MFirstField;
};

} // namespace zev
