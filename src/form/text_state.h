// The text areas' share of the form's state: the labels, the boxes over them, fonts, undo.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "toolkit/model/control.h"
#include "toolkit/model/control_array.h"
#include "toolkit/model/label.h"

namespace zev {

/// Where the caret of an open field stands.
struct TextCaret {
    int field = 0; ///< 0: none is open
    int place = 0; ///< in the text
    std::string text;

    friend bool operator==(const TextCaret&, const TextCaret&) = default;
};

struct TextState {
    toolkit::ControlArray<toolkit::Label> AText;     ///< text areas by field number
    toolkit::ControlArray<toolkit::Label> Highlight; ///< behind each of them
    toolkit::ControlArray<toolkit::Label> SText;     ///< suit symbols over them
    std::vector<toolkit::Color> TextColors;          ///< present colour of each AText
    std::vector<toolkit::Color> SuitColors;          ///< standard colour of each SText
    std::vector<std::vector<int>> ShownSymbols;      ///< by field: its SText elements on screen

    toolkit::TextBox CText;       ///< edits centred fields
    toolkit::TextBox LText;       ///< edits left-justified fields
    toolkit::TextBox UText;       ///< never shown: the field as it was when opened
    toolkit::MeasureBox Testtext; ///< the font of the text fitted last; at first that of the suits

    std::string TextFontName;
    std::string NarrowFontName;
    std::string FallbackFontName;
    std::string SuitFontName;
    std::string SuitChars;
    std::array<float, 4> TextFontSize{}; ///< points, [1..3]

    std::int16_t TIndex = 0;    ///< the open field or the last one worked on; 0 for none
    std::int16_t OrigIndex = 0; ///< the field whose opening state is held; 0 for none
    std::string OrigText;       ///< its Tag at opening
    toolkit::Alignment OrigAlign = toolkit::Alignment::Left;
    bool OpeningField = false;
    bool ShiftHeld = false;      ///< at the last key press
    std::int16_t ClickIndex = 0; ///< the label pressed, until its click is done; 0 for none
    std::int16_t ClickButton = 0;
    float ClickX = 0; ///< twips in the label
    float ClickY = 0;
    TextCaret FollowedCaret;       ///< where the card has been moved for it, if need be
    std::string ClipText;          ///< the private clipboard
    std::int16_t FirstBigText = 0; ///< lowest text field of size 3; 0 if none

    toolkit::MenuItem mpopUndo{.Caption = "&Undo", .Enabled = false};
    toolkit::MenuItem mpopBold{.Caption = "Boldface"};
    toolkit::MenuItem mpopItalic{.Caption = "Italicize"};
    toolkit::MenuItem mpopLeft{.Caption = "Left-Justify"};
    toolkit::MenuItem mpopHilite{.Caption = "Highlight"};
    toolkit::MenuItem mpopCopy{.Caption = "Copy"};
    toolkit::MenuItem mpopPaste{.Caption = "Paste", .Enabled = false};
};

} // namespace zev
