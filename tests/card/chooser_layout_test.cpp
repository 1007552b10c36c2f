// Where everything stands on the chooser's panel.
#include "card/chooser_layout.h"

#include <cmath>
#include <vector>

#include "chooser_form_test.h"

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

TEST_F(ChooserLayout, ALongFolderIsSetSmallerBeforeItIsCut) {
    start();
    layOut(5);
    const float usual = form.LPath.Font.Size;
    form.LPath.Caption = "Folder:  /" + std::string(120, 'n');
    layOutChooser(form);
    EXPECT_LT(form.LPath.Font.Size, usual);
    EXPECT_LE(form.P3.Width, form.ScaleWidth());
}

} // namespace
} // namespace zev::test
