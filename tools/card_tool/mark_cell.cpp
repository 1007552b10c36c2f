#include "card_tool/mark_cell.h"

#include <cmath>

#include "card_tool/units.h"
#include "layout/layout_file.h"
#include "toolkit/base/ansi.h"

namespace card_tool {
MarkCell markCell(const Typefaces& faces, MarkKind kind) {
    const Typeface& face = markFace(faces, kind);
    const auto code = static_cast<char32_t>(markSymbol(kind));
    // A check leans out of its box; a filled square covers it.
    const char32_t middleCode =
        kind == MarkKind::Check ? toolkit::code(zev::mark_symbol::square) : code;
    const QPointF middle = face.outline(middleCode, 1).boundingRect().center();
    return {face.advance(code), face.height(), middle.x(), face.ascent() + middle.y()};
}

int exactCentre(double wanted, double offset) {
    const double label = std::round((wanted - offset) / fullPerDesign);
    return static_cast<int>(std::lround(label * fullPerDesign + offset));
}

CentreOffset centreOffset(const Typefaces& faces, MarkKind kind) {
    const MarkCell cell = markCell(faces, kind);
    const double points = pointsOf(markPoints, markSize(kind, picturedTwips));
    const double em = emPixels(points, picturedTwips) * fullPerDesign;
    return {cell.centreX * em, cell.centreY * em};
}

} // namespace card_tool
