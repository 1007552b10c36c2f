// A print service that takes its time: nobody but a print command waits for it.
#include <atomic>
#include <future>
#include <memory>
#include <thread>
#include <utility>

#include "form/printer_facts.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class SlowPrintService : public FormTest {
  protected:
    SlowPrintService() {
        toolkit::overridePrinters({});
        toolkit::Printer office = toolkit::printerNamed(toolkit::printToPdfName);
        office.DeviceName = "Office";
        office.PaperBin = 3;
        office.CanColor = true;
        // It uses nothing of the test's, since it may end after the test.
        toolkit::overridePrinterQuestion(
            [office, asked = questions_,
             answer = release_.get_future().share()](const std::string& name) {
                ++*asked;
                answer.wait();
                if (name == "Broken") throw toolkit::RunTimeError(toolkit::Failure::OutOfMemory);
                toolkit::Printer printer = office;
                if (!name.empty() && name != "Gone") printer.DeviceName = name;
                return printer;
            });
    }
    ~SlowPrintService() override {
        answerNow();
        toolkit::overridePrinterQuestion({});
    }
    SlowPrintService(const SlowPrintService&) = delete;
    SlowPrintService& operator=(const SlowPrintService&) = delete;

    void answerNow() {
        if (!std::exchange(answered_, true)) release_.set_value();
    }
    void waitUntilTaken() const {
        while (form.PrinterPending) toolkit::test::settle();
    }
    /// The answer is there when this returns.
    void answerAndArrive() {
        answerNow();
        while (!form.PrinterAsked.isAnswered()) std::this_thread::yield();
    }
    /// Counts the time that the player is kept waiting from now on.
    void watchWaits() {
        waited = 0;
        duringWait = [this](int milliseconds) {
            waited += milliseconds;
            EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Hourglass);
        };
    }
    static void zoomIn() { toolkit::test::pressKey(toolkit::key::add, toolkit::shift::ctrl); }
    [[nodiscard]] bool optionsHold(std::string_view line) const {
        return dataFileContent("ZEV.Ini").find(line) != std::string::npos;
    }

    [[nodiscard]] int questions() const { return *questions_; }

    int waited = 0; ///< milliseconds

  private:
    bool answered_ = false;
    std::promise<void> release_;
    std::shared_ptr<std::atomic<int>> questions_ = std::make_shared<std::atomic<int>>(0);
};

TEST_F(SlowPrintService, StartDoesNotAskIt) {
    start();
    EXPECT_EQ(questions(), 0);
    EXPECT_TRUE(form.PrinterPending);
}

TEST_F(SlowPrintService, StartWithTheAlternateMethodDoesNotAskItEither) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Cellar\r\nPaperBin=2\r\n");
    start();
    EXPECT_EQ(questions(), 0);
    EXPECT_TRUE(form.PrinterPending);
    zoomIn();
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_TRUE(optionsHold("\r\nPrinter=Cellar "));
    EXPECT_TRUE(optionsHold("\r\nPaperBin=2 "));
}

TEST_F(SlowPrintService, RememberedPrinterIsTakenWithItsTrayOnceItIsKnown) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Cellar\r\nPaperBin=2\r\n");
    start();
    zoomIn();
    answerNow();
    waitUntilTaken();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Cellar");
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 2);
    EXPECT_TRUE(form.CurrentPrinter.AsksForColor);
    EXPECT_EQ(form.Myprinter.Devicename, "Cellar");
    EXPECT_EQ(form.Myprinter.PixPerInchx, 600);
    EXPECT_TRUE(optionsHold("\r\nPrinter=Cellar "));
    EXPECT_TRUE(optionsHold("\r\nPaperBin=2 "));
}

TEST_F(SlowPrintService, RememberedPrinterThatIsGoneLeavesTheDefaultOneItsOwnTray) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Gone\r\nPaperBin=2\r\n");
    start();
    duringWait = [this](int) { answerAndArrive(); };
    takePendingPrinter(form);
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Office");
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 3);
}

TEST_F(SlowPrintService, ZoomIsOverBeforeItAnswers) {
    start();
    zoomIn();
    EXPECT_EQ(form.ZoomLevel, 6);
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_TRUE(optionsHold("\r\nZoom=6 "));
    EXPECT_TRUE(form.PrinterPending);
    EXPECT_FALSE(optionsHold("Office"));
}

TEST_F(SlowPrintService, OptionsFileTellsThePrinterOnceItIsKnown) {
    start();
    zoomIn();
    answerNow();
    waitUntilTaken();
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Office");
    EXPECT_GT(form.Myprinter.PixPerInchx, 0);
    EXPECT_TRUE(optionsHold("\r\nPrinter=Office "));
    EXPECT_TRUE(optionsHold("\r\nPaperBin=3 "));
    EXPECT_TRUE(optionsHold("'     DeviceName:        Office\r\n"));
    EXPECT_TRUE(optionsHold("\r\nZoom=6 "));
}

TEST_F(SlowPrintService, FileWrittenLateHoldsWhatChangedMeanwhile) {
    start();
    zoomIn();
    zoomIn();
    answerNow();
    waitUntilTaken();
    EXPECT_TRUE(optionsHold("\r\nZoom=7 "));
    EXPECT_EQ(questions(), 1);
}

TEST_F(SlowPrintService, PrintCommandWaitsForIt) {
    start();
    zoomIn();
    const std::jthread service([this] { answerNow(); });
    takePendingPrinter(form);
    EXPECT_FALSE(form.PrinterPending);
    EXPECT_EQ(form.Myprinter.Devicename, "Office");
}

TEST_F(SlowPrintService, PrintCommandWaitsAsLongAsItTakesWithTheHourglass) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Print to PDF\r\n");
    start();
    int waits = 0;
    duringWait = [&](int) {
        EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Hourglass);
        if (++waits == 500) answerAndArrive();
    };
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(waits, 500);
    EXPECT_EQ(fileQuestions.size(), 1U);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
}

TEST_F(SlowPrintService, FailureThatArrivesWhileACommandWaitsIsTheCommands) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Broken\r\n");
    start();
    zoomIn();
    duringWait = [this](int) {
        answerAndArrive();
        // The answer goes round as an event, too.
        for (int i = 0; i < 1000; ++i) {
            std::this_thread::yield();
            toolkit::test::settle();
        }
    };
    announceError("Error in mPrint: ");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_TRUE(traced("Error in mPrint: 7, Out of memory"));
    EXPECT_TRUE(fileQuestions.empty());
}

TEST_F(SlowPrintService, CopyWaitsTwoSecondsWithTheHourglassAndGoesOnWithoutIt) {
    start();
    watchWaits();
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_EQ(waited, 2000);
    EXPECT_EQ(toolkit::test::clipboardPicture().width(), 1198);
    EXPECT_TRUE(form.PrinterPending);
    EXPECT_FALSE(form.PrintAlertShown);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
}

TEST_F(SlowPrintService, EveryExportGoesOnWithoutItToo) {
    start();
    for (const auto* item :
         {"File>Export Image to file as...>BMP", "File>Export Partner Image to file as..>GIF"}) {
        watchWaits();
        answerInput("picture");
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        EXPECT_EQ(waited, 2000) << item;
    }
    EXPECT_TRUE(std::filesystem::exists(dataFile("picture.bmp")));
    EXPECT_TRUE(std::filesystem::exists(dataFile("picture.gif")));
}

TEST_F(SlowPrintService, AnswerThatComesInTimeIsTakenByACopy) {
    start();
    duringWait = [this](int) { answerAndArrive(); };
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Office");
}

TEST_F(SlowPrintService, OptionsFileTellsThePrinterThatAnsweredBehindACopy) {
    start();
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_FALSE(optionsHold("Office"));
    answerNow();
    waitUntilTaken();
    EXPECT_TRUE(optionsHold("\r\nPrinter=Office "));
}

TEST_F(SlowPrintService, WhatIsKnownIsToldAtOnce) {
    start();
    answerNow();
    takePendingPrinter(form);
    zoomIn();
    EXPECT_TRUE(optionsHold("\r\nPrinter=Office "));
}

TEST_F(SlowPrintService, EndOfTheProgramCompletesTheFile) {
    start();
    zoomIn();
    duringWait = [this](int) {
        EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Hourglass);
        answerAndArrive();
    };
    EXPECT_FALSE(form.QueryClose());
    EXPECT_TRUE(optionsHold("\r\nPrinter=Office "));
}

TEST_F(SlowPrintService, EndOfTheProgramWaitsTwoSecondsAtMost) {
    start();
    zoomIn();
    watchWaits();
    EXPECT_FALSE(form.QueryClose());
    EXPECT_EQ(waited, 2000);
}

TEST_F(SlowPrintService, EndWithoutAnyQuestionAsksNone) {
    start();
    const std::string options = dataFileContent("ZEV.Ini");
    EXPECT_FALSE(form.QueryClose());
    EXPECT_EQ(questions(), 0);
    EXPECT_EQ(dataFileContent("ZEV.Ini"), options);
}

} // namespace
} // namespace zev::test
