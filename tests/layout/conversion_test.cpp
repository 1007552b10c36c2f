// Layouts of the real card on screens of 96, 110 and 120 dots per inch.
#include "app/second_run.h"
#include "layout/layout_text.h"
#include "layout/write_layout.h"
#include "support/form_test.h"
#include "toolkit/base/files.h"
#include "toolkit/base/twips.h"
#include "toolkit/window/screen.h"
#include "toolkit/window/shell_folders.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// The parameter is the screen's twips per pixel.
class Conversion : public FormTest, public testing::WithParamInterface<int> {
  protected:
    Conversion() {
        toolkit::overrideScreen({.twipsPerPixel = GetParam(), .width = 24000, .height = 24000});
    }
    [[nodiscard]] std::string number() const { return std::to_string(GetParam()); }
    [[nodiscard]] std::string installed() const {
        return toolkit::readFile(programFolder / (std::string(layoutFileName) + "." + number()));
    }
    /// The program with the layout of the usual screen, which the player keeps.
    void startWithUsualLayout() {
        if (GetParam() != 15) answer(toolkit::Answer::No);
        start();
    }
    [[nodiscard]] float pixel() const { return static_cast<float>(GetParam()); }
    void expectSamePlace(const toolkit::Label& label, const toolkit::Label& before, int index) {
        EXPECT_NEAR(label.Left, before.Left, pixel()) << index;
        EXPECT_NEAR(label.Top, before.Top, pixel()) << index;
    }
};

TEST_P(Conversion, NewPlayerGetsTheInstalledLayoutOfTheScreenUnchangedAndUnasked) {
    fs::remove(dataFile(layoutFileName));
    start();
    EXPECT_EQ(dataFileContent(layoutFileName), installed());
    EXPECT_EQ(form.OriginalTwips, GetParam());
    EXPECT_TRUE(boxes.empty());
}

TEST_P(Conversion, EveryFieldOfTheInstalledLayoutLiesOnTheCard) {
    writeLayout(installed());
    start();
    EXPECT_EQ(form.P1.Width, 1198 * pixel());
    for (int i = 1; i <= form.AMark.UBound(); ++i) {
        const toolkit::Label& mark = form.AMark[i];
        EXPECT_GE(mark.Left, 0) << i;
        EXPECT_LT(mark.Left + mark.Width, form.P1.Width) << i;
        EXPECT_LT(mark.Top + mark.Height, form.P1.Height) << i;
    }
    for (int i = 1; i <= form.AText.UBound(); ++i) {
        const toolkit::Label& text = form.AText[i];
        EXPECT_GE(text.Left, 0) << i;
        EXPECT_LT(text.Left + text.Width, form.P1.Width) << i;
        EXPECT_LT(text.Top + text.Height, form.P1.Height) << i;
    }
}

TEST_P(Conversion, UsualLayoutIsWrittenAnewForAnyOtherScreen) {
    const std::string before = dataFileContent(layoutFileName);
    startWithUsualLayout();
    const std::string after = dataFileContent(layoutFileName);
    EXPECT_EQ(after == before, GetParam() == 15);
    EXPECT_NE(after.find("\r\n" + number() + ","), std::string::npos);
    EXPECT_EQ(boxes.size(), GetParam() == 15 ? 0U : 1U);
}

TEST_P(Conversion, ConvertedLayoutBringsEveryFieldBackAtTheNextStart) {
    startWithUsualLayout();
    const auto marks = form.AMark;
    const auto texts = form.AText;
    const std::size_t asked = boxes.size();
    const SecondRun next(window);
    EXPECT_EQ(boxes.size(), asked);
    EXPECT_EQ(next.form.OriginalTwips, GetParam());
    ASSERT_EQ(next.form.AMark.UBound(), marks.UBound());
    ASSERT_EQ(next.form.AText.UBound(), texts.UBound());
    for (int i = 1; i <= marks.UBound(); ++i) {
        expectSamePlace(next.form.AMark[i], marks[i], i);
        EXPECT_EQ(next.form.AMark[i].Caption, marks[i].Caption) << i;
        EXPECT_EQ(next.form.AMark[i].ForeColor, marks[i].ForeColor) << i;
    }
    for (int i = 1; i <= texts.UBound(); ++i) {
        expectSamePlace(next.form.AText[i], texts[i], i);
        EXPECT_NEAR(next.form.AText[i].Width, texts[i].Width, pixel()) << i;
    }
    EXPECT_EQ(next.form.MarkSizes, form.MarkSizes);
    EXPECT_EQ(next.form.TextSizes, form.TextSizes);
    ASSERT_EQ(next.form.TabTable.UBound(), form.TabTable.UBound());
    for (int item = 1; item <= form.TabTable.UBound(); ++item) {
        EXPECT_EQ(next.form.TabTable[item], form.TabTable[item]) << item;
    }
}

TEST_P(Conversion, OffsetsWrittenAreThoseOfThisScreensFonts) {
    startWithUsualLayout();
    if (GetParam() == 15) return;
    std::string offsets;
    for (const int kind : {ink_kind::check, ink_kind::circle, ink_kind::text}) {
        for (std::size_t size = 1; size <= 3; ++size) {
            for (const int side : {inkLeft, inkBottom}) {
                const float ink = form.FontOffsets[static_cast<std::size_t>(kind)][size]
                                                  [static_cast<std::size_t>(side)];
                offsets += std::to_string(toolkit::pixelsFromTwips(ink)) + ",";
            }
        }
    }
    EXPECT_NE(dataFileContent(layoutFileName).find("\r\n" + offsets + "0\r\n"), std::string::npos);
}

INSTANTIATE_TEST_SUITE_P(Screens, Conversion, testing::Values(15, 13, 12));

} // namespace
} // namespace zev::test
