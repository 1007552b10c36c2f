#include "app/unload.h"

#include <algorithm>

#include "app/layouts.h"
#include "card/write_card.h"
#include "form/write_options.h"
#include "layout/write_layout.h"
#include "toolkit/base/key.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_menus.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

class Unload : public FormTest {
  protected:
    ~Unload() override { toolkit::answerPrinterSetupWith({}); }

    static toolkit::Printer printer(const char* name) {
        toolkit::Printer printer = toolkit::printerNamed(toolkit::printToPdfName);
        printer.DeviceName = name;
        return printer;
    }
    /// The player goes through the printer set-up, in which the system makes another printer the
    /// default one.
    void setUpWithNewDefault(const char* name) {
        toolkit::answerPrinterSetupWith([name](const toolkit::Printer& present) {
            toolkit::setDefaultPrinter(name);
            return present;
        });
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Printer Setup..."));
    }
    /// How far a notch of the wheel moves the card.
    float moveOfWheel() {
        const float before = form.P1.Top;
        toolkit::test::turnWheel(-120);
        return form.P1.Top - before;
    }
    /// The line's index in the trace; beyond the last one if it isn't there.
    [[nodiscard]] std::ptrdiff_t lineOf(std::string_view line) const {
        const auto lines = traceLines();
        return std::ranges::find(lines, line) - lines.begin();
    }
    void startChanged() {
        writeLayout(fewFields());
        start();
        clickMark(1);
        ASSERT_TRUE(form.CardModified);
    }
};

TEST_F(Unload, ClosingAnUnchangedCardAsksNothing) {
    start();
    toolkit::test::closeWindow();
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(traced("Form_Unload 0"));
}

TEST_F(Unload, RefusingToLoseChangesKeepsAllStateAndThePrinter) {
    toolkit::overridePrinters({printer("Home"), printer("Office")});
    startChanged();
    setUpWithNewDefault("Office");
    const auto handle = form.Myprinter.hdc;
    const auto file = home / "page.pdf";
    answerFile(file);
    ASSERT_TRUE(form.PrinterDC.start(toolkit::printerNamed(toolkit::printToPdfName),
                                     {.title = "Test", .filePreset = {}}));
    answer(toolkit::Answer::Cancel);
    toolkit::test::closeWindow();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(form.CardModified);
    EXPECT_TRUE(form.AMark[1].Visible);
    EXPECT_TRUE(form.Visible);
    EXPECT_NE(handle, 0);
    EXPECT_EQ(form.Myprinter.hdc, handle);
    EXPECT_TRUE(form.PrinterDC.isOpen());
    EXPECT_EQ(toolkit::defaultPrinterName(), "Office");
    EXPECT_LT(moveOfWheel(), 0);
}

TEST_F(Unload, TheChooserIsLookedAtFirstThenTheChanges) {
    startChanged();
    writeCard("Jones", "");
    answer(toolkit::Answer::No);
    answerChooser([&] {
        form.Trace.clear();
        toolkit::test::closeWindow();
        EXPECT_TRUE(form.ChooserCancelled);
        EXPECT_FALSE(traced("CheckMod False, False, False"));
        EXPECT_LT(lineOf("Form_Unload 0"), lineOf("BCancel_Click"));
    });
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Open..."));
    EXPECT_NE(form.Myprinter.hdc, 0);
    form.Trace.clear();
    toolkit::test::closeWindow();
    EXPECT_LT(lineOf("Form_Unload 0"), lineOf("CheckMod False, False, False"));
    EXPECT_EQ(form.Myprinter.hdc, 0);
}

TEST_F(Unload, ADocumentOnThePrinterIsGivenUp) {
    start();
    const auto file = home / "page.pdf";
    answerFile(file);
    ASSERT_TRUE(form.PrinterDC.start(toolkit::printerNamed(toolkit::printToPdfName),
                                     {.title = "Test", .filePreset = {}}));
    EXPECT_TRUE(fs::exists(file));
    toolkit::test::closeWindow();
    EXPECT_FALSE(form.PrinterDC.isOpen());
    EXPECT_FALSE(fs::exists(file));
}

TEST_F(Unload, OnlyThePrimaryMethodsPrinterIsLetGo) {
    writeOptions("Zoom=5\r\nPrintAlt=1\r\n");
    start();
    ASSERT_EQ(form.PrintMethod, 2);
    toolkit::test::closeWindow();
    EXPECT_NE(form.Myprinter.hdc, 0);
    form.PrintMethod = 3;
    toolkit::test::closeWindow();
    EXPECT_EQ(form.Myprinter.hdc, 0);
}

TEST_F(Unload, PutsBackTheDefaultPrinterThatTheSetUpChanged) {
    toolkit::overridePrinters({printer("Home"), printer("Office"), printer("Cellar")});
    start();
    setUpWithNewDefault("Office");
    setUpWithNewDefault("Cellar");
    EXPECT_EQ(toolkit::defaultPrinterName(), "Cellar");
    toolkit::test::closeWindow();
    EXPECT_EQ(toolkit::defaultPrinterName(), "Home");
}

TEST_F(Unload, LeavesTheDefaultPrinterAloneThatAnotherProgramChanged) {
    toolkit::overridePrinters({printer("Home"), printer("Office")});
    start();
    setUpWithNewDefault("Home");
    toolkit::setDefaultPrinter("Office");
    toolkit::test::closeWindow();
    EXPECT_EQ(toolkit::defaultPrinterName(), "Office");
}

TEST_F(Unload, ADefaultPrinterThatIsGoneIsAFailureInTheTraceAndNothingElse) {
    announceError("Error in Form_Unload: #482");
    toolkit::overridePrinters({printer("Home"), printer("Office")});
    start();
    setUpWithNewDefault("Office");
    toolkit::overridePrinters({printer("Office")});
    EXPECT_FALSE(Form_Unload(form, unloadByPlayer));
    EXPECT_TRUE(traced("Error in Form_Unload: #482, Printer error"));
}

TEST_F(Unload, TheWheelMovesTheCardUntilTheFormIsUnloaded) {
    start();
    EXPECT_LT(moveOfWheel(), 0);
    toolkit::test::closeWindow();
    EXPECT_EQ(moveOfWheel(), 0);
}

TEST_F(Unload, MenusAreExplainedUntilTheFormIsUnloaded) {
    startChanged();
    const auto isExplained = [&] {
        toolkit::test::openMenu("Options");
        toolkit::test::pointAtRow("Boldface");
        const bool isShown = form.PopHelp.Visible;
        toolkit::test::clickBesideMenus();
        return isShown;
    };
    answer(toolkit::Answer::Cancel);
    toolkit::test::closeWindow();
    EXPECT_TRUE(isExplained());
    answer(toolkit::Answer::No);
    toolkit::test::closeWindow();
    EXPECT_FALSE(isExplained());
}

TEST_F(Unload, AnEditThatIsStillOpenCountsAsAChange) {
    writeLayout(fewFields());
    start();
    clickText(1);
    toolkit::test::compose("", "kept");
    answer(toolkit::Answer::Yes);
    answerName("Jones");
    toolkit::test::closeWindow();
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_NE(dataFileContent("Jones.zev").find("\"kept\""), std::string::npos);
}

TEST_F(Unload, TheColourPanelIsCancelledBeforeTheCardIsNamed) {
    startChanged();
    ASSERT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    ASSERT_TRUE(toolkit::test::isShown(form.ColorPic));
    answer(toolkit::Answer::Yes);
    answerChooser([&] {
        EXPECT_FALSE(toolkit::test::isShown(form.ColorPic));
        EXPECT_TRUE(toolkit::test::isShown(form.P3));
        toolkit::test::typeKey(toolkit::key::escape);
    });
    toolkit::test::closeWindow();
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_TRUE(form.mcolorscheme[0].Checked);
    EXPECT_FALSE(form.mcolorscheme[1].Checked);
    EXPECT_TRUE(toolkit::test::isShown(form.P1));
}

TEST_F(Unload, AColourThatIsBeingChosenIsGivenUpWithTheProgram) {
    start();
    ASSERT_TRUE(toolkit::test::chooseMenu("Options>Color Management>Custom..."));
    toolkit::test::closeWindow();
    EXPECT_TRUE(traced("ColorBut_Click"));
    EXPECT_NE(dataFileContent("ZEV.Ini").find("ColorScheme=0"), std::string::npos);
    EXPECT_EQ(form.Myprinter.hdc, 0);
}

TEST_F(Unload, TheEndOfTheSessionAsksAsTheWindowDoes) {
    startChanged();
    answer(toolkit::Answer::Cancel);
    toolkit::test::endSession();
    EXPECT_TRUE(traced("Form_Unload 2"));
    EXPECT_EQ(boxes.size(), 1U);
    EXPECT_TRUE(form.CardModified);
    EXPECT_NE(form.Myprinter.hdc, 0);
}

TEST_F(Unload, TheEndOfTheSessionClosesTheChooserAndGoesOn) {
    start();
    writeCard("Jones", "");
    answerChooser([] { toolkit::test::endSession(); });
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Open..."));
    EXPECT_EQ(choosers.size(), 1U);
    EXPECT_NE(form.Myprinter.hdc, 0);
    toolkit::test::settle();
    EXPECT_EQ(form.Myprinter.hdc, 0);
}

TEST_F(Unload, ClosingTheWindowAsksAboutChanges) {
    startChanged();
    answer(toolkit::Answer::Cancel);
    toolkit::test::closeWindow();
    EXPECT_EQ(boxes.size(), 1U);
    clickMark(2);
    EXPECT_TRUE(form.AMark[2].Visible);
}

TEST_F(Unload, ExitTracesTheModifiedFlagAndStaysWhenRefused) {
    startChanged();
    answer(toolkit::Answer::Cancel);
    EXPECT_EQ(exitCodeOf([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }),
              std::nullopt);
    EXPECT_TRUE(traced("MExit_Click True"));
    EXPECT_EQ(boxes.size(), 1U);
}

TEST_F(Unload, ExitWithoutSavingAsksOnceAndWritesNothing) {
    startChanged();
    answer(toolkit::Answer::No);
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_EQ(boxes.size(), 1U);
    for (const auto& entry : fs::directory_iterator(dataFolder)) {
        EXPECT_NE(entry.path().extension(), ".zev");
    }
}

TEST_F(Unload, ExitCanSaveTheCardFirst) {
    startChanged();
    answer(toolkit::Answer::Yes);
    answerName("Saved");
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_TRUE(fs::exists(dataFile("Saved.zev")));
}

TEST_F(Unload, ExitOfAnUnchangedCardUnloadsTheFormAndEnds) {
    start();
    EXPECT_TRUE(endsProgram([] { static_cast<void>(toolkit::test::chooseMenu("File>Exit")); }));
    EXPECT_TRUE(traced("MExit_Click False"));
    EXPECT_TRUE(traced("Form_Unload 1"));
}

} // namespace
} // namespace zev::test
