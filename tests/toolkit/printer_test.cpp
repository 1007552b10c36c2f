#include "toolkit/printer.h"

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
    EXPECT_EQ(installedPrinters().back().DeviceName, "Print to PDF");
    EXPECT_NE(defaultPrinter().hdc, 0);
}

TEST_F(Printers, PrintToPdfTakesALetterSheetAt600Dots) {
    const Printer printer = installedPrinters().back();
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
    overridePrinters({Printer{.DeviceName = "Laser", .hdc = 7}});
    const auto printers = installedPrinters();
    ASSERT_EQ(printers.size(), 2U);
    EXPECT_EQ(printers[0].DeviceName, "Laser");
    EXPECT_EQ(printers[1].DeviceName, "Print to PDF");
    EXPECT_EQ(defaultPrinter().DeviceName, "Laser");
}

TEST_F(Printers, AMachineWithoutPrinterHasNoDeviceContext) {
    overrideNoPrinter(true);
    EXPECT_EQ(defaultPrinter().hdc, 0);
    overrideNoPrinter(false);
    EXPECT_NE(defaultPrinter().hdc, 0);
}

} // namespace
} // namespace toolkit
