#include "toolkit/print/printers.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include <QtCore/QByteArray>
#include <gtest/gtest.h>

namespace toolkit {
namespace {

class Printers : public testing::Test {
  protected:
    void TearDown() override {
        overridePrinters({});
        overrideNoPrinter(false);
        overridePlace({});
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

TEST_F(Printers, PaperOfPrintToPdfIsThatOfThePlayersPlace) {
    overridePlace("de_DE");
    EXPECT_EQ(printerNamed(printToPdfName).PaperSize, 9);
    overridePlace("en_CA");
    EXPECT_EQ(printerNamed(printToPdfName).PaperSize, 1);
}

#ifndef _WIN32

/// The variables by which the player's desktop tells where it is.
class PaperOfThePlace : public testing::Test {
  protected:
    PaperOfThePlace() {
        for (const char* name : names) {
            before_.push_back(qgetenv(name));
            qunsetenv(name);
        }
    }
    ~PaperOfThePlace() override {
        for (std::size_t i = 0; i < names.size(); ++i) qputenv(names[i], before_[i]);
    }
    PaperOfThePlace(const PaperOfThePlace&) = delete;
    PaperOfThePlace& operator=(const PaperOfThePlace&) = delete;

    static std::string paper() {
        const Printer printer = printerNamed(printToPdfName);
        return std::ranges::find(printer.Papers, printer.PaperSize, &Paper::code)->name;
    }
    static constexpr std::array names{"LC_ALL", "LC_PAPER", "LANG"};

  private:
    std::vector<QByteArray> before_;
};

TEST_F(PaperOfThePlace, IsLetterInNorthAmericaAndA4Elsewhere) {
    EXPECT_EQ(paper(), "A4");
    for (const auto& [locale, sheet] :
         {std::pair("en_US.UTF-8", "Letter"), std::pair("fr_CA", "Letter"),
          std::pair("es_MX.utf8", "Letter"), std::pair("es_US@euro", "Letter"),
          std::pair("de_DE.UTF-8", "A4"), std::pair("en_GB", "A4"), std::pair("de_CH@euro", "A4"),
          std::pair("C.UTF-8", "A4"), std::pair("us_DE", "A4"), std::pair("en", "A4")}) {
        qputenv("LANG", locale);
        EXPECT_EQ(paper(), sheet) << locale;
    }
}

TEST_F(PaperOfThePlace, IsToldByTheVariableForPaperBeforeTheGeneralOne) {
    qputenv("LANG", "en_US.UTF-8");
    qputenv("LC_PAPER", "de_DE.UTF-8");
    EXPECT_EQ(paper(), "A4");
    qputenv("LC_ALL", "en_CA.UTF-8");
    EXPECT_EQ(paper(), "Letter");
}

#endif

} // namespace
} // namespace toolkit
