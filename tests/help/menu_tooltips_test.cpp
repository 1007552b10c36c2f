#include "help/menu_tooltips.h"

#include <cmath>

#include "output/print_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_menus.h"
#include "toolkit/text/font.h"

namespace zev::test {
namespace {

/// The started program, whose menus are opened and walked.
class MenuTooltips : public PrintTest {
  protected:
    void SetUp() override { start(); }

    [[nodiscard]] bool explains(std::string_view beginning) const {
        return form.PopHelp.Visible && form.PopHelp.Text.starts_with(beginning);
    }
    [[nodiscard]] bool isSilent() const {
        return !form.PopHelp.Visible && form.PopHelp.Text.empty();
    }

    void expectBesideTheMenus() const {
        const auto menus = toolkit::test::openMenus();
        const auto& text = form.PopHelp;
        EXPECT_TRUE(text.Left >= menus.Left + menus.Width || text.Left + text.Width <= menus.Left ||
                    text.Top >= menus.Top + menus.Height);
        EXPECT_GE(text.Left, 0);
        EXPECT_GE(text.Top, 0);
        EXPECT_LE(text.Left + text.Width, form.ScaleWidth());
        EXPECT_LE(text.Top + text.Height, form.ScaleHeight());
    }
    /// Whether the window shows anything in the text's pale yellow.
    static bool showsYellow() {
        const auto shown = toolkit::test::grabWindow();
        for (int y = 0; y < shown.height(); ++y)
            for (int x = 0; x < shown.width(); ++x)
                if (shown.pixel(x, y) == toolkit::rgb(255, 255, 225)) return true;
        return false;
    }
};

/// Items with a text, each in its menu.
struct Explained {
    const char* menu = nullptr;
    const char* row = nullptr;
    const char* beginning = nullptr;
};
constexpr Explained explained[] = {
    {"File", "Export Image to file as...", "Creates an Image file"},
    {"File", "Copy to Clipboard", "Places an Image of"},
    {"Options", "Partner's Name", "You can enter the name"},
    {"Options", "Boldface", "Use boldface in all"},
    {"Options", "Left-Justify all text", "Left-justify all text areas."},
    {"Options", "Fill-in Checkmarks", "Use solid squares"},
    {"Options", "Color Management", "Normally, the 'pen' color"},
    {"Options", "Use alternate print method", "If regular printing"},
    {"Options", "Show the Design Menu         Shift Ctrl  D", "Normally never needed"},
};

TEST_F(MenuTooltips, EachDescribedItemIsExplainedBesideTheMenuWhenThePointerRestsOnIt) {
    for (const auto& item : explained) {
        toolkit::test::openMenu(item.menu);
        toolkit::test::pointAtRow(item.row);
        EXPECT_TRUE(explains(item.beginning)) << item.row;
        expectBesideTheMenus();
        EXPECT_TRUE(showsYellow());
        toolkit::test::clickBesideMenus();
        EXPECT_TRUE(isSilent());
    }
}

TEST_F(MenuTooltips, EachDescribedItemIsExplainedToThoseWhoUseTheKeys) {
    for (const char* menu : {"File", "Options"}) {
        toolkit::test::openMenu(menu);
        std::vector<std::string> seen;
        for (int step = 0; step < 14; ++step) {
            toolkit::test::typeInMenu(toolkit::key::down);
            if (form.PopHelp.Visible) seen.push_back(form.PopHelp.Text);
        }
        for (const auto& item : explained) {
            if (std::string_view(item.menu) != menu) continue;
            EXPECT_TRUE(std::ranges::any_of(seen, [&](const auto& text) {
                return text.starts_with(item.beginning);
            })) << item.row;
        }
        toolkit::test::typeInMenu(toolkit::key::escape);
        EXPECT_TRUE(isSilent());
    }
}

TEST_F(MenuTooltips, AnExportIsExplainedUntilThePlayerIsAmongItsFormats) {
    toolkit::test::openMenu("File");
    toolkit::test::pointAtRow("Export Image to file as...");
    toolkit::test::typeInMenu(toolkit::key::right);
    for (const char* format : {"GIF", "PNG"}) {
        toolkit::test::pointAtRow(format);
        EXPECT_TRUE(isSilent()) << format;
    }
    toolkit::test::pointAtRow("Export Image to file as...");
    EXPECT_TRUE(explains("Creates an Image file"));
    // The formats may still be open.
    expectBesideTheMenus();
}

TEST_F(MenuTooltips, OtherItemsAreNotExplained) {
    toolkit::test::openMenu("Options");
    for (const char* row : {"My Name", "Font size"}) {
        toolkit::test::pointAtRow("Boldface");
        EXPECT_TRUE(explains("Use boldface"));
        toolkit::test::pointAtRow(row);
        EXPECT_TRUE(isSilent()) << row;
    }
    toolkit::test::pointAtRow("Boldface");
    toolkit::test::pointAtSeparator();
    EXPECT_TRUE(isSilent());
    toolkit::test::clickBesideMenus();
    toolkit::test::openMenu("File");
    toolkit::test::pointAtRow("Export Partner Image to file as..");
    EXPECT_TRUE(isSilent());
}

TEST_F(MenuTooltips, AGreyedItemIsExplainedToo) {
    form.mPrintToClipboard.Enabled = false;
    toolkit::test::openMenu("File");
    toolkit::test::pointAtRow("Copy to Clipboard");
    EXPECT_TRUE(explains("Places an Image of"));
}

TEST_F(MenuTooltips, TheTextIsGoneBeforeAChosenCommandRuns) {
    toolkit::test::openMenu("Options");
    toolkit::test::pointAtRow("Partner's Name");
    ASSERT_TRUE(form.PopHelp.Visible);
    answerInput("");
    form.Trace.clear();
    bool wasGone = false;
    whileAsking = [&] { wasGone = isSilent() && !showsYellow(); };
    toolkit::test::clickRow("Partner's Name");
    EXPECT_TRUE(traced("MPartnerID_Click"));
    EXPECT_TRUE(wasGone);
}

TEST_F(MenuTooltips, TheTextStandsInABoxAsHighAsItself) {
    toolkit::test::openMenu("Options");
    toolkit::test::pointAtRow("Partner's Name");
    const auto& box = form.PopHelp;
    EXPECT_EQ(box.Font.Name, "Arial");
    EXPECT_EQ(box.BackColor, toolkit::rgb(255, 255, 225));
    EXPECT_FLOAT_EQ(box.Width, form.ScaleWidth() / 4);
    const float row = toolkit::textHeight(box.Font);
    const auto lines = (box.Height - 10 * pixel) / row;
    EXPECT_GT(lines, 1.5F);
    EXPECT_NEAR(lines, std::round(lines), 0.01);
    EXPECT_GE(std::round(lines) * (box.Width - 10 * pixel), toolkit::textWidth(box.Font, box.Text));
}

TEST_F(MenuTooltips, InAFormTooSmallForTheTextThereIsNone) {
    const auto tooMuch = [](float twips, int wanted) {
        return static_cast<int>(twips / pixel) - wanted;
    };
    toolkit::test::resizeWindow(-tooMuch(form.ScaleWidth(), 300), -tooMuch(form.ScaleHeight(), 60));
    toolkit::test::openMenu("Options");
    toolkit::test::pointAtRow("Boldface");
    EXPECT_FALSE(form.PopHelp.Visible);
    EXPECT_FALSE(form.PopHelp.Text.empty());
    toolkit::test::clickBesideMenus();
    toolkit::test::resizeWindow(300, 60);
    toolkit::test::openMenu("Options");
    toolkit::test::pointAtRow("Boldface");
    EXPECT_TRUE(form.PopHelp.Visible);
    expectBesideTheMenus();
}

TEST_F(MenuTooltips, ScreenReadersGetTheTextWithTheItem) {
    toolkit::test::openMenu("Options");
    EXPECT_EQ(toolkit::test::readRow("Boldface").description, Description(form, "Boldface"));
    EXPECT_NE(Description(form, "Boldface"), "");
    EXPECT_EQ(toolkit::test::readRow("My Name").description, "");
}

TEST_F(MenuTooltips, TheListHoldsTheSeparatorFirst) {
    ASSERT_EQ(form.Lmenus.List.size(), 11U);
    EXPECT_EQ(form.Lmenus.List.front(), "~");
    InitMenuDescriptions(form);
    EXPECT_EQ(form.Lmenus.List.size(), 11U);
    form.Lmenus.List.clear();
    EXPECT_EQ(Description(form, "Boldface"), "");
    toolkit::test::openMenu("Options");
    toolkit::test::pointAtRow("Boldface");
    EXPECT_TRUE(isSilent());
}

} // namespace
} // namespace zev::test
