#include "form/time_stamp.h"

#include "app/layouts.h"
#include "form/settings.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/clock.h"
#include "toolkit/window/screen.h"

namespace zev::test {
namespace {

class TimeStamp : public FormTest {
  protected:
    TimeStamp() { toolkit::overrideClock(1000000000); }
    void startWith(const std::string& layout) {
        writeLayout(layout);
        start();
    }
    static std::string now() { return toolkit::dateText() + "  " + toolkit::timeText() + "    "; }
    static std::string smallMarks() { return smallLayout({{}}, {}); }
};

TEST_F(TimeStamp, ACardWithoutANameHasDateAndTimeAlone) {
    startWith(smallMarks());
    EXPECT_EQ(form.Timestamp.Caption, now());
}

TEST_F(TimeStamp, ANamedCardShowsItsNameFirst) {
    startWith(smallMarks());
    form.CardName = "Jones";
    MakeTimeStamp(form);
    EXPECT_EQ(form.Timestamp.Caption, "[ Jones ]  " + now());
    EXPECT_TRUE(traced("MakeTimeStamp"));
    EXPECT_TRUE(traced("PositionTimeStamp"));
}

TEST_F(TimeStamp, AnAmpersandInTheNameShowsAsOne) {
    startWith(smallMarks());
    form.CardName = "A&B & C";
    MakeTimeStamp(form);
    EXPECT_EQ(form.Timestamp.Caption, "[ A&&B && C ]  " + now());
    EXPECT_EQ(toolkit::paintedText(form.Timestamp.Caption), "[ A&B & C ]  " + now());
}

TEST_F(TimeStamp, TwoAmpersandsInTheNameShowAsTwo) {
    startWith(smallMarks());
    form.CardName = "A&&B";
    MakeTimeStamp(form);
    const auto& stamp = form.Timestamp;
    EXPECT_EQ(stamp.Caption, "[ A&&&&B ]  " + now());
    EXPECT_EQ(toolkit::paintedText(stamp.Caption), "[ A&&B ]  " + now());
    EXPECT_EQ(stamp.Width, toolkit::textWidth(stamp.Font, stamp.Caption));
}

TEST_F(TimeStamp, ItAndTheCreditArePlainTextThroughWhichTheCardShows) {
    startWith(smallMarks());
    for (const toolkit::Label* label : {&form.Timestamp, &form.CreditLabel}) {
        EXPECT_EQ(label->Font.Name, "Arial");
        EXPECT_FALSE(label->Font.Bold);
        EXPECT_EQ(label->Alignment, toolkit::Alignment::Left);
        EXPECT_EQ(label->BackStyle, toolkit::BackStyle::Transparent);
    }
}

TEST_F(TimeStamp, EachEditMovesItsTime) {
    startWith(fewFields());
    const std::string before = now();
    toolkit::overrideClock(1000003660);
    ASSERT_NE(now(), before);
    EXPECT_EQ(form.Timestamp.Caption, before);
    clickMark(1);
    EXPECT_EQ(form.Timestamp.Caption, now());
}

TEST_F(TimeStamp, DuringAZoomItKeepsItsText) {
    startWith(smallMarks());
    form.Timestamp.Caption = "as it was";
    form.Zooming = true;
    MakeTimeStamp(form);
    EXPECT_EQ(form.Timestamp.Caption, "as it was");
}

TEST_F(TimeStamp, UnderTheTemporaryNameOfARebuildItKeepsItsText) {
    startWith(smallMarks());
    form.Timestamp.Caption = "as it was";
    form.CardName = "$$Tempcard";
    MakeTimeStamp(form);
    EXPECT_EQ(form.Timestamp.Caption, "as it was");
}

TEST_F(TimeStamp, ItStandsInTheBottomRightCorner) {
    startWith(smallMarks());
    const auto& stamp = form.Timestamp;
    EXPECT_EQ(stamp.Font.Size, 11);
    EXPECT_EQ(stamp.Width, toolkit::textWidth(stamp.Font, stamp.Caption));
    EXPECT_EQ(stamp.Height, toolkit::textHeight(stamp.Font));
    EXPECT_EQ(stamp.Left, form.P1.Width - stamp.Width);
    EXPECT_EQ(stamp.Top, form.P1.Height - stamp.Height - 4 * pixel);
}

TEST_F(TimeStamp, ALargeMarkTellsItsTop) {
    startWith(fewFields());
    ASSERT_NE(form.LargeMarkBottom, 0);
    EXPECT_EQ(form.Timestamp.Top, form.LargeMarkBottom);
    EXPECT_EQ(form.Timestamp.Left, form.P1.Width - form.Timestamp.Width);
    EXPECT_EQ(form.CreditLabel.Top, form.LargeMarkBottom);
}

TEST_F(TimeStamp, ItsSizeGoesWithTheCardAndTheScreen) {
    toolkit::overrideScreen({.twipsPerPixel = 12, .width = 24000, .height = 24000});
    writeOptions("Zoom=11\r\n");
    startWith(writtenAt(smallMarks(), "12,19200"));
    EXPECT_FLOAT_EQ(form.Timestamp.Font.Size, 11 * 12.0F / 15 * 2);
    EXPECT_FLOAT_EQ(form.CreditLabel.Font.Size, 7 * 12.0F / 15 * 2);
}

TEST_F(TimeStamp, BeforeTheCardHasAScaleItIsNotPlaced) {
    wireOnly();
    form.Timestamp.Left = 77;
    PositionTimeStamp(form);
    EXPECT_EQ(form.Timestamp.Left, 77);
}

TEST_F(TimeStamp, TheCreditStandsInBracketsInTheMiddleOfWhatIsLeft) {
    startWith(smallMarks());
    const auto& credit = form.CreditLabel;
    EXPECT_EQ(credit.Caption, "   [" + std::string(creditLine) + "]");
    EXPECT_EQ(credit.Font.Size, 7);
    EXPECT_EQ(credit.Height, toolkit::textHeight(credit.Font));
    EXPECT_EQ(credit.Left, (form.P1.Width - form.Timestamp.Width - credit.Width) / 2);
    EXPECT_EQ(credit.Top, form.P1.Height - credit.Height);
}

} // namespace
} // namespace zev::test
