#include "help/help_page.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "form/settings.h"
#include "form/zevlin.h"
#include "toolkit/base/key.h"
#include "toolkit/base/program_overrides.h"

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
    EXPECT_FLOAT_EQ(form.THelp.Left, (form.Width - form.THelp.Width) / 2);
    EXPECT_FLOAT_EQ(form.THelp.Top, (form.Height - form.THelp.Height) / 2);
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
    EXPECT_FLOAT_EQ(form.THelp.Width, 6000 - 4 * 15);
    EXPECT_FLOAT_EQ(form.THelp.Height, 4500 - 10 * 15);
    EXPECT_FLOAT_EQ(form.THelp.Left, 30);
    EXPECT_FLOAT_EQ(form.THelp.Top, 75);
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

TEST_F(HelpPage, CanBeShownAgain) {
    show();
    press(toolkit::key::escape);
    show();
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_GT(form.THelp.Stack, form.P1.Stack);
}

} // namespace
