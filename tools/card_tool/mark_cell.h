// How the characters of the mark font lie in their labels.
#pragma once

#include <array>

#include "card_tool/sheet.h"
#include "card_tool/typeface.h"
#include "layout/layout_file.h"
#include "toolkit/base/ansi.h"

namespace card_tool {

/// The sizes in points that the program sets the fields in while the card stands at half scale.
constexpr std::array<float, 3> markPoints{18, 22, 30};
constexpr std::array<float, 3> textPoints{11, 14, 18};
/// The points of a size class, 1 to 3.
[[nodiscard]] constexpr float pointsOf(const std::array<float, 3>& points, int size) {
    return points.at(static_cast<std::size_t>(size) - 1);
}
/// The resolution that the picture is made for; the printed boxes are exact there.
constexpr int picturedTwips = 15;

/// The character of the mark font, and the face that the program sets it in.
[[nodiscard]] constexpr int markSymbol(MarkKind kind) {
    return toolkit::code(kind == MarkKind::Check ? zev::mark_symbol::check
                                                 : zev::mark_symbol::circle);
}
[[nodiscard]] inline const Typeface& markFace(const Typefaces& faces, MarkKind kind) {
    return kind == MarkKind::Check ? faces.marksBold : faces.marksRegular;
}

/// How a mark's character lies in its cell (its advance by the line height), in ems.
struct MarkCell {
    double width = 0;
    double height = 0;
    /// The middle of the mark's box or letter, from the left and from the top of the cell.
    double centreX = 0;
    double centreY = 0;
};

[[nodiscard]] MarkCell markCell(const Typefaces& faces, MarkKind kind);

/// The size class of a mark, 1 or 2. Fonts keep their size in points, so on a finer screen they
/// cover more of the card; a circle takes the small size there to stay clear of its neighbours.
[[nodiscard]] constexpr int markSize(MarkKind kind, int twipsPerPixel) {
    return kind == MarkKind::Circle && twipsPerPixel == picturedTwips ? 2 : 1;
}

/// The full pixel nearest to a wanted centre on which a mark stands exactly when its label is on a
/// whole design pixel. Offset is that of the middle within the cell, in full pixels.
[[nodiscard]] int exactCentre(double wanted, double offset);

/// The offset of a mark's middle within its cell, in full pixels, at the pictured resolution.
struct CentreOffset {
    double x = 0;
    double y = 0;
};
[[nodiscard]] CentreOffset centreOffset(const Typefaces& faces, MarkKind kind);

} // namespace card_tool
