// A label: plain values that the card paints. It is no window; hundreds of them cost nothing.
#pragma once

#include <string>
#include <string_view>

#include "toolkit/base/color.h"
#include "toolkit/text/font.h"

namespace toolkit {

enum class Alignment : int { Left = 0, Right = 1, Center = 2 };
enum class BackStyle : int { Transparent = 0, Opaque = 1 };

/// Places are twips relative to the container and kept exactly; painting rounds them to pixels.
/// In the caption "&&" paints one "&", a single "&" none.
struct Label {
    float Left = 0;
    float Top = 0;
    float Width = 0;
    float Height = 0;
    bool Visible = false;
    std::string Caption;
    std::string Tag;
    FontSpec Font;
    Color ForeColor = black;
    Color BackColor = white;
    toolkit::BackStyle BackStyle = toolkit::BackStyle::Transparent;
    toolkit::Alignment Alignment = toolkit::Alignment::Left;
    /// Twips by which the caption stands below the line on which its font would put it.
    float Lowered = 0;
    /// Of a sign that is laid over blanks of another text: how far they reach, in twips, so that a
    /// page tells what is read next to it. 0 for other texts.
    float Reach = 0;
    /// Place in the stack of the container: higher is nearer to the front. Set by its ZOrder.
    int Stack = 0;
    /// Whether the caption is cut off at the label's edges.
    bool Clips = true;
    /// Whether a caption wider than the label ends with the last word that fits, as the first line
    /// of a wrapped text does.
    bool FirstLineOnly = false;

    void Move(float left, float top, float width, float height) {
        Left = left;
        Top = top;
        Width = width;
        Height = height;
    }
    void Move(float left, float top) {
        Left = left;
        Top = top;
    }

    friend bool operator==(const Label&, const Label&) = default;
};

/// The text that a caption paints: "&&" gives "&", a single "&" is dropped.
[[nodiscard]] std::string paintedText(std::string_view caption);

/// The caption that paints just this text, each "&" of it included.
[[nodiscard]] std::string captionFor(std::string_view text);

} // namespace toolkit
