#include "form/write_options.h"
#include "output/print_test.h"
#include "output/printer_form.h"
#include "output/printer_setup.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_dialogs.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

using toolkit::test::DialogDriver;

class PrinterForm : public PrintTest {
  protected:
    PrinterForm() {
        writeOptions("Zoom=5\r\nPrintAlt=1\r\n");
        toolkit::overridePrinters({office(), plain()});
    }
    /// Two papers, two trays.
    static toolkit::Printer office() {
        toolkit::Printer printer = laser(8);
        printer.DeviceName = "Office";
        toolkit::Paper legal = printer.Papers.front();
        legal.code = 5;
        legal.name = "Legal";
        legal.height = 14;
        printer.Papers.push_back(legal);
        printer.Trays = {{1, "Upper", "upper"}, {2, "Lower", "lower"}};
        printer.PaperBin = 1;
        return printer;
    }
    /// One paper, no trays, always upright.
    static toolkit::Printer plain() {
        toolkit::Printer printer = laser(7);
        printer.DeviceName = "Plain";
        printer.CanTurn = false;
        printer.PaperBin = 9;
        return printer;
    }
    static void setUp(std::function<void(DialogDriver&)> act) {
        toolkit::test::driveNextDialog(std::move(act));
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Printer Setup..."));
    }
};

TEST_F(PrinterForm, ShowsThePrinterThatIsCurrent) {
    start();
    setUp([](DialogDriver& dialog) {
        EXPECT_EQ(dialog.title(), "Printer Setup");
        EXPECT_EQ(dialog.listRows(0),
                  (std::vector<std::string>{"Office", "Plain", "Print to PDF"}));
        EXPECT_EQ(dialog.chosen(0), "Office");
        EXPECT_EQ(dialog.listRows(1), (std::vector<std::string>{"Test", "Legal"}));
        EXPECT_EQ(dialog.chosen(1), "Test");
        EXPECT_EQ(dialog.listRows(2), (std::vector<std::string>{"Upper", "Lower"}));
        EXPECT_EQ(dialog.chosen(2), "Upper");
        EXPECT_EQ(dialog.labels(),
                  (std::vector<std::string>{"Printer", "Paper Size", "Paper Tray"}));
        EXPECT_TRUE(dialog.isOn("Portrait"));
        dialog.press("Cancel");
    });
    EXPECT_TRUE(traced("MPrintSetup_Click, Method=2"));
}

TEST_F(PrinterForm, OkTakesPaperTrayAndOrientation) {
    start();
    setUp([](DialogDriver& dialog) {
        dialog.choose(1, 1);
        dialog.choose(2, 1);
        dialog.turnOn("Landscape");
        dialog.press("OK");
    });
    EXPECT_EQ(form.CurrentPrinter.PaperSize, 5);
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 2);
    EXPECT_EQ(form.Myprinter.PaperBin, 2);
    EXPECT_EQ(form.CurrentPrinter.Orientation, 2);
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 13.5F);
    EXPECT_EQ(form.Myprinter.Devicename, "User selected");
    EXPECT_NE(settings().find("PaperBin=2 "), std::string::npos);
}

TEST_F(PrinterForm, TheChoicesOutliveARebuildOfTheCard) {
    start();
    setUp([](DialogDriver& dialog) {
        dialog.choose(1, 1);
        dialog.turnOn("Landscape");
        dialog.press("OK");
    });
    answerInput("");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Export Image to file as...>GIF"));
    EXPECT_EQ(form.CurrentPrinter.PaperSize, 5);
    EXPECT_EQ(form.CurrentPrinter.Orientation, 2);
}

TEST_F(PrinterForm, AnotherPrinterShowsItsOwnPapersAndTrays) {
    start();
    setUp([](DialogDriver& dialog) {
        dialog.choose(0, 1);
        EXPECT_EQ(dialog.listRows(1), (std::vector<std::string>{"Test"}));
        EXPECT_EQ(dialog.listRows(2), (std::vector<std::string>{"not applicable"}));
        EXPECT_FALSE(dialog.isEnabled("Landscape"));
        EXPECT_FALSE(dialog.isEnabled("Portrait"));
        dialog.press("OK");
    });
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Plain");
    EXPECT_EQ(form.CurrentPrinter.PaperBin, 9);
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 7);
}

TEST_F(PrinterForm, CancelKeepsThePrinterThatTheListMadeCurrent) {
    start();
    setUp([](DialogDriver& dialog) {
        dialog.choose(0, 1);
        dialog.press("Cancel");
    });
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Plain");
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 7);
}

TEST_F(PrinterForm, TypingInAListDoesNothing) {
    start();
    setUp([](DialogDriver& dialog) {
        for (int list = 0; list < 3; ++list) {
            const std::string before = dialog.chosen(list);
            dialog.typeInto(list, 'P', "p");
            dialog.typeInto(list, 40, "");
            dialog.typeInto(list, 'L', "l");
            EXPECT_EQ(dialog.chosen(list), before);
        }
        dialog.press("Cancel");
    });
    EXPECT_EQ(form.CurrentPrinter.DeviceName, "Office");
}

TEST_F(PrinterForm, EscapeAndEnterAreTheButtons) {
    start();
    setUp([](DialogDriver& dialog) {
        dialog.choose(1, 1);
        dialog.typeInto(0, 27, "");
    });
    EXPECT_EQ(form.CurrentPrinter.PaperSize, 1);
    setUp([](DialogDriver& dialog) {
        dialog.choose(1, 1);
        dialog.typeInto(0, 13, "");
    });
    EXPECT_EQ(form.CurrentPrinter.PaperSize, 5);
}

TEST_F(PrinterForm, WithoutAChosenPrinterOkBeepsAndStays) {
    start();
    frmPrint shown(form.CurrentPrinter);
    Form_Load(shown);
    shown.cbPrinter.ListIndex = -1;
    cmdOK_Click(shown);
    EXPECT_EQ(beeps, 1);
    EXPECT_FALSE(shown.form.Unloaded);
}

} // namespace
} // namespace zev::test
