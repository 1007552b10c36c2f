// What a zoom leaves as it was: the window that fills the screen, the card and its files.
#include <algorithm>
#include <functional>

#include "card/write_card.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/fit.h"
#include "view/text_options.h"
#include "view/zoom.h"
#include "view/zoom_fixture.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;
namespace key = toolkit::key;
namespace shift = toolkit::shift;
using toolkit::test::typeKey;

/// In a window that fills the screen.
class FullWindow : public Zoom {
  protected:
    using Extent = toolkit::test::Extent;

    /// Place and size of the form in twips.
    [[nodiscard]] std::array<float, 4> place() const {
        return {form.Left, form.Top, form.Width, form.Height};
    }
    /// The command changes the card's size and moves it to the corner, but not the window.
    void expectStays(const std::function<void()>& command) {
        for (const Extent extent : {Extent::Maximised, Extent::FullScreen}) {
            toolkit::test::changeExtent(extent);
            window->update();
            const auto before = place();
            form.P1.Move(-150, -300);
            command();
            toolkit::test::settle();
            window->update();
            EXPECT_EQ(toolkit::test::windowExtent(), extent);
            EXPECT_EQ(place(), before);
            EXPECT_EQ(form.P1.Left, 0);
            EXPECT_EQ(form.P1.Top, 0);
            EXPECT_EQ(static_cast<float>(toolkit::test::grabCard().width()) * pixel, form.P1.Width);
        }
    }
};

TEST_F(FullWindow, StaysAtAZoom) {
    startAtStep(5);
    expectStays(zoomIn);
    EXPECT_EQ(form.ZoomLevel, 7);
    expectStays(zoomOut);
    EXPECT_EQ(form.ZoomLevel, 5);
}

TEST_F(FullWindow, StaysAtAFit) {
    startAtStep(5);
    expectStays([] { typeKey(key::digit0, shift::ctrl); });
    expectStays([] { toolkit::test::chooseMenu("View>Fit to screen height"); });
}

TEST_F(FullWindow, StaysAtAChangeOfTheTextsSize) {
    startAtStep(5);
    expectStays([this] { mBigTextFont_Click(form); });
}

TEST_F(FullWindow, GetsTheCardsSizeAtAZoomOnceItIsANormalOneAgain) {
    startAtStep(5);
    toolkit::test::changeExtent(Extent::Maximised);
    zoomIn();
    toolkit::test::changeExtent(Extent::Normal);
    zoomOut();
    EXPECT_EQ(form.Width, form.P1.Width + form.FrameWidth);
    EXPECT_EQ(form.Height, std::min(form.P1.Height + form.FrameHeight, toolkit::screen().Height));
}

TEST_F(Zoom, ThePlayersNamelessCardKeepsItsEmptyNamesLine) {
    startAtStep(5);
    const int names = form.FirstBigText;
    ASSERT_GT(names, 0);
    zoomIn();
    EXPECT_EQ(form.AText[names].Caption, "");
    EXPECT_EQ(form.AText[names].Tag, "");
    EXPECT_EQ(form.CardName, "");
}

TEST_F(Zoom, AnEmptyNamesLineStaysEmpty) {
    startAtStep(5);
    form.MyName = "Pat";
    ASSERT_EQ(form.AText[form.NamesField].Caption, "");
    zoomIn();
    EXPECT_EQ(form.AText[form.NamesField].Caption, "");
    EXPECT_EQ(form.AText[form.NamesField].Tag, "");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(Zoom, UnsavedChangesNameAndFlagComeThroughAndNoFileIsLeft) {
    writeCard("Jones", "'Program version: 2.0.0\r\n\"\",\"\"\r\n1\r\n1,0,0\r\n1\r\n1,\"\",0\r\n");
    writeOptions("Zoom=5\r\n");
    start("Jones");
    const std::string saved = dataFileContent("Jones.zev");
    clickMark(1);
    zoomOut();
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.CardName, "Jones");
    EXPECT_EQ(form.Caption, "Zevlin  ( Jones ) *");
    EXPECT_EQ(dataFileContent("Jones.zev"), saved);
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
}

TEST_F(Zoom, ATemporaryCardOfACrashGivesNothingToTheCard) {
    start();
    clickMark(1);
    clickText(1);
    toolkit::test::typeText("ours");
    typeKey(key::escape);
    writeCard("$$Tempcard", "'Program version: 2.0.0\r\n\"Stale\",\"1\"\r\n4\r\n1,0,0\r\n2,1,0\r\n"
                            "3,1,0\r\n4,1,0\r\n2\r\n1,\"stale\",0\r\n2,\"stale\",0\r\n");
    zoomIn();
    expectStep(6);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[1].Tag, "ours");
    EXPECT_EQ(form.AText[2].Tag, "");
    EXPECT_EQ(form.PartnerName, "");
    EXPECT_EQ(form.CardName, "");
    EXPECT_TRUE(form.CardModified);
    EXPECT_FALSE(fs::exists(dataFile("$$Tempcard.zev")));
}

TEST_F(Zoom, TheStampKeepsItsText) {
    startAtStep(5);
    form.Timestamp.Caption = "as it was";
    zoomIn();
    EXPECT_EQ(form.Timestamp.Caption, "as it was");
}

TEST_F(Zoom, ItsStepsAreTraced) {
    startAtStep(5);
    form.Trace.clear();
    MZoomIn_Click(form);
    const auto lines = traceLines();
    EXPECT_EQ(lines.at(0), "MZoomIn_Click");
    EXPECT_EQ(lines.at(1), "PositionSave");
    EXPECT_TRUE(traced("PositionRestore"));
    form.Trace.clear();
    MZoomOut_Click(form);
    EXPECT_EQ(traceLines().at(0), "MZoomOut_Click");
}

TEST_F(Zoom, AFailureIsTracedAndShownToNobody) {
    startAtStep(5);
    form.ZoomLevels = 12; // beyond the table
    form.ZoomTable[0] = 0.1F;
    announceError("Error in MZoomIn_Click: #");
    MZoomIn_Click(form);
    EXPECT_NE(traceFile().find("Error in MZoomIn_Click: #"), std::string::npos);
    form.ZoomTable[0] = 3;
    announceError("Error in MZoomOut_Click: #");
    MZoomOut_Click(form);
    EXPECT_NE(traceFile().find("Error in MZoomOut_Click: #"), std::string::npos);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(Zoom, AnOptionsFileWithAStepOutsideTheLadderStartsAtTheFourth) {
    for (const int step : {0, 12}) {
        writeOptions("Zoom=" + std::to_string(step) + "\r\n");
        start();
        EXPECT_EQ(form.ZoomLevel, 4) << step;
        EXPECT_EQ(form.LastImageScale, 0.425F) << step;
        window.reset();
    }
}

TEST_F(Zoom, OnAScreenSmallerThanTheSmallestCardTheWindowTakesTheScreen) {
    toolkit::overrideScreen({.width = 300 * pixel, .height = 200 * pixel, .hasTaskBar = true});
    startAtStep(2);
    zoomOut();
    EXPECT_EQ(form.P1.Width, 479 * pixel);
    EXPECT_EQ(form.Width, 300 * pixel);
    EXPECT_EQ(form.Height, 200 * pixel);
    // The rest of the card is still within reach.
    typeKey(key::pageDown);
    EXPECT_EQ(form.P1.Left, form.ScaleWidth() - form.P1.Width);
    zoomIn();
    expectStep(2);
}

TEST_F(Zoom, OnAVeryLargeScreenEveryStepIsShownAndBothFitsAreRefused) {
    toolkit::overrideScreen({.width = 7680 * pixel, .height = 4320 * pixel, .hasTaskBar = true});
    startAtStep(10);
    zoomIn();
    EXPECT_EQ(form.P1.Width, 2396 * pixel);
    EXPECT_EQ(form.P1.Height, (2473 + 15) * pixel);
    EXPECT_EQ(form.Width, form.P1.Width + form.FrameWidth);
    typeKey(key::digit0, shift::ctrl);
    EXPECT_GT(form.ZoomTable[0], 3);
    EXPECT_EQ(form.P1.Width, 1198 * pixel);
    ASSERT_TRUE(toolkit::test::chooseMenu("View>Fit to screen height"));
    EXPECT_GT(form.ZoomTable[0], 1);
    EXPECT_EQ(form.P1.Width, 1198 * pixel);
}

} // namespace
} // namespace zev::test
