#include "form/write_options.h"
#include "output/print_picture.h"
#include "output/print_test.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class PrintPicture : public PrintTest {
  protected:
    static constexpr std::string_view refused =
        "Printer error 'PPB1', could not print the card. Please use 'Printer Setup' to re-select "
        "your printer, then try again.";
    static constexpr std::string_view refusal =
        "Error in PrintPictureBox at step 1200: 482, Printer error";

    /// Without the rest of a job, which sets the tray as well.
    void deliverByAlternateMethod(const std::filesystem::path& file) {
        start();
        form.PrintMethod = alternatePrintMethod;
        form.Myprinter.PaperBin = 2;
        form.CurrentPrinter.PaperBin = 4;
        answerFile(file);
        whileAsking = [this] { trayWhileAsked = form.CurrentPrinter.PaperBin; };
        PrintPictureBox(form, form.P1, {.x = 0, .y = 0, .height = 12000});
    }
    int trayWhileAsked = 0;

    /// What the trace says of the page behind the label; nothing without such a line.
    [[nodiscard]] std::string verdictAt(const std::string& label) const {
        const std::string content = traceFile();
        const std::string head = " " + label + " TestBlankPage: page is ";
        const auto at = content.find(head);
        if (at == std::string::npos) return {};
        const auto begin = at + head.size();
        return content.substr(begin, content.find(';', begin) - begin);
    }
};

TEST_F(PrintPicture, AnUnknownPageIsPrintedAtEightAndATenthInches) {
    toolkit::Printer printer = pdfWithPage(8.1F);
    printer.PhysicalWidth = 1000;
    printer.PhysicalOffsetX = 0;
    toolkit::overridePrinters({printer});
    startWithContent();
    ASSERT_LT(form.Myprinter.PageWidthInches, 2);
    answer(toolkit::Answer::Yes);
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
}

TEST_F(PrintPicture, ACardHigherThanThePageIsSqueezedInItsHeightOnly) {
    toolkit::overridePrinters({pdfWithPage(8.5F, 6)});
    startWithContent();
    const PrintedPage page = print();
    EXPECT_FLOAT_EQ(page.width, 8.1F * points);
    EXPECT_NEAR(page.height, 6 * points, 0.01F);
}

TEST_F(PrintPicture, ADocumentThatIsRefusedIsToldOnceAndTheCardComesBack) {
    toolkit::Printer printer = pdfWithPage(8.1F);
    printer.DeviceName = "No such printer of the service";
    toolkit::overridePrinters({printer});
    announceError(refusal);
    startWithContent();
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(boxes[0].text.starts_with(std::string(refused) + " (")) << boxes[0].text;
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    expectUnharmed();
}

TEST_F(PrintPicture, WithoutAPrinterTheDocumentIsRefused) {
    toolkit::overrideNoPrinter(true);
    announceError(refusal);
    startWithContent();
    answer(toolkit::Answer::Yes);
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(boxes.size(), 2U);
    EXPECT_EQ(boxes[1].text, refused);
    expectUnharmed();
}

TEST_F(PrintPicture, AFileThatCantBeOpenedIsARefusedDocumentAndTheNextPrintWorks) {
    startWithContent();
    announceError(refusal);
    answerFile(home / "no folder" / "page.pdf");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(traced(std::string(refusal) + " (Path not found)"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, std::string(refused) + " (Path not found)");
    expectUnharmed();
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(PrintPicture, TheReasonOfARefusalIsTracedAndTold) {
    startWithContent();
    announceError(refusal);
    const auto folder = home / "folder.pdf";
    std::filesystem::create_directory(folder);
    answerFile(folder);
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(traced(std::string(refusal) + " (Path/File access error)"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, std::string(refused) + " (Path/File access error)");
}

TEST_F(PrintPicture, AFullDiskIsToldAndTheNextPrintWorks) {
    startWithContent();
    announceError("Error in PrintPictureBox at step 1900: 61, Disk full");
    answerFile("/dev/full");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Disk full Printer Error #61");
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    EXPECT_TRUE(std::filesystem::exists("/dev/full"));
    expectUnharmed();
    EXPECT_FLOAT_EQ(print().width, 8.1F * points);
}

TEST_F(PrintPicture, ACancelledQuestionForTheFileDropsTheJobSilently) {
    startWithContent();
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(boxes.empty());
    ASSERT_EQ(fileQuestions.size(), 1U);
    EXPECT_EQ(fileQuestions[0].preset, dataFolder / "Card.pdf");
    expectUnharmed();
}

TEST_F(PrintPicture, TheAlternateMethodWithoutAChosenTrayLeavesThePrintersTrayAlone) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\n");
    toolkit::overridePrinters({pdfWithPage(8.1F)});
    startWithContent();
    form.CurrentPrinter.PaperBin = 4;
    form.Myprinter.PaperBin = 0;
    print();
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 4);
}

TEST_F(PrintPicture, TheAlternateMethodSetsAChosenTrayAgainBehindTheDocument) {
    deliverByAlternateMethod(home / "page.pdf");
    EXPECT_TRUE(std::filesystem::exists(home / "page.pdf"));
    EXPECT_EQ(trayWhileAsked, 4);
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 2);
}

TEST_F(PrintPicture, TheChosenTrayIsSetAgainEvenIfTheDocumentCouldntBeEnded) {
    announceError("Error in PrintPictureBox at step 2500: 61, Disk full");
    deliverByAlternateMethod("/dev/full");
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Disk full Printer Error #61");
    EXPECT_EQ(trayWhileAsked, 4);
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 2);
}

TEST_F(PrintPicture, TheAlternateMethodTellsARefusalAsAPrinterError) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\n");
    startWithContent();
    announceError("Error in PrintPictureBox at step 2300: 482, ");
    answerFile(home / "no folder" / "page.pdf");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, "Printer error (Path not found) Printer Error #482");
    expectUnharmed();
}

TEST_F(PrintPicture, TracesItsStepsWhenTracingIsOn) {
    startWithContent();
    form.TraceOn = true;
    print();
    EXPECT_EQ(verdictAt("mPrint_Click after MakeGray for P1"), "");
    EXPECT_EQ(verdictAt("PrintPictureBox before Printer.PaintPicture"), "");
    for (const char* label :
         {"mPrint_Click before flatten for P1", "mPrint_Click after flatten for P1",
          "mPrint_Click after flatten for P2", "mPrint_Click after SetImageSize for P1",
          "mPrint_Click after RebuildScreenImage for P1",
          "PrintPictureBox before first SendMessage", "PrintPictureBox before second SendMessage",
          "PrintPictureBox after second SendMessage", "PrintPictureBox after picture=image",
          "PrintPictureBox before PrintImage", "PrintPictureBox after PrintImage",
          "mPrint_Click after PrintPictureBox for P1"}) {
        EXPECT_NE(verdictAt(label), "") << label;
    }
    EXPECT_EQ(verdictAt("mPrint_Click after PrintPictureBox for P1"), "blank");
}

TEST_F(PrintPicture, TracesTheGreyCardAndTheAlternateMethodsPicture) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nMono=1\r\n");
    startWithContent();
    form.TraceOn = true;
    print();
    EXPECT_EQ(verdictAt("mPrint_Click after MakeGray for P1"), "not blank");
    EXPECT_EQ(verdictAt("PrintPictureBox before Printer.PaintPicture"), "not blank");
    EXPECT_EQ(verdictAt("PrintPictureBox before PrintImage"), "");
    EXPECT_EQ(verdictAt("PrintPictureBox after PrintImage"), "");
}

} // namespace
} // namespace zev::test
