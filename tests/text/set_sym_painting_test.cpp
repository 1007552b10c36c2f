#include "text/edit_test.h"
#include "text/set_sym.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using namespace toolkit::test;

constexpr toolkit::Color inkRed = toolkit::rgb(195, 17, 25);

class PaintedSymbols : public EditTest {
  protected:
    /// Pixels of exactly this colour in a rectangle of twips.
    static int inkOf(const toolkit::Bitmap& card, toolkit::Color color, float left, float top,
                     float right, float bottom) {
        int count = 0;
        for (int y = static_cast<int>(top / pixel); y < static_cast<int>(bottom / pixel); ++y) {
            for (int x = static_cast<int>(left / pixel); x < static_cast<int>(right / pixel); ++x) {
                count += card.pixel(x, y) == color ? 1 : 0;
            }
        }
        return count;
    }
    static int inkIn(const toolkit::Bitmap& card, toolkit::Color color,
                     const toolkit::Label& label) {
        return inkOf(card, color, label.Left, label.Top, label.Left + label.Width,
                     label.Top + label.Height);
    }
};

TEST_F(PaintedSymbols, HeartShowsRedInkAtItsPlace) {
    startSmall();
    const auto blank = grabCard();
    enter(1, "4^h");
    const toolkit::Label heart = form.SText[1];
    EXPECT_GT(inkIn(grabCard(), inkRed, heart), inkIn(blank, inkRed, heart) + 15);
}

TEST_F(PaintedSymbols, SpadeShowsBlackInkAndNoRed) {
    startSmall();
    const auto blank = grabCard();
    enter(1, "4^s");
    const toolkit::Label spade = form.SText[1];
    EXPECT_GT(inkIn(grabCard(), toolkit::black, spade), inkIn(blank, toolkit::black, spade) + 15);
    EXPECT_EQ(inkIn(grabCard(), inkRed, spade), inkIn(blank, inkRed, spade));
}

TEST_F(PaintedSymbols, SymbolOfASmallTextIsNotCutAtItsLabel) {
    startSmall();
    const auto blank = grabCard();
    toolkit::Label& label = form.AText[1];
    label.Font.Name = form.NarrowFontName;
    label.Font.Size = 2.5F; // as on a card zoomed out
    label.Caption = "^h";
    SetSym(form, 1);
    const toolkit::Label heart = form.SText[1];
    const float right = heart.Left + heart.Width;
    ASSERT_GT(toolkit::textWidth(heart.Font, heart.Caption), heart.Width);
    const auto card = grabCard();
    int changed = 0;
    for (int y = static_cast<int>(heart.Top / pixel); y < static_cast<int>(label.Top / pixel) + 20;
         ++y) {
        const auto first = static_cast<int>(right / pixel) + 1;
        for (int x = first; x < first + 3; ++x) changed += card.pixel(x, y) != blank.pixel(x, y);
    }
    EXPECT_GT(changed, 2);
}

TEST_F(PaintedSymbols, HiddenOldSymbolLeavesNoInk) {
    startSmall();
    const auto blank = grabCard();
    enter(1, "4^h");
    const toolkit::Label heart = form.SText[1];
    clickText(1);
    typeKey('A', toolkit::shift::ctrl);
    typeKey(toolkit::key::backspace);
    typeKey(toolkit::key::escape);
    EXPECT_EQ(inkIn(grabCard(), inkRed, heart), inkIn(blank, inkRed, heart));
}

} // namespace
} // namespace zev::test
