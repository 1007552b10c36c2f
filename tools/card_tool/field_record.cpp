#include "card_tool/field_record.h"

#include "card_tool/mark_cell.h"
#include "card_tool/units.h"

#include <cmath>

namespace card {
namespace {

int rounded(double value) { return static_cast<int>(std::floor(value + 0.5)); }

} // namespace

FieldRecord markRecord(const MarkPlace& mark, const Typefaces& faces, int twipsPerPixel) {
    const MarkCell cell = markCell(faces, mark.kind);
    const int size = markSize(mark.kind, twipsPerPixel);
    const double em = emPixels(markPoints[size - 1], twipsPerPixel);
    return {rounded(mark.centreX / fullPerDesign - cell.centreX * em),
            rounded(mark.centreY / fullPerDesign - cell.centreY * em), rounded(cell.width * em),
            rounded(cell.height * em), size};
}

FieldRecord textRecord(const TextPlace& text, const Typefaces& faces, int twipsPerPixel) {
    const int size = static_cast<int>(text.size);
    const Typeface& face = text.size == AreaSize::Large ? faces.textBold : faces.textRegular;
    const double em = emPixels(textPoints[size - 1], twipsPerPixel);
    const double top = std::floor(double(text.ruleTop) / fullPerDesign - face.ascent() * em);
    return {text.left / fullPerDesign, static_cast<int>(top), text.width / fullPerDesign,
            rounded(face.height() * em), size};
}

} // namespace card
