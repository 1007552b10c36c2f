#include "card_tool/row_setter.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "card_tool/failure.h"
#include "card_tool/units.h"
#include "toolkit/base/ansi.h"
#include "view/artwork_file.h"

namespace card_tool {
namespace {

// A box's edges lie on even full pixels, as its centre is odd: so they stay crisp at half scale.
constexpr int boxSide = 30;
constexpr int ruleWidth = 2;
constexpr int boxCentreAboveBaseline = 9;
// Typed text stands on the words' base line, and its descenders are clear of the rule.
constexpr int ruleBelowBaseline = 12;
constexpr double circlePitch = 46;
constexpr double circleEm = 30;
constexpr int circleAboveBaseline = 9;
constexpr double leastArea = 44;
// A caption may be wider than the column of boxes under it by this much.
constexpr double centredOverhang = 24;

double evenDown(double value) { return std::floor(value / 2) * 2; }

const Typeface& faceOf(const Typefaces& faces, char32_t character, Weight weight) {
    return isSuit(character) ? faces.suits : faces.print(weight);
}

/// Its code in its font.
char32_t codeOf(char32_t character) { return isSuit(character) ? suitCode(character) : character; }

Ink wordInk(const Item& item, char32_t character, const RowStyle& style) {
    if (isSuit(character) && !style.inverse) return isRedSuit(character) ? Ink::Red : Ink::Black;
    return style.inverse ? Ink::Paper : item.ink;
}

Weight weightOf(const Item& item, const RowStyle& style) {
    return style.weight == Weight::Bold ? Weight::Bold : item.weight;
}

char byteOf(char32_t character) {
    const auto byte = toolkit::ansiOf(codeOf(character));
    if (!byte) throw Failure("the code page lacks a printed character");
    return *byte;
}

toolkit::Words wordsIn(Ink ink, char32_t letter, Weight weight, double em) {
    return {.color = colorOf(ink),
            .fontName = std::string(isSuit(letter) ? zev::artworkSuitFont : zev::artworkFont),
            .bold = weight == Weight::Bold && !isSuit(letter),
            .em = em,
            .text = std::string(1, byteOf(letter))};
}

/// Fine enough for a width, and short in a file.
double hundredths(double length) { return std::round(length * 100) / 100; }

bool stretches(const Item& item) { return item.kind == ItemKind::Area && item.width == 0; }

} // namespace

RowSetter::RowSetter(const Typefaces& faces, Sheet& sheet)
    : faces_(faces), sheet_(sheet), check_(centreOffset(faces, MarkKind::Check)),
      circle_(centreOffset(faces, MarkKind::Circle)) {}

double RowSetter::wordsWidth(const Item& item, const RowStyle& style) const {
    double width = 0;
    for (const char32_t letter : item.text)
        width += faceOf(faces_, letter, weightOf(item, style)).advance(codeOf(letter)) * style.em;
    return width;
}

double RowSetter::itemWidth(const Item& item, const RowStyle& style) const {
    switch (item.kind) {
    case ItemKind::Words:
        return wordsWidth(item, style);
    case ItemKind::Box:
        return boxSide;
    case ItemKind::Circle:
        return circlePitch;
    case ItemKind::Area:
        return item.width == 0 ? leastArea : item.width * fullPerDesign;
    case ItemKind::Fill:
        break;
    }
    return 0;
}

/// The paper between two items. A box's click cell is wider than its print, so a text area beside
/// it keeps clear of that cell.
double RowSetter::gap(const Item& before, const Item& item, const RowStyle& style) const {
    using enum ItemKind;
    if (before.kind == Fill || item.kind == Fill) return 0;
    if (before.kind == Circle && item.kind == Circle) return 0;
    if (before.kind == Words && item.kind == Words)
        return item.blankBefore ? faces_.printRegular.advance(U' ') * style.em : 0;
    if (before.kind == Box && !item.blankBefore) return 5;
    if (before.kind == Box) return item.kind == Box ? 22 : item.kind == Area ? 14 : 16;
    if (item.kind == Box) return before.kind == Area ? 14 : 10;
    return 7;
}

double RowSetter::naturalWidth(const Cell& cell, const RowStyle& style) const {
    double width = 0;
    for (std::size_t at = 0; at < cell.items.size(); ++at) {
        if (at > 0) width += gap(cell.items[at - 1], cell.items[at], style);
        width += itemWidth(cell.items[at], style);
    }
    return width;
}

std::vector<double> RowSetter::itemWidths(const Cell& cell, const RowStyle& style,
                                          double width) const {
    const double spare = width - naturalWidth(cell, style);
    if (spare < -(cell.align == CellAlign::Centre ? centredOverhang : 0.01))
        throw Failure("the row is " + std::to_string(-spare / fullPerDesign) + " pixels too wide");
    const bool areas = std::ranges::any_of(cell.items, stretches);
    const auto takesShare = [areas](const Item& item) {
        return areas ? stretches(item) : item.kind == ItemKind::Fill;
    };
    const auto sharers = std::ranges::count_if(cell.items, takesShare);
    std::vector<double> widths;
    widths.reserve(cell.items.size());
    for (const Item& item : cell.items)
        widths.push_back(itemWidth(item, style) +
                         (takesShare(item) ? spare / static_cast<double>(sharers) : 0));
    return widths;
}

void RowSetter::setCell(const Cell& cell, const RowStyle& style, Span span, int baseline) {
    const std::vector<double> widths = itemWidths(cell, style, span.width());
    double left = span.left;
    if (cell.align == CellAlign::Centre) left += (span.width() - naturalWidth(cell, style)) / 2;
    for (std::size_t at = 0; at < cell.items.size(); ++at) {
        if (at > 0) left += gap(cell.items[at - 1], cell.items[at], style);
        setItem(cell.items[at], style, {left, left + widths[at]}, baseline);
        left += widths[at];
    }
}

void RowSetter::setItem(const Item& item, const RowStyle& style, Span span, int baseline) {
    switch (item.kind) {
    case ItemKind::Words:
        setWords(item, style, span.left, baseline);
        break;
    case ItemKind::Box:
        setBox(item, span, baseline);
        break;
    case ItemKind::Circle:
        setCircle(item, span, baseline);
        break;
    case ItemKind::Area:
        setArea(item, span, baseline);
        break;
    case ItemKind::Fill:
        break;
    }
}

void RowSetter::setWords(const Item& item, const RowStyle& style, double left, int baseline) {
    toolkit::Words words;
    const auto file = [&] {
        words.width = hundredths(left - words.left);
        if (!words.text.empty()) sheet_.artwork.items.emplace_back(words);
    };
    for (const char32_t letter : item.text) {
        const Weight weight = weightOf(item, style);
        const Ink ink = wordInk(item, letter, style);
        const Typeface& face = faceOf(faces_, letter, weight);
        toolkit::Words next = wordsIn(ink, letter, weight, style.em);
        next.left = left;
        next.baseline = baseline;
        if (words.fontName == next.fontName && words.color == next.color) {
            words.text += next.text;
        } else {
            file();
            words = std::move(next);
        }
        addShape(ink, face.outline(codeOf(letter), style.em).translated(left, baseline));
        left += face.advance(codeOf(letter)) * style.em;
    }
    file();
}

void RowSetter::setBox(const Item& item, Span span, int baseline) {
    const int centreX = exactCentre((span.left + span.right) / 2, check_.x);
    const int centreY = exactCentre(baseline - boxCentreAboveBaseline, check_.y);
    const double half = boxSide / 2.0;
    QPainterPath frame;
    frame.setFillRule(Qt::OddEvenFill);
    frame.addRect(centreX - half, centreY - half, boxSide, boxSide);
    frame.addRect(centreX - half + ruleWidth, centreY - half + ruleWidth, boxSide - 2 * ruleWidth,
                  boxSide - 2 * ruleWidth);
    addShape(item.ink, frame);
    addFrame(item.ink, centreX - half, centreY - half);
    sheet_.marks.push_back({item.id, MarkKind::Check, item.ink, double(centreX), double(centreY)});
    walkTo(FieldKind::Mark, sheet_.marks.size());
}

void RowSetter::setCircle(const Item& item, Span span, int baseline) {
    const int centreX = exactCentre((span.left + span.right) / 2, circle_.x);
    QPainterPath letter = faces_.print(item.weight).outline(item.text.front(), circleEm);
    const double left = centreX - letter.boundingRect().center().x();
    letter.translate(left, baseline);
    // One height for the whole row, between the middles of capitals and of small letters.
    const int centreY = exactCentre(baseline - circleAboveBaseline, circle_.y);
    addShape(item.ink, letter);
    toolkit::Words words = wordsIn(item.ink, item.text.front(), item.weight, circleEm);
    words.left = left;
    words.baseline = baseline;
    words.width = hundredths(faces_.print(item.weight).advance(item.text.front()) * circleEm);
    sheet_.artwork.items.emplace_back(std::move(words));
    sheet_.marks.push_back({item.id, MarkKind::Circle, item.ink, double(centreX), double(centreY)});
}

void RowSetter::setArea(const Item& item, Span span, int baseline) {
    const double left = evenDown(span.left + 1);
    const double width = evenDown(span.right - left + 0.001);
    const int ruleTop = baseline + ruleBelowBaseline;
    if (item.areaSize == AreaSize::Small) rectangle(item.ink, left, ruleTop, width, ruleWidth);
    sheet_.texts.push_back({item.id, item.areaSize, item.ink, static_cast<int>(left),
                            static_cast<int>(width), ruleTop, ruleWidth});
    walkTo(FieldKind::Text, sheet_.texts.size());
}

void RowSetter::standLargeTextsOn(std::size_t firstText, int lineTop, int lineWidth) {
    for (TextPlace& text : std::span(sheet_.texts).subspan(firstText)) {
        if (text.size != AreaSize::Large) continue;
        text.ruleTop = lineTop;
        text.ruleWidth = lineWidth;
    }
}

void RowSetter::walkTo(FieldKind kind, std::size_t number) {
    sheet_.walk.push_back({kind, static_cast<int>(number)});
}

void RowSetter::rectangle(Ink ink, double left, double top, double width, double height) {
    QPainterPath path;
    path.addRect(left, top, width, height);
    addShape(ink, path);
    addBox(ink, left, top, width, height);
}

void RowSetter::addBox(Ink ink, double left, double top, double width, double height) {
    sheet_.artwork.items.emplace_back(
        toolkit::FilledRectangle{colorOf(ink), left, top, width, height});
}

void RowSetter::addFrame(Ink ink, double left, double top) {
    constexpr double inside = boxSide - 2 * ruleWidth;
    addBox(ink, left, top, boxSide, ruleWidth);
    addBox(ink, left, top + boxSide - ruleWidth, boxSide, ruleWidth);
    addBox(ink, left, top + ruleWidth, ruleWidth, inside);
    addBox(ink, left + boxSide - ruleWidth, top + ruleWidth, ruleWidth, inside);
}

void RowSetter::addShape(Ink ink, const QPainterPath& path) {
    if (path.isEmpty()) return;
    const QRectF bounds = path.boundingRect();
    sheet_.shapes.push_back({ink, path, bounds});
}

} // namespace card_tool
