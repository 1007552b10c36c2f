// What a typographer looks at: margins, weights of rules, leading, paper around rows.
#include "card_picture/picture_reader.h"
#include "card_tool/description.h"
#include "card_tool/typesetter.h"
#include "card_tool/units.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>
#include <variant>

namespace card_picture {
namespace {

// In full pixels.
constexpr int fold = card_tool::pictureWidth / 2;
constexpr int pitch = 52;
constexpr double frameLine = 4;
constexpr double thinLine = 2;
constexpr double barHeight = 34;
/// Between a bar and the first row's boxes and between the last row's and the frame.
constexpr double paperAroundRows = 14;
constexpr double leastPaper = 8;
/// Between the writing line of an area's last row and the frame.
constexpr double leastPaperBelowLine = 6;
/// From the words' base line, on which typed text stands, to the writing line.
constexpr int lineBelowWords = 12;

const card_tool::Sheet& sheet() {
    static const card_tool::Sheet set = card_tool::typeset(
        card_tool::readDescription(CARD_DESCRIPTION), card_tool::loadTypefaces(CARD_FONTS));
    return set;
}

bool isRectangle(const card_tool::InkShape& shape) {
    return shape.path.elementCount() == 5 &&
           std::ranges::all_of(std::vector{0, 1, 2, 3, 4},
                               [&](int at) { return !shape.path.elementAt(at).isCurveTo(); });
}
double thickness(const card_tool::InkShape& shape) {
    return std::min(shape.bounds.width(), shape.bounds.height());
}
/// Longer than any stroke of a letter.
bool isLong(const card_tool::InkShape& shape) {
    return std::max(shape.bounds.width(), shape.bounds.height()) > pitch;
}
bool isRule(const card_tool::InkShape& shape, double thick) {
    return isRectangle(shape) && shape.ink == card_tool::Ink::Black && thickness(shape) == thick &&
           isLong(shape);
}
bool isDivider(const card_tool::InkShape& shape) {
    return isRule(shape, thinLine) && shape.bounds.width() == thinLine;
}
/// Words, boxes and writing lines.
bool isContent(const card_tool::InkShape& shape) {
    return shape.ink != card_tool::Ink::Paper && !isRule(shape, frameLine) &&
           !isRule(shape, barHeight) && !isDivider(shape);
}

bool isWritingLine(const card_tool::InkShape& shape) {
    return isRectangle(shape) && shape.bounds.height() == thinLine &&
           shape.ink != card_tool::Ink::Paper;
}
/// Words and boxes.
bool isWordOrBox(const card_tool::InkShape& shape) {
    return isContent(shape) && !isWritingLine(shape);
}

std::vector<QRectF> boundsOf(bool (*chosen)(const card_tool::InkShape&)) {
    std::vector<QRectF> bounds;
    for (const card_tool::InkShape& shape : sheet().shapes)
        if (chosen(shape)) bounds.push_back(shape.bounds);
    return bounds;
}
std::vector<QRectF> frameLines() {
    return boundsOf([](const card_tool::InkShape& shape) { return isRule(shape, frameLine); });
}
std::vector<QRectF> bars() {
    return boundsOf([](const card_tool::InkShape& shape) { return isRule(shape, barHeight); });
}
bool share(const QRectF& one, const QRectF& other) {
    return one.left() < other.right() && other.left() < one.right();
}

struct Extent {
    int left = std::numeric_limits<int>::max();
    int right = -1;
    int top = std::numeric_limits<int>::max();
    int bottom = -1;
};
Extent inkBetween(int left, int right) {
    Extent extent;
    for (int y = 0; y < fullPicture().height; ++y)
        for (int x = left; x < right; ++x)
            if (fullPicture().ink(x, y))
                extent = {std::min(extent.left, x), std::max(extent.right, x),
                          std::min(extent.top, y), std::max(extent.bottom, y)};
    return extent;
}

TEST(Composition, OuterMarginIsEven) {
    const Extent all = inkBetween(0, fullPicture().width);
    EXPECT_EQ(all.left, 24);
    EXPECT_EQ(fullPicture().width - 1 - all.right, all.left);
    EXPECT_EQ(all.top, all.left);
    // The rows of the time stamp, and only as much paper as keeps it off the frames.
    const int foot = fullPicture().height - 1 - all.bottom;
    EXPECT_GE(foot, card_tool::footRows + 8);
    EXPECT_LE(foot, card_tool::footRows + 12);
}

TEST(Composition, PanelsBalanceAboutTheFold) {
    const Extent left = inkBetween(0, fold);
    const Extent right = inkBetween(fold, fullPicture().width);
    EXPECT_EQ(left.top, right.top);
    EXPECT_EQ(left.bottom, right.bottom);
    EXPECT_EQ(fold - 1 - left.right, right.left - fold);
    EXPECT_EQ(left.right - left.left, right.right - right.left);
}

TEST(Composition, RulesHaveTwoWeights) {
    std::set<double> weights;
    for (const card_tool::InkShape& shape : sheet().shapes)
        if (isRectangle(shape) && isLong(shape) && shape.ink != card_tool::Ink::Paper)
            weights.insert(thickness(shape));
    // Bars are no rules; the sides of boxes are thin lines, as the tests of fields measure.
    weights.erase(barHeight);
    EXPECT_EQ(weights, (std::set<double>{thinLine, frameLine}));
}

TEST(Composition, NothingTouchesAFrame) {
    const std::vector<QRectF> lines = frameLines();
    ASSERT_GT(lines.size(), 60U);
    const auto expectFree = [&](bool (*chosen)(const card_tool::InkShape&), double below) {
        for (const QRectF& content : boundsOf(chosen)) {
            const QRectF around = content.adjusted(-leastPaper, -leastPaper, leastPaper, below);
            // A heading stands in its bar, which covers the frame's upper line.
            const bool inBar = std::ranges::any_of(
                bars(), [&](const QRectF& bar) { return bar.intersects(content); });
            if (inBar) continue;
            for (const QRectF& line : lines)
                EXPECT_FALSE(around.intersects(line)) << content.left() << "," << content.top();
        }
    };
    expectFree(isWordOrBox, leastPaper);
    expectFree(isWritingLine, leastPaperBelowLine);
}

/// The paper between a bar and the nearest content below it.
double paperBelow(const QRectF& bar, const std::vector<QRectF>& contents) {
    double paperRows = pitch;
    for (const QRectF& content : contents)
        if (share(content, bar) && content.top() >= bar.bottom())
            paperRows = std::min(paperRows, content.top() - bar.bottom());
    return paperRows;
}
double paperAbove(const QRectF& line, const std::vector<QRectF>& contents) {
    double paperRows = pitch;
    for (const QRectF& content : contents)
        if (share(content, line) && content.bottom() <= line.top())
            paperRows = std::min(paperRows, line.top() - content.bottom());
    return paperRows;
}

TEST(Composition, AreasHaveTheSamePaperBelowTheirBarAndAboveTheirFoot) {
    const std::vector<QRectF> contents = boundsOf(isWordOrBox);
    const std::vector<QRectF> writingLines = boundsOf(isWritingLine);
    for (const QRectF& bar : bars())
        EXPECT_GE(paperBelow(bar, contents), paperAroundRows) << bar.left() << "," << bar.top();
    const std::vector<QRectF> lines = frameLines();
    std::size_t feet = 0;
    for (const QRectF& line : lines) {
        const double belowWords = paperAbove(line, contents);
        const double belowLines = paperAbove(line, writingLines);
        // Above the upper lines lies the area before, foot and all.
        if (line.width() < line.height() || std::min(belowWords, belowLines) > paperAroundRows)
            continue;
        ++feet;
        EXPECT_GE(belowWords, paperAroundRows - 2) << line.left() << "," << line.top();
        EXPECT_TRUE(belowLines == leastPaperBelowLine || belowLines > paperAroundRows)
            << line.left() << "," << line.top();
    }
    // The leads have more, as rings reach below their letters; the names stand on their frame.
    EXPECT_EQ(feet, lines.size() / 4 - 2);
}

/// The leads have a pitch of their own, and shift what stands beside and below them.
double topOfLeads() {
    const auto leads = std::ranges::find_if(
        sheet().marks, [](const card_tool::MarkPlace& mark) { return mark.id == "s.xx.1"; });
    return leads == sheet().marks.end() ? 0 : leads->centreY;
}

/// The left panel has two columns of areas, whose rows shift against each other.
int columnOf(double x) { return x < fold / 2.0 ? 0 : x < fold ? 1 : 2; }

TEST(Composition, TypedTextStandsOnTheBaseLineOfTheWordsOfItsRow) {
    int rows = 0;
    for (const card_tool::TextPlace& text : sheet().texts) {
        if (text.size == card_tool::AreaSize::Large) continue;
        if (text.left < fold && text.ruleTop + 2 * pitch > topOfLeads()) continue;
        for (const auto& item : sheet().artwork.items) {
            const auto* words = std::get_if<toolkit::Words>(&item);
            if (words == nullptr) continue;
            const double above = text.ruleTop - words->baseline;
            if (std::abs(above - lineBelowWords) >= pitch / 2.0) continue;
            if (columnOf(words->left) != columnOf(text.left)) continue;
            ++rows;
            EXPECT_EQ(above, lineBelowWords) << text.id;
        }
    }
    EXPECT_GT(rows, 100);
}

TEST(Composition, WordsLieOverAllBoxes) {
    const auto& items = sheet().artwork.items;
    const auto isBox = [](const toolkit::DrawnItem& item) {
        return std::holds_alternative<toolkit::FilledRectangle>(item);
    };
    EXPECT_TRUE(std::ranges::any_of(items, isBox));
    EXPECT_FALSE(std::ranges::all_of(items, isBox));
    EXPECT_TRUE(std::ranges::is_partitioned(items, isBox));
}

TEST(Composition, RowsOfNeighbouringColumnsStandOnOneLine) {
    std::set<int> left;
    std::set<int> right;
    for (const card_tool::TextPlace& text : sheet().texts) {
        if (text.size == card_tool::AreaSize::Large) continue;
        if (text.left > fold)
            right.insert(text.ruleTop % pitch);
        else if (text.ruleTop < topOfLeads())
            left.insert(text.ruleTop % pitch);
    }
    EXPECT_EQ(left.size(), 1U);
    EXPECT_EQ(right.size(), 1U);
}

} // namespace
} // namespace card_picture
