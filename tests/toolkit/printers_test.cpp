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

TEST_F(Printers, AMachineWithoutPrinterHasNoDeviceContext) {
    overrideNoPrinter(true);
    EXPECT_EQ(defaultPrinter().hdc, 0);
    overrideNoPrinter(false);
    EXPECT_NE(defaultPrinter().hdc, 0);
}

TEST_F(Printers, OneThatIsAskedForByItsNameIsFoundAndAnotherIsTheDefaultOne) {
    EXPECT_EQ(printerQuestion(std::string(printToPdfName))().DeviceName, printToPdfName);
    const Printer usual = printerQuestion({})();
    EXPECT_NE(usual.hdc, 0);
    EXPECT_EQ(printerQuestion("Gone for good")().DeviceName, usual.DeviceName);
}

} // namespace
} // namespace toolkit
