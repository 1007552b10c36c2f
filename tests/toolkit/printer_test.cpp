#include "toolkit/print/printer.h"
#include "toolkit/print/printers.h"

#include <gtest/gtest.h>

namespace toolkit {
namespace {

class Printers : public testing::Test {
  protected:
    void TearDown() override {
        overridePrinters({});
        overrideNoPrinter(false);
    }
};

TEST_F(Printers, ThereIsAlwaysPrintToPdf) {
    EXPECT_EQ(printerNames().back(), "Print to PDF");
    EXPECT_NE(defaultPrinter().hdc, 0);
}

TEST_F(Printers, PrintToPdfTakesALetterSheetAt600Dots) {
    const Printer printer = printerNamed(printToPdfName);
    EXPECT_EQ(printer.PixelsPerInchX, 600);
    EXPECT_EQ(printer.PixelsPerInchY, 600);
    EXPECT_EQ(printer.PhysicalWidth, 5100);
    EXPECT_EQ(printer.PhysicalHeight, 6600);
    EXPECT_EQ(printer.Width, 12240);
    EXPECT_EQ(printer.Height, 15840);
    EXPECT_FLOAT_EQ(printer.TwipsPerPixelX, 2.4F);
    EXPECT_EQ(printer.PhysicalOffsetX, 0);
    EXPECT_EQ(printer.ColorMode, 2);
}

TEST_F(Printers, PrintersOfTheSystemStandBeforeIt) {
    Printer laser;
    laser.DeviceName = "Laser";
    laser.hdc = 7;
    overridePrinters({laser});
    EXPECT_EQ(printerNames(), (std::vector<std::string>{"Laser", "Print to PDF"}));
    EXPECT_EQ(printerNamed("Laser").hdc, 7);
    EXPECT_EQ(printerNamed("Gone").hdc, 0);
    EXPECT_EQ(defaultPrinter().DeviceName, "Laser");
}

TEST_F(Printers, APageOnItsSideChangesPlacesWithItsMargins) {
    Printer printer;
    printer.PixelsPerInchX = 300;
    printer.PixelsPerInchY = 600;
    Paper paper;
    paper.code = 3;
    paper.width = 8;
    paper.height = 10;
    paper.sideMargin = 0.25F;
    paper.endMargin = 0.5F;
    printer.Papers = {paper};
    layOutPage(printer, 3, Orientation::Landscape);
    EXPECT_EQ(printer.PhysicalWidth, 3000);
    EXPECT_EQ(printer.PhysicalHeight, 4800);
    EXPECT_EQ(printer.PhysicalOffsetX, 150);
    EXPECT_EQ(printer.PhysicalOffsetY, 150);
    EXPECT_FLOAT_EQ(printer.ScaleWidth, 9 * 1440);
    EXPECT_FLOAT_EQ(printer.ScaleHeight, 7.5F * 1440);
    EXPECT_FLOAT_EQ(printer.TwipsPerPixelX, 4.8F);
    EXPECT_FLOAT_EQ(printer.TwipsPerPixelY, 2.4F);
    EXPECT_EQ(printer.Orientation, 2);
    EXPECT_EQ(printer.PaperSize, 3);
}

TEST_F(Printers, APaperThatIsntThereChangesNothing) {
    Printer printer = printerNamed(printToPdfName);
    layOutPage(printer, 77, Orientation::Landscape);
    EXPECT_EQ(printer.Orientation, 1);
    EXPECT_EQ(printer.PhysicalWidth, 5100);
}

TEST_F(Printers, AMachineWithoutPrinterHasNoDeviceContext) {
    overrideNoPrinter(true);
    EXPECT_EQ(defaultPrinter().hdc, 0);
    overrideNoPrinter(false);
    EXPECT_NE(defaultPrinter().hdc, 0);
}

} // namespace
} // namespace toolkit
