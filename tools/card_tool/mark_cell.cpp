#include "card_tool/mark_cell.h"

#include "card_tool/units.h"

#include <cmath>

namespace card {

MarkCell markCell(const Typefaces& faces, MarkKind kind) {
    const bool check = kind == MarkKind::Check;
    const Typeface& face = check ? faces.marksBold : faces.marksRegular;
    const char32_t code = check ? 252 : 161;
    const QPointF middle = face.outline(code, 1).boundingRect().center();
    return {face.advance(code), face.height(), middle.x(), face.ascent() + middle.y()};
}

int exactCentre(double wanted, double offset) {
    const double label = std::round((wanted - offset) / fullPerDesign);
    return static_cast<int>(std::lround(label * fullPerDesign + offset));
}

CentreOffset centreOffset(const Typefaces& faces, MarkKind kind) {
    const MarkCell cell = markCell(faces, kind);
    const double points = markPoints[markSize(kind, picturedTwips) - 1];
    const double em = emPixels(points, picturedTwips) * fullPerDesign;
    return {cell.centreX * em, cell.centreY * em};
}

} // namespace card
