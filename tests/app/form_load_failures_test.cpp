#include "app/form_load.h"
#include "app/layouts.h"
#include "card/write_card.h"
#include "form/settings.h"
#include "layout/write_layout.h"
#include "toolkit/base/write_file.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* printerMissing =
    "This computer does not have a 'default printer' and ZEV cannot run without one.\r"
    "To assign a default printer to your computer:\r"
    "  1. click the Windows Start button\r"
    "  2. select the Control Panel\r"
    "  3. select the 'Printers and Fax' folder,\r"
    "  4. decide which printer to designate as the default\r"
    "  5. right-click on its name, and select 'Set as default printer'\r"
    "  6. close that folder and close the Control Panel\r"
    "\r"
    "Once a default printer has been assigned, try starting the Zevlin again.";

class FormLoadFailures : public FormTest {
  protected:
    FormLoadFailures() { writeLayout(fewFields()); }
    /// Starts a program that fails when the card gets the focus, after step 2100.
    bool startFailsLate() {
        wireOnly();
        form.P1.GotFocus = [] { throw toolkit::RunTimeError(toolkit::Failure::Overflow); };
        return failsProgram([&] { Form_Load(form, {}); });
    }
    static std::string sorry(const std::string& failure, int step) {
        return "Sorry, program error #" + failure + "\nat step " + std::to_string(step) +
               " while starting. Please send 'Trace.txt' to " + std::string(supportAddress) +
               ", and mention both the error # and the step.";
    }
};

TEST_F(FormLoadFailures, AreTracedAndToldWithNumberAndStepAndEndTheProgram) {
    announceError("Error in Form_Load ");
    EXPECT_TRUE(startFailsLate());
    EXPECT_TRUE(traced("Error in Form_Load 6, Overflow, at step 2100, hdc=1"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, sorry("6 (Overflow)", 2100));
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
    EXPECT_EQ(boxes[0].buttons, toolkit::Buttons::Ok);
    EXPECT_EQ(boxes[0].title, "");
}

TEST_F(FormLoadFailures, WithoutADefaultPrinterAnyFailureIsTakenForTheMissingPrinter) {
    announceError("Error in Form_Load ");
    toolkit::overrideNoPrinter(true);
    EXPECT_TRUE(startFailsLate());
    EXPECT_TRUE(traced("Error in Form_Load 6, Overflow, at step 2100, hdc=0"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, printerMissing);
    EXPECT_EQ(boxes[0].icon, toolkit::Icon::Exclamation);
}

TEST_F(FormLoadFailures, WithoutADefaultPrinterTheProgramStartsWithoutAMessage) {
    toolkit::overrideNoPrinter(true);
    start();
    EXPECT_TRUE(boxes.empty());
    EXPECT_EQ(form.Myprinter.hdc, 0);
    EXPECT_EQ(form.Myprinter.Devicename, "");
    EXPECT_TRUE(form.P1.Visible);
}

TEST_F(FormLoadFailures, ADamagedCardPictureStopsTheStart) {
    announceError("Error in Form_Load ");
    toolkit::writeFile(dataFile("Convention card.gif"), "no picture");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_TRUE(traced("Error in Form_Load 481, Invalid picture, at step 1000, hdc=1"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, sorry("481 (Invalid picture)", 1000));
}

TEST_F(FormLoadFailures, AtTheFirstStepTooAreTakenForTheMissingPrinterWhereThereIsNone) {
    announceError("Error in Form_Load ");
    toolkit::overrideNoPrinter(true);
    toolkit::writeFile(dataFile("Convention card.gif"), "no picture");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_TRUE(traced("Error in Form_Load 481, Invalid picture, at step 1000, hdc=0"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, printerMissing);
}

TEST_F(FormLoadFailures, AtTheFirstStepAreToldAsWhatTheyAreBeforeTheSystemWasAsked) {
    announceError("Error in Form_Load ");
    toolkit::overridePrinters({});
    toolkit::writeFile(dataFile("Convention card.gif"), "no picture");
    EXPECT_TRUE(failsProgram([&] { start(); }));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, sorry("481 (Invalid picture)", 1000));
    EXPECT_FALSE(form.PrinterAsked.isAsked());
}

TEST_F(FormLoadFailures, AFolderInThePlaceOfTheCardPictureStopsTheStart) {
    announceError("Error in Form_Load ");
    fs::create_directory(dataFile("Convention card.gif"));
    EXPECT_TRUE(failsProgram([&] { start(); }));
    EXPECT_TRUE(traced("Error in Form_Load 75, Path/File access error, at step 1000, hdc=1"));
    ASSERT_EQ(boxes.size(), 1U);
    EXPECT_EQ(boxes[0].text, sorry("75 (Path/File access error)", 1000));
}

TEST_F(FormLoadFailures, AFolderInThePlaceOfTheTemporaryCardStays) {
    fs::create_directory(dataFile("$$Tempcard.zev"));
    start();
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_TRUE(fs::exists(dataFile("$$Tempcard.zev")));
}

TEST_F(FormLoadFailures, ABadCardOnTheCommandLineIsTracedAndTheProgramRuns) {
    announceError("Error in GetCardFile");
    writeCard("Bad", "'Program version: 2.0.0\r\n\"a\",\"b\"\r\nxyz\r\n");
    start("Bad.zev");
    EXPECT_TRUE(form.P1.Visible);
    EXPECT_EQ(form.ActiveControl, &form.P1);
}

} // namespace
} // namespace zev::test
