#include "toolkit/print/printer.h"

#include <gtest/gtest.h>

#include "toolkit/print/printers.h"

namespace toolkit {
namespace {

/// "Print to PDF" takes a sheet of letter size.
class PrinterFacts : public testing::Test {
  protected:
    PrinterFacts() { overridePlace("en_US"); }
    ~PrinterFacts() override { overridePlace({}); }
    PrinterFacts(const PrinterFacts&) = delete;
    PrinterFacts& operator=(const PrinterFacts&) = delete;
};

TEST_F(PrinterFacts, PrintToPdfTakesALetterSheetAt600Dots) {
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

TEST_F(PrinterFacts, APageOnItsSideChangesPlacesWithItsMargins) {
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

TEST_F(PrinterFacts, APaperThatIsntThereChangesNothing) {
    Printer printer = printerNamed(printToPdfName);
    layOutPage(printer, 77, Orientation::Landscape);
    EXPECT_EQ(printer.Orientation, 1);
    EXPECT_EQ(printer.PhysicalWidth, 5100);
}

} // namespace
} // namespace toolkit
