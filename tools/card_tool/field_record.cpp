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

/// The lowest row of the rule, in design pixels.
float lowestRow(const TextPlace& text) { return designPixels(text.ruleTop + text.ruleWidth) - 1; }

/// The rows from a bracket's lowest to the rule's lowest. The program's own adjustment of fields
/// seeks 4 rows, for large texts 6, whatever the size of the card; with one less here it finds what
/// is nearest to that at every size.
float airBelowBrackets(AreaSize size) { return size == AreaSize::Large ? 5 : 3; }

/// The lowest row of a bracket's ink in its label.
float bracketFoot(const Typeface& face, double em) {
    const double foot = face.outline(U'[', em).boundingRect().bottom();
    return static_cast<float>(std::round(face.ascent() * em) + std::ceil(foot) - 1);
}

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
    record.left = designPixels(text.left);
    record.top = lowestRow(text) - airBelowBrackets(text.size) - bracketFoot(faces.textRegular, em);
    record.width = designPixels(text.width);
    record.height = rounded(face.height() * em);
    return record;
}

} // namespace card_tool
