#include "help/help_page.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

#include "form/settings.h"
#include "form/zevlin.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/base/path_text.h"
#include "toolkit/base/program_overrides.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace {

/// A form with its help page made; what it opens is kept.
class HelpPage : public testing::Test {
  protected:
    HelpPage() {
        toolkit::overrideProgram(
            {.launch = [this](std::string what) { launched = std::move(what); }});
        form.ProgramVersion = "2.0.0";
        form.DataFolder = "/home/joe/Documents/ZEV";
        form.Width = 19200;
        form.Height = 15360;
        form.FrameWidth = 2 * 15;
        form.FrameHeight = 50 * 15;
        form.P1.Visible = true;
        zev::HelpCreate(form);
    }
    ~HelpPage() override { toolkit::overrideProgram({}); }

    void show() {
        form.P1.Enabled = false;
        zev::MHelp_Click(form);
    }
    void choose(int line) {
        form.THelp.ListIndex = line;
        zev::THelp_Click(form);
    }
    void press(int character) { zev::THelp_KeyPress(form, character); }

    [[nodiscard]] bool isClosed() const {
        return !form.THelp.Visible && form.P1.Enabled && form.ActiveControl == &form.P1;
    }
    [[nodiscard]] bool wasTraced(std::string_view text) const {
        return std::any_of(form.Trace.begin(), form.Trace.end(),
                           [&](const auto& line) { return line.substr(9) == text; });
    }

    zev::Zevlin form;
    std::string launched;
};

TEST_F(HelpPage, IsHeldByTheListWithTheFolderOfThisRun) {
    EXPECT_NE(std::find(form.THelp.List.begin(), form.THelp.List.end(),
                        "       These files are in this folder: /home/joe/Documents/ZEV"),
              form.THelp.List.end());
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(wasTraced("HelpCreate"));
}

TEST_F(HelpPage, IsTheSameWhenItIsMadeAgain) {
    const auto lines = form.THelp.List;
    zev::HelpCreate(form);
    EXPECT_EQ(form.THelp.List, lines);
}

TEST_F(HelpPage, KnowsItsTwoLinkLines) {
    const auto line = [&](int index) {
        return form.THelp.List.at(static_cast<std::size_t>(index));
    };
    EXPECT_EQ(line(form.MoreInformationLine).substr(0, 17), "MORE INFORMATION:");
    EXPECT_EQ(line(form.WebsiteLine).substr(0, 12), "  * Website ");
}

TEST_F(HelpPage, ShowsItselfInTheMiddleWithTheFocusOnItsSecondLine) {
    show();
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_EQ(form.ActiveControl, &form.THelp);
    EXPECT_EQ(form.THelp.ListIndex, 1);
    EXPECT_FLOAT_EQ(form.THelp.Left, (form.ScaleWidth() - form.THelp.Width) / 2);
    EXPECT_FLOAT_EQ(form.THelp.Top, (form.ScaleHeight() - form.THelp.Height) / 2);
    EXPECT_GT(form.THelp.Stack, form.P1.Stack);
    EXPECT_TRUE(wasTraced("MHelp_Click"));
}

TEST_F(HelpPage, IsAsLargeAsItsText) {
    form.Width = 100000;
    form.Height = 100000;
    form.Testtext.Font = {.Name = "Arial Narrow", .Size = 30, .Bold = true};
    show();
    const toolkit::FontSpec& font = form.THelp.Font;
    float widest = 0;
    for (const auto& line : form.THelp.List)
        widest = std::max(widest, toolkit::textWidth(font, line));
    EXPECT_FLOAT_EQ(form.THelp.Width, widest + 50 * 15);
    EXPECT_FLOAT_EQ(form.THelp.Height,
                    toolkit::textHeight(font) * static_cast<float>(form.THelp.List.size()) +
                        6 * 15);
}

TEST_F(HelpPage, StaysWithinASmallForm) {
    form.Width = 6000;
    form.Height = 4500;
    show();
    EXPECT_FLOAT_EQ(form.THelp.Width, form.ScaleWidth() - 4 * 15);
    EXPECT_FLOAT_EQ(form.THelp.Height, form.ScaleHeight() - 10 * 15);
    EXPECT_FLOAT_EQ(form.THelp.Left, 30);
    EXPECT_FLOAT_EQ(form.THelp.Top, 75);
}

/// The insides of forms on screens of common sizes, in pixels, and the least size of the letters.
struct HelpScreen {
    float width = 0;
    float height = 0;
    float points = 0;
};
class HelpPageOnScreens : public HelpPage, public testing::WithParamInterface<HelpScreen> {};

TEST_P(HelpPageOnScreens, LiesInsideTheFormInReadableLettersAndCutsNoLine) {
    form.Width = GetParam().width * 15 + form.FrameWidth;
    form.Height = GetParam().height * 15 + form.FrameHeight;
    show();
    const auto& page = form.THelp;
    EXPECT_GE(page.Left, 0);
    EXPECT_GE(page.Top, 0);
    EXPECT_LE(page.Left + page.Width, form.ScaleWidth());
    EXPECT_LE(page.Top + page.Height, form.ScaleHeight());
    EXPECT_GE(page.Font.Size, GetParam().points);
    EXPECT_LE(page.Font.Size, 11);
    for (const auto& line : page.List)
        EXPECT_LE(toolkit::textWidth(page.Font, line), page.Width - 49 * 15) << line;
}

INSTANTIATE_TEST_SUITE_P(Sizes, HelpPageOnScreens,
                         testing::Values(HelpScreen{1918, 1010, 11}, HelpScreen{1280, 950, 10},
                                         HelpScreen{1022, 530, 10}, HelpScreen{798, 530, 8.25F}));

TEST_F(HelpPage, IsMeasuredInItsOwnFont) {
    form.Testtext.Font = {.Name = "Arial Narrow", .Size = 30, .Bold = true};
    show();
    EXPECT_EQ(form.Testtext.Font, form.THelp.Font);
}

TEST_F(HelpPage, LettersGrowAgainWithTheForm) {
    form.Width = 6000;
    show();
    EXPECT_FLOAT_EQ(form.THelp.Font.Size, 8.25F);
    form.Width = 40000;
    show();
    EXPECT_FLOAT_EQ(form.THelp.Font.Size, 11);
}

TEST_F(HelpPage, WithoutLinesIsNotShown) {
    form.THelp.List.clear();
    zev::MHelp_Click(form);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(wasTraced("MHelp_Click"));
}

TEST_F(HelpPage, EscapeGivesTheCardBack) {
    show();
    press(toolkit::key::escape);
    EXPECT_TRUE(isClosed());
    EXPECT_GT(form.P1.Stack, form.THelp.Stack);
    EXPECT_TRUE(wasTraced("THelp_KeyPress"));
}

TEST_F(HelpPage, EnterGivesTheCardBack) {
    show();
    press(toolkit::key::enter);
    EXPECT_TRUE(isClosed());
}

TEST_F(HelpPage, OtherKeysLeaveItOpen) {
    show();
    for (const int character : {toolkit::key::space, static_cast<int>('a'), toolkit::key::tab}) {
        press(character);
        EXPECT_TRUE(form.THelp.Visible);
        EXPECT_EQ(form.ActiveControl, &form.THelp);
    }
}

TEST_F(HelpPage, EachLinkLineOpensTheQuestionsPageAndClosesTheHelp) {
    for (const int line : {form.MoreInformationLine, form.WebsiteLine}) {
        launched.clear();
        show();
        choose(line);
        EXPECT_EQ(launched, std::string(zev::webAddress) + "/history#faq");
        EXPECT_TRUE(isClosed());
    }
}

TEST_F(HelpPage, ClicksOnOtherLinesDoNothing) {
    show();
    for (int line = -1; line < static_cast<int>(form.THelp.List.size()); ++line) {
        if (line == form.MoreInformationLine || line == form.WebsiteLine) continue;
        choose(line);
    }
    EXPECT_EQ(launched, "");
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(HelpPage, TheButtonLiesInItsUpperRightCornerBesideAllText) {
    for (const float width : {12000.0F, 19200.0F, 30000.0F}) {
        form.Width = width;
        show();
        EXPECT_TRUE(form.PHelp.Visible && form.BHelp.Visible);
        EXPECT_GT(form.PHelp.Stack, form.THelp.Stack);
        EXPECT_GE(form.BHelp.Width, 24 * 15);
        EXPECT_GE(form.BHelp.Height, 24 * 15);
        EXPECT_GE(form.PHelp.Top, form.THelp.Top);
        // The scroll bar is to the right of it.
        EXPECT_LE(form.PHelp.Left + form.PHelp.Width, form.THelp.Left + form.THelp.Width - 20 * 15);
        for (const auto& line : form.THelp.List)
            EXPECT_LE(form.THelp.Left + 3 * 15 + toolkit::textWidth(form.THelp.Font, line),
                      form.PHelp.Left)
                << line;
    }
}

TEST_F(HelpPage, TheButtonGivesTheCardBackAndGoesWithThePage) {
    show();
    zev::BHelp_Click(form);
    EXPECT_TRUE(isClosed());
    EXPECT_FALSE(form.PHelp.Visible || form.BHelp.Visible);
    EXPECT_GT(form.P1.Stack, form.THelp.Stack);
    show();
    press(toolkit::key::escape);
    EXPECT_FALSE(form.PHelp.Visible || form.BHelp.Visible);
}

TEST_F(HelpPage, CanBeShownAgain) {
    show();
    press(toolkit::key::escape);
    show();
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_GT(form.THelp.Stack, form.P1.Stack);
}

/// The page in the real window.
class HelpWindow : public zev::test::FormTest {
  protected:
    void open() {
        start();
        toolkit::test::typeKey(toolkit::key::f1);
        ASSERT_TRUE(form.THelp.Visible);
    }
    void clickRow(int row) {
        const auto point = toolkit::test::pointOnRow(form.THelp, row);
        toolkit::test::click(point.x, point.y);
    }
    void goTo(int line) {
        form.THelp.ListIndex = line;
        window->update();
    }
};

TEST_F(HelpWindow, EnterAndEscapeGiveTheCardTheKeysAgain) {
    open();
    toolkit::test::typeKey(toolkit::key::enter, 0, "\r");
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_EQ(form.ActiveControl, &form.P1);
    toolkit::test::typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1b");
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_EQ(form.ActiveControl, &form.P1);
}

TEST_F(HelpWindow, ItsButtonClosesIt) {
    open();
    EXPECT_TRUE(toolkit::test::isShown(form.BHelp));
    const auto point = toolkit::test::pointOn(form.BHelp);
    toolkit::test::click(point.x, point.y);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_FALSE(toolkit::test::isShown(form.BHelp));
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
}

TEST_F(HelpWindow, ItsButtonClosesItAtTheFirstStart) {
    makeFirstRun();
    answer(toolkit::Answer::Ok);
    start();
    ASSERT_TRUE(form.THelp.Visible);
    ASSERT_FALSE(form.P1.Enabled);
    const auto point = toolkit::test::pointOn(form.BHelp);
    toolkit::test::click(point.x, point.y);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.P1.Enabled);
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.P1));
}

TEST_F(HelpWindow, ThePageKeepsTheKeysWhenAPressOnItsButtonIsTakenBack) {
    open();
    const auto point = toolkit::test::pointOn(form.BHelp);
    toolkit::test::pressMouse(point.x, point.y);
    toolkit::test::releaseMouse(point.x - 3000, point.y + 3000);
    ASSERT_TRUE(form.THelp.Visible);
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.THelp));
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1b");
    EXPECT_FALSE(form.THelp.Visible);
}

TEST_F(HelpWindow, StaysInTheMiddleAsLargeAsTheWindowAllows) {
    open();
    goTo(40);
    toolkit::test::resizeWindow(-200, -300);
    EXPECT_FLOAT_EQ(form.THelp.Left, (form.ScaleWidth() - form.THelp.Width) / 2);
    EXPECT_FLOAT_EQ(form.THelp.Top, (form.ScaleHeight() - form.THelp.Height) / 2);
    EXPECT_LE(form.THelp.Top + form.THelp.Height, form.ScaleHeight());
    EXPECT_GE(form.THelp.Top, 0);
    EXPECT_EQ(form.THelp.ListIndex, 40);
    EXPECT_TRUE(toolkit::test::hasPlatformFocus(form.THelp));
}

TEST_F(HelpWindow, LinesThatAreTooLongForTheWindowCanBeMovedIntoSight) {
    open();
    toolkit::test::resizeWindow(-static_cast<int>(form.Width / 15) + 300, 0);
    const toolkit::Bitmap before = toolkit::test::grabWindow();
    for (int i = 0; i < 5; ++i) toolkit::test::typeKey(toolkit::key::right);
    const toolkit::Bitmap after = toolkit::test::grabWindow();
    int changed = 0;
    for (int y = 0; y < before.height(); ++y)
        changed += std::equal(before.row(y), before.row(y) + before.width(), after.row(y)) ? 0 : 1;
    EXPECT_GT(changed, 50);
    EXPECT_EQ(form.THelp.ListIndex, 1);
}

TEST_F(HelpWindow, NamesTheFolderOfThisRun) {
    open();
    const std::string line =
        "       These files are in this folder: " + toolkit::displayText(dataFolder);
    EXPECT_NE(std::ranges::find(form.THelp.List, line), form.THelp.List.end()) << line;
}

TEST_F(HelpWindow, TheLastLinesAndTheLinkCanBeReached) {
    open();
    const auto& page = form.THelp;
    toolkit::test::typeKey(toolkit::key::end);
    EXPECT_EQ(page.ListIndex, static_cast<int>(page.List.size()) - 1);
    const float rowHeight = std::floor(toolkit::textHeight(page.Font) / 15) * 15;
    const auto rows = static_cast<int>((page.Height - 30) / rowHeight);
    EXPECT_EQ(page.TopIndex + rows, static_cast<int>(page.List.size()));
    clickRow(form.WebsiteLine);
    EXPECT_EQ(launched, std::vector<std::string>{std::string(zev::webAddress) + "/history#faq"});
}

TEST_F(HelpWindow, AClickOnEachLinkOpensTheWebPageAndOnNoOtherLine) {
    open();
    for (int line = 0; line < static_cast<int>(form.THelp.List.size()); ++line) {
        if (line == form.MoreInformationLine || line == form.WebsiteLine) continue;
        goTo(line);
        clickRow(line);
    }
    EXPECT_TRUE(launched.empty());
    for (const int line : {form.MoreInformationLine, form.WebsiteLine}) {
        if (!form.THelp.Visible) toolkit::test::typeKey(toolkit::key::f1);
        launched.clear();
        goTo(line);
        clickRow(line);
        EXPECT_EQ(launched.size(), 1U);
        EXPECT_FALSE(form.THelp.Visible);
        EXPECT_TRUE(form.P1.Enabled);
        EXPECT_EQ(form.ActiveControl, &form.P1);
    }
}

TEST_F(HelpWindow, NoKeyOpensTheBrowser) {
    open();
    const auto lines = static_cast<int>(form.THelp.List.size());
    for (int line = 1; line < lines; ++line) toolkit::test::typeKey(toolkit::key::down);
    EXPECT_EQ(form.THelp.ListIndex, lines - 1);
    for (const int key : {toolkit::key::pageUp, toolkit::key::home, toolkit::key::end})
        toolkit::test::typeKey(key);
    goTo(0);
    toolkit::test::typeText("more");
    EXPECT_EQ(form.THelp.ListIndex, form.MoreInformationLine);
    toolkit::test::typeKey(toolkit::key::space);
    EXPECT_TRUE(launched.empty());
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(HelpWindow, OpenedAgainItShowsItsTop) {
    open();
    toolkit::test::typeKey(toolkit::key::end);
    ASSERT_GT(form.THelp.TopIndex, 0);
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1B");
    toolkit::test::typeKey(toolkit::key::f1);
    toolkit::test::settle();
    EXPECT_EQ(form.THelp.TopIndex, 0);
    clickRow(0);
    EXPECT_EQ(form.THelp.ListIndex, 0);
}

TEST_F(HelpWindow, TheWheelsWayIsForgottenToo) {
    open();
    for (int notch = 0; notch < 100; ++notch) toolkit::test::turnWheelOver(form.THelp, -120);
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1B");
    ASSERT_GT(form.THelp.TopIndex, 0);
    toolkit::test::typeKey(toolkit::key::f1);
    toolkit::test::settle();
    clickRow(0);
    EXPECT_EQ(form.THelp.TopIndex, 0);
}

} // namespace
