#include "card_tool/typesetter.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <variant>

#include "card_tool/failure.h"
#include "card_tool/row_setter.h"
#include "card_tool/units.h"

namespace card_tool {
namespace {

constexpr int sideMargin = 26;
constexpr int topMargin = 18;
constexpr int gutter = 44;
constexpr int panelWidth = (pictureWidth - 2 * sideMargin - gutter) / 2;

constexpr int usualPitch = 52;
constexpr int baselineInRow = 34;
constexpr int barTop = 6;
constexpr int barHeight = 34;
/// The rows under a bar move up by this much, and the frame's foot keeps as much paper: so a frame
/// has the same paper above its first box and below its last one.
constexpr int barLift = 8;
constexpr int belowBar = usualPitch - barLift - barTop - barHeight;
constexpr int frameFoot = 2;
/// Frames are heavier than what stands in them, and grow to the sides where there is paper.
constexpr int frameLine = 4;
constexpr int frameGrowth = 2;
constexpr int line = 2;
constexpr int framePadding = 12;
constexpr int frameGap = 12;
constexpr int cellGap = 16;
constexpr int besideBox = 20;

double fullPixels(double designPixels) { return designPixels * fullPerDesign; }

bool isRow(const Node& node) {
    return node.kind == NodeKind::Row || node.kind == NodeKind::Bar ||
           node.kind == NodeKind::Head || node.kind == NodeKind::Caption;
}

const RowStyle& styleOf(const Node& row, std::size_t cell) {
    switch (row.kind) {
    case NodeKind::Bar:
        return cell == 0 ? barStyle : barCaptionStyle;
    case NodeKind::Head:
        return cell == 0 ? headStyle : captionStyle;
    case NodeKind::Caption:
        return captionStyle;
    default:
        return bodyStyle;
    }
}

/// Widths of neighbouring parts: given ones, and even shares of the rest for those given as 0.
std::vector<double> shareOut(const std::vector<double>& measures, double width, double gap) {
    double rest = width - gap * static_cast<double>(measures.size() - 1);
    for (const double measure : measures) rest -= fullPixels(measure);
    const auto open = static_cast<double>(std::ranges::count(measures, 0.0));
    std::vector<double> widths;
    widths.reserve(measures.size());
    for (const double measure : measures)
        widths.push_back(measure == 0 ? std::floor(rest / open / 2) * 2 : fullPixels(measure));
    return widths;
}

class Typesetter {
  public:
    Typesetter(const Typefaces& faces, Sheet& sheet) : setter_(faces, sheet) {}

    /// Where a part stands: its column, its top, and whether a frame is around it.
    struct Place {
        Span span;
        int top = 0;
        enum class Within { Sheet, Frame } within = Within::Sheet;
        int pitch = usualPitch;
    };

    /// Each sets a part and returns its height.
    int setStack(const Node& stack, Place place) {
        const int start = place.top;
        for (const Node& part : stack.parts) {
            if (part.kind == NodeKind::Pitch)
                place.pitch = static_cast<int>(fullPixels(part.measures.at(0)));
            else
                place.top += setPart(part, place);
        }
        return place.top - start;
    }

    /// Throws Failure if rows didn't fit, and names them all.
    void finish() const {
        if (!faults_.empty()) throw Failure("rows don't fit:" + faults_);
    }

  private:
    int setPart(const Node& part, const Place& place) {
        switch (part.kind) {
        case NodeKind::Frame:
            return setFrame(part, place);
        case NodeKind::Columns:
            return setColumns(part, place);
        case NodeKind::Grid:
            return setGrid(part, place);
        case NodeKind::Space:
            return static_cast<int>(fullPixels(part.measures.at(0)));
        default:
            return setRow(part, place, evenCells(part, place.span));
        }
    }

    int setFrame(const Node& frame, Place place) {
        const Span outer = place.span;
        const std::size_t firstText = setter_.textCount();
        place.span = {outer.left + framePadding, outer.right - framePadding};
        place.within = Place::Within::Frame;
        const int height = setStack(frame, place) + barLift;
        drawFrame(outer, place.top + barTop, place.top + height - frameFoot);
        setter_.standLargeTextsOn(firstText, place.top + height - frameFoot - frameLine, frameLine);
        return height;
    }

    void drawFrame(Span around, int top, int bottom) {
        const Span outer{around.left - frameGrowth, around.right + frameGrowth};
        setter_.rectangle(Ink::Black, outer.left, top, outer.width(), frameLine);
        setter_.rectangle(Ink::Black, outer.left, bottom - frameLine, outer.width(), frameLine);
        setter_.rectangle(Ink::Black, outer.left, top, frameLine, bottom - top);
        setter_.rectangle(Ink::Black, outer.right - frameLine, top, frameLine, bottom - top);
    }

    int setColumns(const Node& columns, Place place) {
        const bool framed = place.within == Place::Within::Frame;
        const double gap = framed ? 2 * framePadding + line : frameGap;
        const std::vector<double> widths = shareOut(columns.measures, place.span.width(), gap);
        if (widths.size() != columns.parts.size())
            fail(columns, "widths and columns differ in number");
        int height = 0;
        std::vector<double> rules;
        double left = place.span.left;
        for (std::size_t at = 0; at < widths.size(); ++at) {
            if (at > 0) rules.push_back(left - (gap + line) / 2);
            const double right = at + 1 == widths.size() ? place.span.right : left + widths[at];
            Place column = place;
            column.span = {left, right};
            height = std::max(height, setStack(columns.parts[at], column));
            left = right + gap;
        }
        if (framed) drawColumnRules(columns, rules, place.top, height);
        return height;
    }

    /// The rules reach from the bar above the columns to the frame's foot. Where the columns have
    /// bars of their own, paper parts these.
    void drawColumnRules(const Node& columns, const std::vector<double>& rules, int top,
                         int height) {
        const auto& first = columns.parts.front().parts;
        const bool bars = !first.empty() && first.front().kind == NodeKind::Bar;
        const int start = bars ? top + barTop + barHeight : top - belowBar;
        for (const double rule : rules) {
            setter_.rectangle(Ink::Black, rule, start, line,
                              top + height + barLift - frameFoot - start);
            if (bars) setter_.rectangle(Ink::Paper, rule, top + barTop, line, barHeight);
        }
    }

    int setGrid(const Node& grid, Place place) {
        const std::vector<Span> cells = gridCells(grid, place.span);
        const int start = place.top;
        for (const Node& row : grid.parts) {
            const bool whole = row.cells.size() == 1;
            if (isRow(row))
                place.top += setRow(row, place, whole ? evenCells(row, place.span) : cells);
            else
                place.top += setPart(row, place);
        }
        return place.top - start;
    }

    /// Given widths, or else as wide as the widest cell, the rest shared between the columns.
    std::vector<Span> gridCells(const Node& grid, Span span) const {
        std::vector<double> widths = grid.measures.empty()
                                         ? naturalWidths(grid, span.width())
                                         : shareOut(grid.measures, span.width(), cellGap);
        std::vector<Span> cells;
        double left = span.left;
        for (const double width : widths) {
            cells.push_back({left, left + width});
            left += width + cellGap;
        }
        if (!cells.empty()) cells.back().right = span.right;
        return cells;
    }

    std::vector<double> naturalWidths(const Node& grid, double width) const {
        std::vector<double> widths;
        for (const Node& row : grid.parts) {
            if (row.cells.size() < 2) continue;
            widths.resize(std::max(widths.size(), row.cells.size()));
            for (std::size_t at = 0; at < row.cells.size(); ++at)
                if (at == 0 || row.cells[at - 1].place == CellPlace::Own)
                    widths[at] =
                        std::max(widths[at], setter_.naturalWidth(row.cells[at], styleOf(row, at)));
        }
        double spare = width + cellGap;
        for (const double each : widths) spare -= each + cellGap;
        for (std::size_t gap = 1; gap < widths.size(); ++gap)
            widths[leansRight(grid, gap) ? gap : gap - 1] +=
                spare / static_cast<double>(widths.size() - 1);
        return widths;
    }

    /// Whether a column's cells are pushed to their right end, so that spare paper goes before
    /// them.
    static bool leansRight(const Node& grid, std::size_t column) {
        return std::ranges::any_of(grid.parts, [column](const Node& row) {
            return column < row.cells.size() && !row.cells[column].items.empty() &&
                   row.cells[column].items.front().kind == ItemKind::Fill;
        });
    }

    static std::vector<Span> evenCells(const Node& row, Span span) {
        std::vector<Span> cells;
        const std::size_t count = std::max<std::size_t>(row.cells.size(), 1);
        const double width = (span.width() + cellGap) / static_cast<double>(count) - cellGap;
        for (std::size_t at = 0; at < count; ++at) {
            const double left = span.left + static_cast<double>(at) * (width + cellGap);
            cells.push_back({left, left + width});
        }
        return cells;
    }

    int setRow(const Node& row, const Place& place, const std::vector<Span>& cells) {
        if (row.cells.size() > cells.size()) fail(row, "more cells than the grid has columns");
        if (row.kind == NodeKind::Bar) drawBar(place);
        const int baseline = place.top + baselineInRow + (place.pitch - usualPitch) / 4 * 2;
        try {
            for (std::size_t at = 0; at < row.cells.size(); ++at)
                setter_.setCell(row.cells[at], styleOf(row, at),
                                roomFor(row, at, {leftEdge(row, at, cells), cells[at].right}),
                                baseline);
        } catch (const Failure& failure) {
            faults_ += "\n  " + atLine(row, failure.what());
        }
        return place.pitch - (row.kind == NodeKind::Bar ? barLift : 0);
    }

    /// Where a cell begins: it has the room of the cells before it that are lent to it.
    static double leftEdge(const Node& row, std::size_t at, const std::vector<Span>& cells) {
        while (at > 0 && row.cells[at - 1].place == CellPlace::LentToNext) --at;
        return cells[at].left;
    }

    /// Words may use the paper beside a centred box in the next cell.
    static Span roomFor(const Node& row, std::size_t at, Span span) {
        const bool boxFollows =
            at + 1 < row.cells.size() && row.cells[at + 1].align == CellAlign::Centre;
        const bool words = std::ranges::all_of(
            row.cells[at].items, [](const Item& item) { return item.kind == ItemKind::Words; });
        if (boxFollows && words && row.cells[at].align == CellAlign::Left) span.right += besideBox;
        return span;
    }

    /// A bar reaches into the padding of the frame that it heads.
    void drawBar(const Place& place) {
        setter_.rectangle(Ink::Black, place.span.left - framePadding, place.top + barTop,
                          place.span.width() + 2 * framePadding, barHeight);
    }

    static std::string atLine(const Node& node, const std::string& message) {
        return "line " + std::to_string(node.line) + ": " + message;
    }

    [[noreturn]] static void fail(const Node& node, const std::string& message) {
        throw Failure(atLine(node, message));
    }

    RowSetter setter_;
    std::string faults_;
};

/// Marks were numbered as they came; circles go to the end, of the walk, too.
void putCirclesLast(Sheet& sheet) {
    std::vector<int> newNumber(sheet.marks.size() + 1);
    std::vector<MarkPlace> sorted;
    for (const MarkKind kind : {MarkKind::Check, MarkKind::Circle})
        for (std::size_t at = 0; at < sheet.marks.size(); ++at)
            if (sheet.marks[at].kind == kind) {
                sorted.push_back(sheet.marks[at]);
                newNumber[at + 1] = static_cast<int>(sorted.size());
            }
    sheet.marks = std::move(sorted);
    for (FieldNumber& field : sheet.walk)
        if (field.kind == FieldKind::Mark)
            field.number = newNumber[static_cast<std::size_t>(field.number)];
    for (std::size_t at = 0; at < sheet.marks.size(); ++at)
        if (sheet.marks[at].kind == MarkKind::Circle)
            sheet.walk.push_back({FieldKind::Mark, static_cast<int>(at) + 1});
}

/// No box hides words. Boxes that follow each other are drawn at once, which makes a page smaller.
void putWordsLast(toolkit::Drawing& artwork) {
    std::ranges::stable_partition(artwork.items, [](const toolkit::DrawnItem& item) {
        return std::holds_alternative<toolkit::FilledRectangle>(item);
    });
}

void checkNames(const Sheet& sheet) {
    std::set<std::string> names;
    const auto take = [&names](const std::string& id) {
        if (id.empty() || !names.insert(id).second)
            throw Failure("the field name is empty or taken: " + id);
    };
    for (const MarkPlace& mark : sheet.marks) take(mark.id);
    for (const TextPlace& text : sheet.texts) take(text.id);
}

} // namespace

Sheet typeset(const Description& description, const Typefaces& faces) {
    Sheet sheet;
    sheet.artwork.width = pictureWidth;
    sheet.artwork.height = pictureHeight;
    Typesetter setter(faces, sheet);
    if (description.panels.size() != 2)
        throw Failure("a card has two panels, the right one described first");
    double left = sideMargin + panelWidth + gutter;
    for (const Node& panel : description.panels) {
        setter.setStack(panel, {.span = {left, left + panelWidth}, .top = topMargin});
        left = sideMargin;
    }
    setter.finish();
    putCirclesLast(sheet);
    putWordsLast(sheet.artwork);
    checkNames(sheet);
    return sheet;
}

} // namespace card_tool
