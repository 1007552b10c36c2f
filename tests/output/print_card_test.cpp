#include "card/save.h"
#include "form/options.h"
#include "form/write_options.h"
#include "output/print_card.h"
#include "output/print_test.h"
#include "toolkit/base/key.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/fit.h"

namespace zev::test {
namespace {

class PrintCard : public PrintTest {
  protected:
    /// The colour of a mark that the card has in blue, while a print asks for its file.
    toolkit::Color markInAJob() {
        toolkit::Color mark = 1;
        answerFile({});
        whileAsking = [&] { mark = form.AMark[3].ForeColor; };
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
        return mark;
    }
};

TEST_F(PrintCard, StandsOnThePageEightAndATenthInchesWideAtItsCorner) {
    startWithContent();
    const PrintedPage page = print();
    EXPECT_FLOAT_EQ(page.pageWidth, 8.5F * points);
    EXPECT_FLOAT_EQ(page.pageHeight, 11 * points);
    EXPECT_FLOAT_EQ(page.width, 8.1F * points);
    EXPECT_FLOAT_EQ(page.left, 0);
    EXPECT_NEAR(page.foot, page.pageHeight - page.height, 0.01F);
    EXPECT_NEAR(page.height, 8.1F * points * 2488 / 2396, 0.1F);
    EXPECT_EQ(page.pictures, 0);
}

TEST_F(PrintCard, ShortcutPrints) {
    startWithContent();
    answerFile(home / "page.pdf");
    toolkit::test::typeKey('P', toolkit::shift::ctrl);
    EXPECT_TRUE(std::filesystem::exists(home / "page.pdf"));
}

TEST_F(PrintCard, EverythingComesBackAsItWas) {
    startWithContent();
    form.P1.Move(-150, -300);
    window->update();
    IniWrite(form);
    const auto before = toolkit::test::grabCard();
    const std::string options = settings();
    const std::string layout = dataFileContent("Definitions.Ini");
    print();
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_EQ(form.ZoomTable[0], 0);
    EXPECT_EQ(form.P1.Left, -150);
    EXPECT_EQ(form.P1.Top, -300);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_FALSE(form.P2.Visible);
    EXPECT_EQ(form.P2.Picture, nullptr);
    EXPECT_FALSE(form.Printing);
    EXPECT_TRUE(form.MenusEnabled);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.CardName, "");
    EXPECT_EQ(form.Caption, "Zevlin  (unnamed) *");
    EXPECT_EQ(form.AText[1].Tag, "a ^h && more");
    EXPECT_EQ(settings(), options);
    EXPECT_EQ(dataFileContent("Definitions.Ini"), layout);
    EXPECT_FALSE(std::filesystem::exists(dataFile("$$TempDef.Ini")));
    EXPECT_FALSE(std::filesystem::exists(dataFile("$$Tempcard.zev")));
    const auto after = toolkit::test::grabCard();
    ASSERT_EQ(after.width(), before.width());
    ASSERT_EQ(after.height(), before.height());
    int different = 0;
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            different += before.pixel(x, y) != after.pixel(x, y) ? 1 : 0;
    EXPECT_EQ(different, 0);
}

TEST_F(PrintCard, WhileItRunsTheScreenShowsTheFrozenCard) {
    startWithContent();
    const auto before = toolkit::test::grabCard();
    form.Trace.clear();
    toolkit::Bitmap during;
    answerFile({});
    whileAsking = [&] {
        EXPECT_TRUE(form.Printing);
        EXPECT_FALSE(form.MenusEnabled);
        EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Hourglass);
        EXPECT_FALSE(toolkit::test::chooseMenu("File>Print card"));
        EXPECT_EQ(form.P1.Width, 2396 * 15);
        toolkit::test::settle();
        during = toolkit::test::grabCard();
    };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(during.width(), before.width());
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            ASSERT_EQ(before.pixel(x, y), during.pixel(x, y)) << x << ", " << y;
}

TEST_F(PrintCard, AnOutputCommandInTheMiddleOfAJobDoesNothing) {
    startWithContent();
    answerFile({});
    whileAsking = [&] {
        form.Trace.clear();
        MPrint_Click(form);
        EXPECT_TRUE(form.Trace.empty());
    };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
}

TEST_F(PrintCard, ACloseInTheMiddleOfAJobIsRefused) {
    startWithContent();
    answerFile({});
    whileAsking = [&] { EXPECT_TRUE(form.QueryClose()); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(form.CardModified);
}

TEST_F(PrintCard, AnEditInProgressReachesItsFieldAndThePage) {
    start();
    clickText(1);
    toolkit::test::typeText("open");
    std::string printed;
    answerFile({});
    whileAsking = [&] { printed = form.AText[1].Caption; };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(printed, "open");
    EXPECT_FALSE(form.CText.Visible);
}

TEST_F(PrintCard, AnOpenHelpPageIsClosedByEveryJob) {
    startWithContent();
    for (const char* item : {"File>Print card", "File>Print Partner's card",
                             "File>Export Image to file as...>GIF", "File>Copy to Clipboard"}) {
        toolkit::test::typeKey(toolkit::key::f1);
        ASSERT_TRUE(form.THelp.Visible) << item;
        const std::string_view name(item);
        if (name.find("Print ") != std::string_view::npos) answerFile({});
        if (name.find("Export") != std::string_view::npos) answerInput("");
        whileAsking = [&] { EXPECT_FALSE(form.THelp.Visible) << item; };
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        EXPECT_FALSE(form.THelp.Visible) << item;
        EXPECT_EQ(form.ActiveControl, &form.P1) << item;
        const bool before = form.AMark[2].Visible;
        clickMark(2);
        EXPECT_NE(form.AMark[2].Visible, before) << item;
    }
}

TEST_F(PrintCard, AHelpPageOfTheFirstRunIsClosedAndTheCardCanBeUsed) {
    startWithContent();
    toolkit::test::typeKey(toolkit::key::f1);
    form.P1.Enabled = false;
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.P1.Enabled);
}

TEST_F(PrintCard, ANarrowPageIsToldOncePerRun) {
    toolkit::overridePrinters({pdfWithPage(7.5F)});
    startWithContent();
    answer(toolkit::Answer::Yes);
    const PrintedPage page = print();
    EXPECT_FLOAT_EQ(page.width, 7.5F * points);
    EXPECT_FLOAT_EQ(page.left, 0.25F * points);
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].title, "Zevlin Print Alert");
    EXPECT_EQ(boxes[0].text,
              "Printer's page width is less than 8 inches.\r\nFor best results, please use "
              "'Printer Setup...' to change paper and/or tray.\r\nDo you want to print this card "
              "anyway?");
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::YesNo);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Information);
    EXPECT_EQ(boxes[0].preset, toolkit::Answer::No);
    print();
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(PrintCard, APageOfExactlyEightInchesGivesNoAlert) {
    toolkit::overridePrinters({pdfWithPage(8)});
    startWithContent();
    EXPECT_FLOAT_EQ(print().width, 8 * points);
    EXPECT_TRUE(boxes.empty());
}

TEST_F(PrintCard, NoAtTheAlertChangesNothing) {
    toolkit::overridePrinters({pdfWithPage(7.5F)});
    startWithContent();
    const std::string options = dataFileContent("ZEV.Ini");
    const float width = form.P1.Width;
    answer(toolkit::Answer::No);
    form.Trace.clear();
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(traceLines(), (std::vector<std::string>{"MPrint_Click"}));
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
    EXPECT_EQ(form.P1.Width, width);
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_FALSE(form.Printing);
    EXPECT_TRUE(form.PrintAlertShown);
}

TEST_F(PrintCard, NoAtTheAlertLeavesAFitInForce) {
    toolkit::overridePrinters({pdfWithPage(7.5F)});
    toolkit::overrideScreen({.width = 12000, .height = 24000});
    startWithContent();
    MFitScreenWidth_Click(form);
    const std::string options = dataFileContent("ZEV.Ini");
    const float fit = form.ZoomTable[0];
    const float width = form.P1.Width;
    const auto level = form.ZoomLevel;
    ASSERT_GT(fit, 0);
    ASSERT_NE(options.find("Fit=1 "), std::string::npos);
    answer(toolkit::Answer::No);
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(form.ZoomTable[0], fit);
    EXPECT_EQ(form.ZoomLevel, level);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.MFitScreenHeight.Checked);
    EXPECT_EQ(form.P1.Width, width);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
}

TEST_F(PrintCard, AFitToWidthComesBackWithItsScaleAndItsCheck) {
    toolkit::overrideScreen({.width = 12000, .height = 24000});
    startWithContent();
    MFitScreenWidth_Click(form);
    const float fit = form.ZoomTable[0];
    const float width = form.P1.Width;
    ASSERT_GT(fit, 0);
    print();
    EXPECT_EQ(form.ZoomTable[0], fit);
    EXPECT_TRUE(form.MFitScreenWidth.Checked);
    EXPECT_FALSE(form.MFitScreenHeight.Checked);
    EXPECT_EQ(form.P1.Width, width);
    EXPECT_NE(settings().find("Fit=1 "), std::string::npos);
}

TEST_F(PrintCard, TheAlternateMethodRunsAllStepsFromStepFive) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\n");
    startWithContent();
    form.Trace.clear();
    const PrintedPage page = print();
    EXPECT_EQ(page.pixelsAcross, 1198);
    EXPECT_EQ(page.pixelsDown, 1244);
    EXPECT_FLOAT_EQ(page.width, 8.5F * points);
    EXPECT_NEAR(page.height, 8.1F * points * 1244 / 1198, 0.1F);
    EXPECT_EQ(count("RebuildScreenImage"), 2);
    EXPECT_EQ(count("SetImageSize 0.5, False, True"), 2);
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a ^h && more");
}

TEST_F(PrintCard, ARememberedPrinterOfAnotherResolutionPrintsAtFullSize) {
    toolkit::Printer fine = pdfWithPage(8.5F);
    fine.PixelsPerInchX = fine.PixelsPerInchY = 1200;
    toolkit::layOutPage(fine, 1, toolkit::Orientation::Portrait);
    toolkit::overridePrinters({laser(7.5F), fine});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Print to PDF\r\n");
    startWithContent();
    const PrintedPage page = print();
    EXPECT_NEAR(page.width, 8.5F * points, 0.01F);
    EXPECT_NEAR(page.height, 8.1F * points * 1244 / 1198, 0.1F);
}

TEST_F(PrintCard, ItsStepsComeInTheirOrder) {
    startWithContent();
    form.Trace.clear();
    answerFile(home / "page.pdf");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    const auto lines = traceLines();
    auto place = lines.begin();
    for (const char* step :
         {"MPrint_Click", "IniWrite", "PositionSave", "IniWrite", "CheckPointShapes",
          "SetImageSize 1, False, True", "RebuildScreenImage", "MakeTimeStamp", "PrintPictureBox",
          "True RestoreBackgroundPicture ", "SetImageSize 1, False, True", "IniWrite",
          "RebuildScreenImage", "RestoreShapes"}) {
        place = std::find(place, lines.end(), step);
        ASSERT_NE(place, lines.end()) << step;
        ++place;
    }
}

TEST_F(PrintCard, AnEightBitPrinterGetsGreyAndBlackUnlessColourIsForced) {
    toolkit::Printer printer = pdfWithPage(8.1F);
    printer.ColorMode = 1;
    toolkit::overridePrinters({printer});
    startWithContent();
    EXPECT_EQ(markInAJob(), toolkit::black);
    EXPECT_TRUE(traced("MakeGray"));
    EXPECT_EQ(form.AMark[3].ForeColor, form.ColorBlue);

    form.MColor.Checked = true;
    form.Trace.clear();
    EXPECT_EQ(markInAJob(), form.ColorBlue);
    EXPECT_FALSE(traced("MakeGray"));
}

TEST_F(PrintCard, AMonochromePrinterGetsGreyAndBlackByTheAlternateMethodToo) {
    toolkit::Printer grey = pdfWithPage(8.1F);
    grey.ColorMode = 1;
    toolkit::overridePrinters({laser(8.1F), grey});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Print to PDF\r\n");
    startWithContent();
    EXPECT_EQ(markInAJob(), toolkit::black);
    EXPECT_TRUE(traced("MakeGray"));
}

TEST_F(PrintCard, AColourPrinterGetsBlackOnlyWhenForced) {
    startWithContent();
    toolkit::Color text = 1;
    whileAsking = [&] { text = form.AText[2].ForeColor; };
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(text, form.ColorRed);
    form.MMono.Checked = true;
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(text, toolkit::black);
}

TEST_F(PrintCard, AFullScreenAtTheLargestStepComesBackUnburnt) {
    writeOptions("Zoom=11\r\n");
    startWithContent();
    const auto before = form.P1.Picture;
    print();
    ASSERT_NE(form.P1.Picture, nullptr);
    const auto place = targetOf(1);
    for (int y = 0; y < before->height(); y += 7)
        for (int x = 0; x < before->width(); x += 3)
            ASSERT_EQ(before->pixel(x, y), form.P1.Picture->pixel(x, y)) << place.x;
}

TEST_F(PrintCard, AReadOnlyOptionsFileDoesNotChangeTheScaleOfThePage) {
    startWithContent();
    announceError("Error in IniWrite ");
    std::filesystem::remove(dataFile("ZEV.Ini"));
    std::filesystem::create_directory(dataFile("ZEV.Ini"));
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
    EXPECT_EQ(form.ZoomLevel, 5);
    EXPECT_EQ(form.P1.Width, 1198 * 15);
    EXPECT_FALSE(form.THelp.Visible);
    EXPECT_TRUE(form.AMark[1].Visible);
}

TEST_F(PrintCard, NoMomentOfAJobLeavesItsViewInTheOptionsFile) {
    startWithContent();
    ASSERT_TRUE(toolkit::test::chooseMenu("View>Fit to screen height"));
    const std::string before = settings();
    ASSERT_NE(before.find("Fit=2 "), std::string::npos);
    whileAsking = [&] { EXPECT_EQ(settings(), before); };
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
    EXPECT_EQ(settings(), before);
}

TEST_F(PrintCard, ATemporaryCardThatCantBeWrittenLosesNothing) {
    startWithContent();
    announceError("Error in MSave_Click ");
    std::filesystem::create_directory(dataFile("$$Tempcard.zev"));
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(form.AMark[2].Visible);
    EXPECT_EQ(form.AText[1].Tag, "a ^h && more");
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(form.CardName, "");
    std::filesystem::remove(dataFile("$$Tempcard.zev"));
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
    EXPECT_TRUE(form.AMark[1].Visible);
}

} // namespace
} // namespace zev::test
