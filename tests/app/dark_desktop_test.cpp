// What is read on a desktop of dark colours.
#include <algorithm>
#include <cmath>

#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using toolkit::test::grabControl;
using toolkit::test::grabLabel;

/// How bright a colour looks, 0 to 1.
double luminance(toolkit::Color color) {
    const auto linear = [](int component) {
        const double share = component / 255.0;
        return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(toolkit::redOf(color)) + 0.7152 * linear(toolkit::greenOf(color)) +
           0.0722 * linear(toolkit::blueOf(color));
}

/// Of the brightest pixel inside the frame to the darkest, 1 to 21; letters can be read from 4.5
/// on.
double contrastIn(const toolkit::Bitmap& shown) {
    constexpr int frame = 4;
    double brightest = 0;
    double darkest = 1;
    for (int y = frame; y < shown.height() - frame; ++y)
        for (int x = frame; x < shown.width() - frame; ++x) {
            const double found = luminance(shown.pixel(x, y).value_or(toolkit::white));
            brightest = std::max(brightest, found);
            darkest = std::min(darkest, found);
        }
    return (brightest + 0.05) / (darkest + 0.05);
}

/// The colour of most pixels.
toolkit::Color groundOf(const toolkit::Bitmap& shown) {
    std::vector<std::uint32_t> pixels(shown.row(0), shown.row(0) + shown.width() * shown.height());
    const auto middle = pixels.begin() + static_cast<std::ptrdiff_t>(pixels.size() / 2);
    std::ranges::nth_element(pixels, middle);
    return toolkit::colorOf(*middle);
}

class DarkDesktop : public FormTest {
  protected:
    DarkDesktop() { toolkit::test::useDesktop(toolkit::test::Desktop::Dark); }
    ~DarkDesktop() override { toolkit::test::useDesktop(toolkit::test::Desktop::Light); }

    static constexpr double readable = 4.5;
    static constexpr auto paleYellow = toolkit::rgb(255, 255, 225);
};

TEST_F(DarkDesktop, TheMenuBarCanBeRead) {
    start();
    const toolkit::Bitmap shown = toolkit::test::grabWindow();
    toolkit::Bitmap bar(200, static_cast<int>(form.FrameHeight / pixel));
    ASSERT_GT(bar.height(), 15);
    for (int y = 0; y < bar.height(); ++y) std::copy_n(shown.row(y), bar.width(), bar.row(y));
    EXPECT_LT(luminance(groundOf(bar)), 0.1);
    EXPECT_GE(contrastIn(bar), readable);
}

TEST_F(DarkDesktop, TheChooserCanBeRead) {
    writeCard("Some card", "'Program version: 2.0.0\r\n\"\",\"\"\r\n0\r\n0\r\n");
    answerChooser([this] {
        form.TSaveAs.Text = "Another card";
        for (const toolkit::Control* control :
             std::initializer_list<const toolkit::Control*>{&form.TSaveAs, &form.FileList})
            EXPECT_EQ(groundOf(grabControl(*control)), paleYellow);
        for (const toolkit::Control* control : std::initializer_list<const toolkit::Control*>{
                 &form.TSaveAs, &form.FileList, &form.BCancel})
            EXPECT_GE(contrastIn(grabControl(*control)), readable);
        EXPECT_GE(contrastIn(grabLabel(form.P3, form.LSaveAs)), readable);
        EXPECT_GE(contrastIn(grabLabel(form.P3, form.LPath)), readable);
        toolkit::test::typeKey(toolkit::key::escape);
    });
    start();
}

TEST_F(DarkDesktop, TheHelpCanBeRead) {
    start();
    toolkit::test::typeKey(toolkit::key::f1);
    EXPECT_EQ(groundOf(grabControl(form.THelp)), toolkit::white);
    EXPECT_GE(contrastIn(grabControl(form.THelp)), readable);
    EXPECT_GE(contrastIn(grabControl(form.BHelp)), readable);
}

TEST_F(DarkDesktop, TheColourPanelCanBeRead) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    EXPECT_EQ(groundOf(grabLabel(form.ColorPic, form.Lpresetcolors)), paleYellow);
    EXPECT_GE(contrastIn(grabLabel(form.ColorPic, form.Lpresetcolors)), readable);
    EXPECT_GE(contrastIn(grabLabel(form.ColorPic, form.ColorText)), readable);
    for (const toolkit::CommandButton& button : form.ColorBut)
        EXPECT_GE(contrastIn(grabControl(button)), readable);
    // The knob can be seen.
    for (const toolkit::ScrollBar& bar : form.ColorScroll)
        EXPECT_GE(contrastIn(grabControl(bar)), 3);
}

TEST_F(DarkDesktop, AnOpenTextIsAsOnPaper) {
    start();
    clickText(1);
    toolkit::test::typeText("MMM");
    EXPECT_EQ(groundOf(grabControl(form.CText)), toolkit::white);
    EXPECT_GE(contrastIn(grabControl(form.CText)), readable);
}

} // namespace
} // namespace zev::test
