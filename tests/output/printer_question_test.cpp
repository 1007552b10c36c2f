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
        // It uses nothing of the test's, since it may end after the test.
        toolkit::overrideDefaultPrinterQuestion(
            [office, asked = questions_, answer = release_.get_future().share()] {
                ++*asked;
                answer.wait();
                return office;
            });
    }
    ~SlowPrintService() override {
        answerNow();
        toolkit::overrideDefaultPrinterQuestion({});
    }
    SlowPrintService(const SlowPrintService&) = delete;
    SlowPrintService& operator=(const SlowPrintService&) = delete;

    void answerNow() {
        if (!std::exchange(answered_, true)) release_.set_value();
    }
    void waitUntilTaken() const {
        while (form.PrinterPending) toolkit::test::settle();
    }
    static void zoomIn() { toolkit::test::pressKey(toolkit::key::add, toolkit::shift::ctrl); }
    [[nodiscard]] bool optionsHold(std::string_view line) const {
        return dataFileContent("ZEV.Ini").find(line) != std::string::npos;
    }

    [[nodiscard]] int questions() const { return *questions_; }

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
    const std::jthread service([this] { answerNow(); });
    EXPECT_FALSE(form.QueryClose());
    EXPECT_TRUE(optionsHold("\r\nPrinter=Office "));
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
