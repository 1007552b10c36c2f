// How a panel's labels are painted.
#include "panel_fixture.h"
#include "toolkit/testing/test_window.h"

namespace window_test {
namespace {

using namespace toolkit;

class PanelLabels : public PanelTest {
  protected:
    /// Whether any pixel of the panel's rectangle is dark.
    [[nodiscard]] static bool hasInk(int left, int top, int width, int height) {
        const Bitmap shown = test::grabWindow();
        for (int y = top; y < top + height; ++y)
            for (int x = left; x < left + width; ++x)
                if (redOf(*shown.pixel(100 + x, 100 + y)) < 100) return true;
        return false;
    }
};

TEST_F(PanelLabels, AWrappedCaptionGoesOnInTheNextLine) {
    place(plain, 220, 25, 70, 60);
    plain.Caption = "iiiii iiiii iiiii iiiii iiiii";
    EXPECT_FALSE(hasInk(220, 45, 70, 40));
    plain.Wraps = true;
    plain.Caption += " ";
    EXPECT_TRUE(hasInk(220, 42, 70, 15));
}

TEST_F(PanelLabels, AWordThatIsTooLongStandsByItself) {
    place(plain, 220, 25, 40, 60);
    plain.Wraps = true;
    plain.Caption = "iiiiiiiiiiiiiiiiiiiiiii iii";
    EXPECT_TRUE(hasInk(220, 25, 40, 12));
    EXPECT_TRUE(hasInk(220, 40, 40, 15));
}

TEST_F(PanelLabels, AnOpaqueLabelHasItsTextInTheMiddleOfItsHeight) {
    place(plain, 220, 25, 70, 60);
    plain.Caption = "iii";
    EXPECT_TRUE(hasInk(221, 26, 68, 13));
    plain.BackStyle = BackStyle::Opaque;
    EXPECT_FALSE(hasInk(221, 26, 68, 13));
    EXPECT_TRUE(hasInk(221, 48, 68, 14));
}

TEST_F(PanelLabels, AnOpaqueLabelHasAFrame) {
    plain.BackStyle = BackStyle::Opaque;
    EXPECT_NE(shownAt(150, 10), white);
    EXPECT_EQ(shownAt(152, 10), white);
}

TEST_F(PanelLabels, ACaptionThatIsTooWideLosesItsMiddleWhereItMay) {
    const auto shownEnd = [this](const std::string& caption) {
        place(plain, 150, 5, 100, 15);
        plain.Caption = caption;
        Log columns;
        for (int x = 230; x < 250; ++x) columns.emplace_back(hasInk(x, 5, 1, 15) ? "#" : ".");
        return columns;
    };
    const std::string begin(40, 'n');
    EXPECT_EQ(shownEnd(begin + "iii"), shownEnd(begin + "nnn")) << "cut, both look alike";
    plain.Shortens = true;
    EXPECT_NE(shownEnd(begin + "iii"), shownEnd(begin + "nnn"));
    // No ink at the label's edge: the last letter is whole.
    EXPECT_FALSE(hasInk(250, 5, 5, 15));
}

} // namespace
} // namespace window_test
