// The controls with a window of their own, as plain values with their event slots.
//
// A procedure reads and sets the values; the window takes them over after each event, before each
// box and each wait. What the player does to a control stands in its values before its event runs.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "toolkit/base/color.h"
#include "toolkit/model/label.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/text/font.h"

namespace toolkit {

/// Mouse buttons: of a press or release one of these, of a move the sum of those held.
namespace button {
constexpr int left = 1;
constexpr int right = 2;
constexpr int middle = 4;
} // namespace button

/// Modifier mask: the sum of the keys held; nothing else (keypad, lock) counts.
namespace shift {
constexpr int shift = 1;
constexpr int ctrl = 2;
constexpr int alt = 4;
} // namespace shift

enum class MousePointer : int { Default = 0, Arrow = 1, IBeam = 3, Hourglass = 11, Hand = 99 };

/// X and Y in twips relative to the control. Handlers may set Button to 0 to swallow the press.
struct MouseArguments {
    int Button = 0;
    int Shift = 0;
    float X = 0;
    float Y = 0;
};

/// KeyCode is the platform-neutral virtual key (see key.h); a handler sets it to 0 to consume it.
struct KeyArguments {
    int KeyCode = 0;
    int Shift = 0;
};

/// Places in twips relative to the container (the card for the edit boxes, else the form).
struct Control {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool Visible = false;
    bool Enabled = true;
    FontSpec Font;
    Color ForeColor = black;
    Color BackColor = white;
    /// Higher is nearer to the front among the controls of one container.
    int Stack = 0;
    /// For screen readers, where no caption says it; set before the window is made.
    std::string AccessibleName;

    std::function<void()> GotFocus;
    std::function<void()> LostFocus;
    std::function<void(KeyArguments&)> KeyDown;
    std::function<void(int& KeyAscii)> KeyPress;
    std::function<void(KeyArguments&)> KeyUp;
    std::function<void(MouseArguments&)> MouseDown;
    std::function<void(MouseArguments&)> MouseMove;
    std::function<void(MouseArguments&)> MouseUp;
    std::function<void()> Click;
    std::function<void()> DblClick;

    void Move(float left, float top) {
        Left = left;
        Top = top;
    }
    void Move(float left, float top, float width, float height) {
        Move(left, top);
        Width = width;
        Height = height;
    }
};

/// What a panel shows behind its controls.
enum class PanelFill {
    Plain,       ///< its BackColor
    FormGradient ///< the form's gradient, without a seam; else its BackColor
};

/// A panel on the form, on which other controls may lie.
struct Panel : Control {
    PanelFill Fill = PanelFill::Plain;
    int CornerRadius = 0; ///< pixels
    bool Framed = false;  ///< a fine line runs along its edge
};

struct Drawing;

/// A picture for high-DPI screens, which have several pixels for each logical one.
struct SharpPicture {
    std::shared_ptr<const Bitmap> of{}; ///< counts only while this very picture is the box's
    /// The picture drawn anew, `ratio` (above 1) times as large, or as large as it can be.
    std::function<std::shared_ptr<const Bitmap>(float ratio)> drawn{};
};

/// A picture box with a persistent picture. ScaleMode is always 1, twips.
struct PictureBox : Control {
    static constexpr int ScaleMode = 1;
    /// The picture shown at (0, 0), shared because it is replaced as a whole: nobody draws on one
    /// that another shows, too.
    std::shared_ptr<const Bitmap> Picture;
    SharpPicture Sharp;
    /// What the picture shows, as data of any size; none of a picture that is pixels alone.
    std::function<std::shared_ptr<const Drawing>()> Artwork;
    toolkit::MousePointer MousePointer = toolkit::MousePointer::Default;
};

/// A single-line edit box. TAB, Shift+TAB and Enter come as key events and never move the focus.
struct TextBox : Control {
    std::string Text;
    int SelStart = 0;  ///< characters before the selection or caret
    int SelLength = 0; ///< characters selected
    toolkit::Alignment Alignment = toolkit::Alignment::Left;
    bool MultiLine = false;       ///< of an overlay: the text is broken into lines, from the left
    int Margin = 0;               ///< pixels between those lines and the edges
    bool IsNotice = false;        ///< an overlay that screen readers tell when it comes up
    std::function<void()> Change; ///< the player has changed Text
};

struct ListBox : Control {
    std::vector<std::string> List;
    int ListIndex = -1;    ///< the current row; -1 for none
    int TopIndex = 0;      ///< the uppermost row in sight
    int PointedIndex = -1; ///< the row under the last press; -1 below the last row
    std::string ToolTip;
    bool Elides = false; ///< a row that is too wide ends in "...", and a tool tip has all of it
    int RowGap = 0;      ///< pixels by which a row is higher than its line
    /// Whether what is too wide can be moved into sight; set before the window is made.
    bool ScrollsAcross = false;
    bool ClicksByKey = true; ///< whether a key that changes the current row counts as a click
    /// Of the rows on which a click leads elsewhere, for screen readers.
    std::function<bool(int row)> IsLink{};
};

/// A short message that stands at the foot of the form for a while, with a link behind it. It takes
/// neither keys nor focus, and the window places it; a click on the link comes as Click.
struct Note : Control {
    std::string Text; ///< cut in its middle where the window is too narrow
    std::string Link;
    std::string ToolTip;
};

/// An item of the menu bar or of a pop-up menu; "&" marks its access key.
struct MenuItem {
    std::string Caption{};
    bool Checked = false; ///< changed by code only, never by the click itself
    bool Enabled = true;
    bool Visible = true;
};

} // namespace toolkit
