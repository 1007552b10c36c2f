// Where everything stands on the chooser's panel.
#include "card/chooser_layout.h"

#include <cmath>
#include <vector>

#include "chooser_form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class ChooserLayout : public ChooserTest {
  protected:
    void layOut(int cards) {
        form.FileList.List.assign(static_cast<std::size_t>(cards), "Card");
        form.FileList.Visible = cards > 0;
        form.LSaveAs.Caption = "Select from list or enter a name for a new card";
        form.LPath.Caption = "Folder:  /home/joe/Documents/ZEV";
        layOutChooser(form);
    }
    [[nodiscard]] static float bottomOf(const toolkit::Control& control) {
        return control.Top + control.Height;
    }
    [[nodiscard]] static float bottomOf(const toolkit::Label& label) {
        return label.Top + label.Height;
    }
};

TEST_F(ChooserLayout, NothingOverlapsAndAllLiesOnThePanel) {
    start();
    layOut(5);
    EXPECT_LE(bottomOf(form.LSaveAs), form.TSaveAs.Top);
    EXPECT_LE(bottomOf(form.TSaveAs), form.FileList.Top);
    EXPECT_LE(bottomOf(form.FileList), form.LPath.Top);
    EXPECT_LE(bottomOf(form.LPath), form.BOK.Top);
    EXPECT_LT(bottomOf(form.BCancel), form.P3.Height);
    EXPECT_LT(form.BCancel.Left + form.BCancel.Width, form.P3.Width);
    EXPECT_EQ(form.TSaveAs.Width, form.FileList.Width);
}

TEST_F(ChooserLayout, WithoutAListThePanelIsLower) {
    start();
    layOut(5);
    const float withList = form.P3.Height;
    layOut(0);
    EXPECT_LT(form.P3.Height, withList - 5 * toolkit::textHeight(form.TSaveAs.Font));
}

TEST_F(ChooserLayout, AListOfManyCardsStaysInTheForm) {
    start();
    layOut(12);
    const float twelve = form.FileList.Height;
    layOut(5000);
    EXPECT_GT(form.FileList.Height, twelve);
    EXPECT_LE(form.P3.Top + form.P3.Height, form.ScaleHeight());
}

TEST_F(ChooserLayout, ALongFolderLosesItsMiddleAndKeepsItsSize) {
    start();
    layOut(5);
    const float usual = form.LPath.Font.Size;
    form.LPath.Caption = "Folder:  /" + std::string(120, 'n');
    layOutChooser(form);
    EXPECT_EQ(form.LPath.Font.Size, usual);
    EXPECT_TRUE(form.LPath.Shortens);
    EXPECT_LE(form.LPath.Left + form.LPath.Width, form.P3.Width);
    EXPECT_LE(form.P3.Width, form.ScaleWidth());
}

TEST_F(ChooserLayout, IsWholeInASmallWindow) {
    start();
    toolkit::test::resizeWindow(300 - static_cast<int>(form.Width / pixel),
                                200 - static_cast<int>(form.Height / pixel));
    for (const int cards : {0, 2, 50}) {
        layOut(cards);
        EXPECT_GE(form.P3.Left, 0) << cards;
        EXPECT_GE(form.P3.Top, 0) << cards;
        EXPECT_LE(bottomOf(form.P3), form.ScaleHeight()) << cards;
        EXPECT_LE(bottomOf(form.BOK), form.P3.Height) << cards;
        EXPECT_GE(form.BOK.Left, form.TSaveAs.Left) << cards;
        EXPECT_LE(form.BCancel.Left + form.BCancel.Width, form.P3.Width) << cards;
        EXPECT_GE(form.FileList.Height, toolkit::textHeight(form.FileList.Font)) << cards;
        EXPECT_GE(form.TSaveAs.Font.Size, 9) << cards;
    }
}

TEST_F(ChooserLayout, StaysWholeInTheMiddleOfAWindowThatChanges) {
    start();
    answerChooser([this] {
        for (const int wider : {-300, 400}) {
            toolkit::test::resizeWindow(wider, wider / 2);
            EXPECT_EQ(form.P3.Left, (form.ScaleWidth() - form.P3.Width) / 2) << wider;
            EXPECT_EQ(form.P3.Top, (form.ScaleHeight() - form.P3.Height) / 2) << wider;
            EXPECT_GE(form.P3.Top, 0) << wider;
        }
        toolkit::test::typeKey(toolkit::key::escape, 0, "\x1b");
    });
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Open..."));
}

} // namespace
} // namespace zev::test
