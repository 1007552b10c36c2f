#include "output/printer_setup.h"

#include <algorithm>

#include "output/print_test.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_dialogs.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class PrinterSetup : public PrintTest {
  protected:
    ~PrinterSetup() override { toolkit::answerPrinterSetupWith({}); }
};

TEST_F(PrinterSetup, TheChosenPrintersFactsAreTaken) {
    start();
    toolkit::answerPrinterSetupWith([&](const toolkit::Printer& present) {
        EXPECT_EQ(present.DeviceName, "Print to PDF");
        EXPECT_TRUE(form.PleaseWait.Visible);
        EXPECT_EQ(form.PleaseWait.Text, "Finding Printers...");
        return laser(8);
    });
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Printer Setup..."));
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Laser");
    EXPECT_EQ(form.Myprinter.Devicename, "User selected");
    EXPECT_EQ(form.Myprinter.hdc, 7);
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 8);
    EXPECT_FALSE(form.PleaseWait.Visible);
    EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
    EXPECT_TRUE(traced("MPrintSetup_Click, Method=3"));
    EXPECT_NE(dataFileContent("ZEV.Ini").find("'     Devicename:        User selected"),
              std::string::npos);
    EXPECT_NE(settings().find("Printer=Laser"), std::string::npos);
}

TEST_F(PrinterSetup, ACancelledDialogLeavesTheFormerPageInForce) {
    toolkit::overridePrinters({pdfWithPage(7.5F)});
    start();
    toolkit::answerPrinterSetupWith([](const toolkit::Printer&) { return std::nullopt; });
    form.Trace.clear();
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Printer Setup..."));
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 7.5F);
    EXPECT_EQ(form.Myprinter.Devicename, "Print to PDF");
    EXPECT_FALSE(traced("IniWrite"));
}

TEST_F(PrinterSetup, AColourPrinterCountsAsTwentyFourBitsAndAMonochromeOneAsEight) {
    start();
    for (const auto& [colorMode, bits] : {std::pair(1, 8), std::pair(2, 24)}) {
        toolkit::answerPrinterSetupWith([&](const toolkit::Printer&) {
            toolkit::Printer printer = laser(8);
            printer.ColorMode = colorMode;
            return printer;
        });
        MPrintSetup_Click(form);
        EXPECT_EQ(form.Myprinter.BitsPerPixel, bits);
    }
}

TEST_F(PrinterSetup, TheSystemsDialogIsTitledAndItsCancelChangesNothing) {
    start();
    toolkit::test::ShownDialog seen;
    toolkit::test::endNextDialog(seen);
    MPrintSetup_Click(form);
    EXPECT_EQ(seen.title, "Printer Setup");
    EXPECT_EQ(std::count(seen.buttons.begin(), seen.buttons.end(), "Print"), 0);
    EXPECT_EQ(form.Myprinter.Devicename, "Print to PDF");
}

TEST_F(PrinterSetup, TheSystemsDialogOffersPrintToPdfAndTakesIt) {
    toolkit::overridePrinters({laser(8)});
    start();
    toolkit::test::driveNextDialog([](toolkit::test::DialogDriver& dialog) {
        EXPECT_TRUE(dialog.choose(toolkit::printToPdfName));
        dialog.press("OK");
    });
    MPrintSetup_Click(form);
    EXPECT_EQ(form.CurrentPrinter.DeviceName, toolkit::printToPdfName);
    EXPECT_EQ(form.Myprinter.Devicename, "User selected");
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 8.5F);
}

} // namespace
} // namespace zev::test
