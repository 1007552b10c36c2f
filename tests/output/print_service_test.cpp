// What a job asks of the system's print service, and what becomes of the service's refusals.
#include <map>
#include <string>

#include "output/print_test.h"
#include "toolkit/print/cups_library.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

/// Stands for the print service.
struct Service {
    std::map<std::string, std::string> asked; ///< by the last job
    int jobs = 0;
    int pages = 0;
    int cancelled = 0;
    bool refusesJobs = false;
    bool losesPages = false;
};

Service& service() {
    static Service current;
    return current;
}

int addOption(const char* name, const char* value, int count, cups_option_t** /*list*/) {
    if (count == 0) service().asked.clear();
    service().asked[name] = value;
    return count + 1;
}

const toolkit::CupsLibrary& library() {
    static const toolkit::CupsLibrary functions = [] {
        toolkit::CupsLibrary made;
        made.addOption = addOption;
        made.freeOptions = [](int, cups_option_t*) {};
        made.createJob = [](http_t*, const char*, const char*, int, cups_option_t*) {
            return service().refusesJobs ? 0 : ++service().jobs;
        };
        made.startDocument = [](http_t*, const char*, int, const char*, const char*, int) {
            return HTTP_STATUS_CONTINUE;
        };
        made.writeRequestData = [](http_t*, const char*, std::size_t) {
            return HTTP_STATUS_CONTINUE;
        };
        made.finishDocument = [](http_t*, const char*) {
            if (service().losesPages) return IPP_STATUS_ERROR_DEVICE;
            ++service().pages;
            return IPP_STATUS_OK;
        };
        made.cancelJob = [](const char*, int) { return ++service().cancelled; };
        made.lastErrorString = [] { return "The printer is not accepting jobs."; };
        return made;
    }();
    return functions;
}

class PrintService : public PrintTest {
  protected:
    PrintService() {
        service() = {};
        toolkit::overrideCupsLibrary(&library());
        toolkit::overridePrinters({laser(8.1F)});
    }
    ~PrintService() override { toolkit::overrideCupsLibrary(nullptr); }
    PrintService(const PrintService&) = delete;
    PrintService& operator=(const PrintService&) = delete;

    static void printCard() { EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card")); }
    /// The colour mode that the job of one print asks for; nothing if it leaves that to the
    /// printer.
    static std::string colorModeAsked() {
        const int before = service().pages;
        printCard();
        EXPECT_EQ(service().pages, before + 1);
        const auto found = service().asked.find(CUPS_PRINT_COLOR_MODE);
        return found == service().asked.end() ? std::string() : found->second;
    }
};

TEST_F(PrintService, AColourPrinterIsLeftToItsOwnSetting) {
    start();
    form.CurrentPrinter.CanColor = true;
    EXPECT_EQ(colorModeAsked(), "");
}

TEST_F(PrintService, AMonochromePrinterIsAskedForMonochrome) {
    start();
    form.CurrentPrinter.ColorMode = toolkit::monochrome;
    EXPECT_EQ(colorModeAsked(), "monochrome");
}

TEST_F(PrintService, ForcedBlackAsksForMonochrome) {
    start();
    form.CurrentPrinter.CanColor = true;
    form.MMono.Checked = true;
    EXPECT_EQ(colorModeAsked(), "monochrome");
    EXPECT_EQ(form.CurrentPrinter.ColorMode, toolkit::colored);
}

TEST_F(PrintService, ForcedColourAsksForColourOfAPrinterThatIsSetToGrey) {
    start();
    form.CurrentPrinter.CanColor = true;
    form.CurrentPrinter.ColorMode = toolkit::monochrome;
    form.MColor.Checked = true;
    EXPECT_EQ(colorModeAsked(), "color");
    EXPECT_EQ(form.CurrentPrinter.ColorMode, toolkit::monochrome);
}

TEST_F(PrintService, ForcedColourAsksNothingOfAPrinterThatTellsOfNoColours) {
    start();
    form.CurrentPrinter.ColorMode = toolkit::monochrome;
    form.MColor.Checked = true;
    EXPECT_EQ(colorModeAsked(), "");
}

TEST_F(PrintService, ForcedColourGoesBeforeForcedBlack) {
    start();
    form.CurrentPrinter.CanColor = true;
    form.MColor.Checked = form.MMono.Checked = true;
    EXPECT_EQ(colorModeAsked(), "color");
}

TEST_F(PrintService, AChosenTrayOfTheAlternateMethodAsksForColour) {
    toolkit::Printer grey = laser(8.1F);
    grey.ColorMode = toolkit::monochrome;
    grey.CanColor = true;
    toolkit::overridePrinters({grey});
    writeOptions("Zoom=5\r\nPrintAlt=1\r\nPrinter=Laser\r\nPaperBin=2\r\n");
    start();
    EXPECT_EQ(colorModeAsked(), "color");
}

TEST_F(PrintService, TheReasonOfARefusedJobReachesTheTraceAndThePlayer) {
    service().refusesJobs = true;
    startWithContent();
    announceError("Error in PrintPictureBox at step 1200: ");
    printCard();
    EXPECT_TRUE(traced("Error in PrintPictureBox at step 1200: 482, Printer error (The printer is "
                       "not accepting jobs.)"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Printer error 'PPB1', could not print the card. Please use 'Printer Setup' to "
              "re-select your printer, then try again. (The printer is not accepting jobs.)");
    expectUnharmed();
}

TEST_F(PrintService, TheReasonOfALostPageReachesTheTraceAndThePlayerAndTheJobIsTakenBack) {
    service().losesPages = true;
    startWithContent();
    announceError("Error in PrintPictureBox at step 1900: ");
    printCard();
    EXPECT_TRUE(traced("Error in PrintPictureBox at step 1900: 482, Printer error (The printer is "
                       "not accepting jobs.)"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text,
              "Printer error (The printer is not accepting jobs.) Printer Error #482");
    EXPECT_EQ(service().cancelled, 1);
    expectUnharmed();
}

} // namespace
} // namespace zev::test
