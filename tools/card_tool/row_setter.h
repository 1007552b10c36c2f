// Sets the items of one row.
#pragma once

#include <vector>

#include "card_tool/mark_cell.h"
#include "card_tool/sheet.h"
#include "card_tool/typeface.h"

namespace card_tool {

/// How the words of a row look.
struct RowStyle {
    /// The em in full pixels.
    double em = 28;
    Weight weight = Weight::Regular;
    /// Whether words on black are printed in paper instead of ink.
    bool inverse = false;
};

constexpr RowStyle bodyStyle{28, Weight::Regular, false};
constexpr RowStyle headStyle{28, Weight::Bold, false};
constexpr RowStyle captionStyle{22, Weight::Regular, false};
constexpr RowStyle barStyle{30, Weight::Bold, true};
constexpr RowStyle barCaptionStyle{22, Weight::Bold, true};

/// The horizontal place of a cell, in full pixels.
struct Span {
    double left = 0;
    double right = 0;
    [[nodiscard]] double width() const { return right - left; }
};

/// Sets the items of a row beside each other, and files their ink and fields on a sheet.
class RowSetter {
  public:
    RowSetter(const Typefaces& faces, Sheet& sheet);

    /// The width that a cell needs, with its stretching areas at their least.
    [[nodiscard]] double naturalWidth(const Cell& cell, const RowStyle& style) const;

    /// Sets a cell on a baseline (an even full pixel). Throws Failure if it is wider than its
    /// span.
    void setCell(const Cell& cell, const RowStyle& style, Span span, int baseline);

    /// Lets the large texts from this one on stand on a line that is printed already, in full
    /// pixels.
    void standLargeTextsOn(std::size_t firstText, int lineTop, int lineWidth);
    [[nodiscard]] std::size_t textCount() const { return sheet_.texts.size(); }

    /// A filled rectangle.
    void rectangle(Ink ink, double left, double top, double width, double height);

  private:
    [[nodiscard]] double itemWidth(const Item& item, const RowStyle& style) const;
    [[nodiscard]] double wordsWidth(const Item& item, const RowStyle& style) const;
    [[nodiscard]] double gap(const Item& before, const Item& item, const RowStyle& style) const;
    [[nodiscard]] std::vector<double> itemWidths(const Cell& cell, const RowStyle& style,
                                                 double width) const;

    void setItem(const Item& item, const RowStyle& style, Span span, int baseline);
    void setWords(const Item& item, const RowStyle& style, double left, int baseline);
    void setBox(const Item& item, Span span, int baseline);
    void setCircle(const Item& item, Span span, int baseline);
    void setArea(const Item& item, Span span, int baseline);
    void addShape(Ink ink, const QPainterPath& path);
    void addBox(Ink ink, double left, double top, double width, double height);
    /// The four sides of a box for a check.
    void addFrame(Ink ink, double left, double top);
    void walkTo(FieldKind kind, std::size_t number);

    const Typefaces& faces_;
    Sheet& sheet_;
    CentreOffset check_;
    CentreOffset circle_;
};

} // namespace card_tool
