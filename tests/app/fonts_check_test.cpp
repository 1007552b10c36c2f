#include <cmath>

#include "app/fonts_check.h"
#include "app/layouts.h"
#include "form/write_options.h"
#include "layout/initialize_run.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"

namespace zev::test {
namespace {

class FontsCheck : public FormTest {
  protected:
    /// A card picture so low that a line of text takes more of it than a sane font would. At zoom 5
    /// the card is half as high, and 7.5 pixels more for the stamp.
    void useLowPicture(int pixels) {
        toolkit::savePng(toolkit::Bitmap(2396, pixels), dataFile("Convention card.gif"));
    }
    /// The height of the card, in twips, at which a font of 11 points just counts as defective.
    static float limitFor(const char* font) {
        return toolkit::textHeight({font, 11, false, false}) / 0.05F;
    }
    void startWithFontSize(std::string_view option) {
        writeOptions("Zoom=5\r\nFontSize=" + std::string(option) + "\r\n");
        start();
    }
    [[nodiscard]] std::array<float, 3> textSizes() const {
        return {form.TextFontSize[1], form.TextFontSize[2], form.TextFontSize[3]};
    }
};

TEST_F(FontsCheck, NormalTextSizes) {
    startWithFontSize("0");
    EXPECT_EQ(textSizes(), (std::array<float, 3>{11, 14, 18}));
    EXPECT_EQ(form.MarkFontSize, (std::array<float, 4>{0, 18, 22, 30}));
}

TEST_F(FontsCheck, SmallerTextChangesTheSmallSizeOnly) {
    startWithFontSize("1");
    EXPECT_EQ(textSizes(), (std::array<float, 3>{9.5F, 14, 18}));
}

TEST_F(FontsCheck, LargerText) {
    startWithFontSize("2");
    EXPECT_EQ(textSizes(), (std::array<float, 3>{12.5F, 14, 18}));
}

TEST_F(FontsCheck, BigText) {
    startWithFontSize("3");
    EXPECT_EQ(textSizes(), (std::array<float, 3>{14, 14, 18}));
}

TEST_F(FontsCheck, SizesGoWithTheCardsScaleAndAreWhatTheFontSystemGives) {
    writeOptions("Zoom=3\r\n");
    start();
    const float scale = 799.0F / 1198;
    EXPECT_EQ(form.TextFontSize[1], toolkit::fontSizeGiven(scale * 11));
    EXPECT_EQ(form.MarkFontSize[3], toolkit::fontSizeGiven(scale * 30));
}

TEST_F(FontsCheck, ADefectiveTextFontEndsTheProgram) {
    useLowPicture(static_cast<int>(limitFor("Arial") / 15 * 2) - 60);
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "The text font (Arial) needed by ZEV is defective.  The program cannot "
              "run on this computer.");
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[0].title, "");
}

TEST_F(FontsCheck, AFontThatFitsLetsTheProgramRun) {
    const float highest = std::max(limitFor("Arial"), limitFor("Arial Narrow"));
    useLowPicture(static_cast<int>(highest / 15 * 2) + 10);
    start();
    EXPECT_TRUE(boxes.empty());
}

TEST_F(FontsCheck, ADefectiveNarrowFontGivesWayToTheTextFont) {
    // A font whose lines are higher than those of the text font stands for the defective one.
    const char* high = "DejaVu Sans";
    ASSERT_GT(limitFor(high), limitFor("Arial") * 1.01F);
    announceError("Error in Initialize step 1250");
    writeOptions("Zoom=5\r\nNarrowfont=DejaVu Sans\r\n");
    useLowPicture(static_cast<int>((limitFor(high) + limitFor("Arial")) / 15) - 15);
    start();
    EXPECT_TRUE(
        traced("Error in Initialize step 1250: the narrow text font is defective, using the "
               "normal text font instead"));
    EXPECT_EQ(form.NarrowFontName, "Arial");
    EXPECT_TRUE(boxes.empty());
}

/// The card is so low that any font but the text font counts as defective.
TEST_F(FontsCheck, ANarrowFontThatIsMissingKeepsItsNameAndIsMeasuredAsTheTextFont) {
    const char* high = "DejaVu Sans";
    ASSERT_GT(limitFor(high), limitFor("Arial") * 1.01F);
    writeOptions("Zoom=5\r\n");
    useLowPicture(static_cast<int>((limitFor(high) + limitFor("Arial")) / 15) - 15);
    start();
    form.NarrowFontName = "No Such Font At All";
    for (const char* fallback : {"DejaVu Sans", "Nor This One", "Arial Narrow"}) {
        form.FallbackFontName = fallback;
        InitializeRun run;
        checkFonts(form, run);
        EXPECT_EQ(form.NarrowFontName, "No Such Font At All") << fallback;
        EXPECT_EQ(run.step, 1250) << fallback;
    }
    form.NarrowFontName = high;
    announceError("Error in Initialize step 1250");
    InitializeRun run;
    checkFonts(form, run);
    EXPECT_EQ(form.NarrowFontName, "Arial");
}

} // namespace
} // namespace zev::test
