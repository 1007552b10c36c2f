#include "form/printer_facts.h"

#include "support/form_test.h"
#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"

namespace zev::test {
namespace {

class PrinterFactsOfTheForm : public FormTest {
  protected:
    static toolkit::Printer office() {
        toolkit::Printer printer = toolkit::defaultPrinter();
        printer.DeviceName = "Office";
        printer.hdc = 7;
        printer.PixelsPerInchX = 300;
        printer.PixelsPerInchY = 150;
        printer.PhysicalOffsetX = 75;
        printer.PhysicalOffsetY = 30;
        printer.PhysicalWidth = 2550;
        printer.PhysicalHeight = 1650;
        printer.ColorMode = 1;
        return printer;
    }
    int step = 2000;
};

TEST_F(PrinterFactsOfTheForm, TheDefaultPrinterIsTakenAtStart) {
    toolkit::overridePrinters({office()});
    start();
    EXPECT_EQ(form.Myprinter.hdc, 7);
    EXPECT_EQ(form.Myprinter.Devicename, "Office");
    EXPECT_EQ(form.Myprinter.PixPerInchx, 300);
    EXPECT_EQ(form.Myprinter.PixPerInchY, 150);
    EXPECT_EQ(form.Myprinter.OffsetX, 75);
    EXPECT_EQ(form.Myprinter.OffsetY, 30);
    EXPECT_TRUE(inputs.empty());
}

TEST_F(PrinterFactsOfTheForm, ThePageIsItsPrintablePart) {
    toolkit::overridePrinters({office()});
    takeDefaultPrinter(form, step);
    EXPECT_FLOAT_EQ(form.Myprinter.PageWidthInches, 8);
    EXPECT_FLOAT_EQ(form.Myprinter.PageHeightInches, 1590.0F / 150);
    EXPECT_EQ(step, 2010);
}

TEST_F(PrinterFactsOfTheForm, APrinterInColourHasTwentyFourBitsAndOneWithoutHasEight) {
    toolkit::Printer printer = office();
    toolkit::overridePrinters({printer});
    takeDefaultPrinter(form, step);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 8);
    printer.ColorMode = 2;
    toolkit::overridePrinters({printer});
    takeDefaultPrinter(form, step);
    EXPECT_EQ(form.Myprinter.BitsPerPixel, 24);
}

TEST_F(PrinterFactsOfTheForm, WithoutADeviceContextNothingIsTaken) {
    toolkit::overridePrinters({office()});
    toolkit::overrideNoPrinter(true);
    takeDefaultPrinter(form, step);
    EXPECT_EQ(form.Myprinter.hdc, 0);
    EXPECT_EQ(form.Myprinter.Devicename, "");
    EXPECT_EQ(form.Myprinter.PageWidthInches, 0);
    EXPECT_EQ(step, 2000);
}

TEST_F(PrinterFactsOfTheForm, AskingTheSystemIsPutOffUntilSomethingNeedsThem) {
    toolkit::overridePrinters({});
    start();
    EXPECT_TRUE(form.PrinterPending);
    EXPECT_NE(form.Myprinter.hdc, 0);
    EXPECT_EQ(form.Myprinter.PixPerInchx, 0);
    takePendingPrinter(form);
    EXPECT_FALSE(form.PrinterPending);
    EXPECT_GT(form.Myprinter.PixPerInchx, 0);
    EXPECT_FALSE(form.Myprinter.Devicename.empty());
}

TEST_F(PrinterFactsOfTheForm, TheEndLetsThePrinterGo) {
    start();
    EXPECT_NE(form.Myprinter.hdc, 0);
    EXPECT_FALSE(form.QueryClose());
    EXPECT_EQ(form.Myprinter.hdc, 0);
}

TEST_F(PrinterFactsOfTheForm, APrinterWithoutAResolutionIsNoDivisionByZero) {
    toolkit::Printer printer = office();
    printer.PixelsPerInchX = printer.PixelsPerInchY = 0;
    toolkit::overridePrinters({printer});
    takeDefaultPrinter(form, step);
    EXPECT_EQ(form.Myprinter.PageWidthInches, 0);
    EXPECT_EQ(form.Myprinter.PageHeightInches, 0);
}

} // namespace
} // namespace zev::test
