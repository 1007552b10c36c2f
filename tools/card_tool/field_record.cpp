#include "card_tool/field_record.h"

#include <cmath>

#include "card_tool/mark_cell.h"
#include "card_tool/units.h"

namespace card_tool {
namespace {

float rounded(double value) { return static_cast<float>(std::floor(value + 0.5)); }

/// The design pixels of an even number of full pixels.
float designPixels(int fullPixels) { return static_cast<float>(fullPixels) / fullPerDesign; }

int colorNumber(Ink ink) { return ink == Ink::Red ? 2 : ink == Ink::Blue ? 3 : 1; }

} // namespace

zev::FieldRecord markRecord(const MarkPlace& mark, const Typefaces& faces, int twipsPerPixel) {
    const MarkCell cell = markCell(faces, mark.kind);
    zev::FieldRecord record;
    record.color = colorNumber(mark.ink);
    record.size = markSize(mark.kind, twipsPerPixel);
    record.symbol = markSymbol(mark.kind);
    const double em = emPixels(pointsOf(markPoints, record.size), twipsPerPixel);
    record.left = rounded(mark.centreX / fullPerDesign - cell.centreX * em);
    record.top = rounded(mark.centreY / fullPerDesign - cell.centreY * em);
    record.width = rounded(cell.width * em);
    record.height = rounded(cell.height * em);
    return record;
}

zev::FieldRecord textRecord(const TextPlace& text, const Typefaces& faces, int twipsPerPixel) {
    const Typeface& face = text.size == AreaSize::Large ? faces.textBold : faces.textRegular;
    zev::FieldRecord record;
    record.color = colorNumber(text.ink);
    record.size = static_cast<int>(text.size);
    const double em = emPixels(pointsOf(textPoints, record.size), twipsPerPixel);
    const double top = double(text.ruleTop) / fullPerDesign - face.ascent() * em;
    record.left = designPixels(text.left);
    record.top = static_cast<float>(std::floor(top));
    record.width = designPixels(text.width);
    record.height = rounded(face.height() * em);
    return record;
}

} // namespace card_tool
