// The form in which the player chooses a printer where the system has no dialog of its own for
// that.
#include <optional>

#include "fixture.h"
#include "toolkit/print/print_dialog.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_dialogs.h"

namespace window_test {
namespace {

using namespace toolkit;
using test::DialogDriver;

enum List { Printers, Papers, Trays, PaperTypes, Qualities, Inks };

Printer printerCalled(const char* name) {
    Printer printer;
    printer.DeviceName = name;
    printer.hdc = 3;
    printer.PixelsPerInchX = printer.PixelsPerInchY = 600;
    printer.Papers = {{1, "Letter", "letter", 8.5F, 11, 0.25F, 0.25F},
                      {9, "A4", "a4", 8.27F, 11.69F, 0.25F, 0.25F}};
    layOutPage(printer, 1, Orientation::Portrait);
    return printer;
}

Printer office() {
    Printer printer = printerCalled("Office");
    printer.Trays = {{1, "Upper", "upper"}, {2, "Lower", "lower"}};
    printer.PaperTypes = {{1, "Plain", "stationery"}, {2, "Glossy", "glossy"}};
    printer.Qualities = {{3, "Draft", "3"}, {5, "High", "5"}};
    return printer;
}

/// Without colour, trays and the rest, and never turned.
Printer plain() {
    Printer printer = printerCalled("Plain");
    printer.Papers.erase(printer.Papers.begin());
    layOutPage(printer, 9, Orientation::Portrait);
    printer.ColorMode = 1;
    printer.CanTurn = false;
    return printer;
}

class PrintForm : public WindowTest {
  protected:
    PrintForm() { overridePrinters({office(), plain()}); }
    ~PrintForm() override { overridePrinters({}); }

    /// What comes of it when the player, with that printer set up, does this in the form.
    static std::optional<Printer> setUp(const Printer& present,
                                        std::function<void(DialogDriver&)> act) {
        test::driveNextDialog(std::move(act));
        return setUpOnScreen(present);
    }
    static Printer accepted(const Printer& present, std::function<void(DialogDriver&)> act) {
        return setUp(present,
                     [&](DialogDriver& dialog) {
                         act(dialog);
                         dialog.press("OK");
                     })
            .value_or(Printer{});
    }
};

TEST_F(PrintForm, ShowsThePrintersAndWhatTheOneInForceOffers) {
    const auto chosen = setUp(office(), [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.title(), "Printer Setup");
        EXPECT_EQ(dialog.listRows(Printers), (Log{"Office", "Plain", "Print to PDF"}));
        EXPECT_EQ(dialog.chosen(Printers), "Office");
        EXPECT_EQ(dialog.listRows(Papers), (Log{"Letter", "A4"}));
        EXPECT_EQ(dialog.listRows(Trays), (Log{"Automatic", "Upper", "Lower"}));
        EXPECT_EQ(dialog.listRows(PaperTypes), (Log{"Automatic", "Plain", "Glossy"}));
        EXPECT_EQ(dialog.listRows(Qualities), (Log{"Automatic", "Draft", "High"}));
        EXPECT_EQ(dialog.listRows(Inks), (Log{"Color", "Grayscale"}));
        for (const int choice : {Trays, PaperTypes, Qualities})
            EXPECT_EQ(dialog.chosen(choice), "Automatic");
        EXPECT_EQ(dialog.number("Copies"), 1);
        EXPECT_TRUE(dialog.isOn("Portrait"));
        dialog.press("Cancel");
    });
    EXPECT_FALSE(chosen);
}

TEST_F(PrintForm, WhatIsChosenIsHandedBackAndShownTheNextTime) {
    const Printer chosen = accepted(office(), [](DialogDriver& dialog) {
        for (const int choice : {Papers, Inks}) dialog.choose(choice, 1);
        for (const int choice : {Trays, PaperTypes, Qualities}) dialog.choose(choice, 2);
        dialog.setNumber("Copies", 3);
        dialog.turnOn("Landscape");
    });
    EXPECT_EQ(chosen.DeviceName, "Office");
    EXPECT_EQ(chosen.PaperSize, 9);
    EXPECT_EQ(chosen.PhysicalWidth, 7014);
    EXPECT_EQ(chosen.Orientation, 2);
    EXPECT_EQ(chosen.PaperBin, 2);
    EXPECT_EQ(chosen.PaperType, 2);
    EXPECT_EQ(chosen.Quality, 5);
    EXPECT_EQ(chosen.Copies, 3);
    EXPECT_EQ(chosen.ColorMode, 1);
    const Printer again = accepted(chosen, [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.chosen(Papers), "A4");
        EXPECT_EQ(dialog.chosen(Trays), "Lower");
        EXPECT_EQ(dialog.chosen(PaperTypes), "Glossy");
        EXPECT_EQ(dialog.chosen(Qualities), "High");
        EXPECT_EQ(dialog.chosen(Inks), "Grayscale");
        EXPECT_EQ(dialog.number("Copies"), 3);
        EXPECT_TRUE(dialog.isOn("Landscape"));
        for (const int choice : {Trays, PaperTypes, Qualities, Inks}) dialog.choose(choice, 0);
    });
    EXPECT_EQ(again.Orientation, 2);
    EXPECT_EQ(again.PaperBin, 0);
    EXPECT_EQ(again.PaperType, 0);
    EXPECT_EQ(again.Quality, 0);
    EXPECT_EQ(again.ColorMode, 2);
}

TEST_F(PrintForm, AnotherPrinterOffersItsOwnAndKeepsTheCopies) {
    const Printer chosen = accepted(office(), [](DialogDriver& dialog) {
        dialog.setNumber("Copies", 2);
        dialog.turnOn("Landscape");
        dialog.choose(Printers, 1);
        EXPECT_EQ(dialog.listRows(Papers), Log{"A4"});
        EXPECT_EQ(dialog.chosen(Inks), "Grayscale");
        for (const int choice : {Trays, PaperTypes, Qualities, Inks}) {
            EXPECT_FALSE(dialog.isListEnabled(choice));
        }
        EXPECT_FALSE(dialog.isEnabled("Portrait"));
        EXPECT_TRUE(dialog.isNumberEnabled("Copies"));
    });
    EXPECT_EQ(chosen.DeviceName, "Plain");
    EXPECT_EQ(chosen.PaperSize, 9);
    EXPECT_EQ(chosen.Orientation, 1);
    EXPECT_EQ(chosen.Copies, 2);
    EXPECT_EQ(chosen.ColorMode, 1);
}

TEST_F(PrintForm, AColorPrinterPrintsInColorAfterOneWithout) {
    const Printer chosen = accepted(plain(), [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.chosen(Inks), "Grayscale");
        dialog.choose(Printers, 0);
        EXPECT_EQ(dialog.chosen(Inks), "Color");
        EXPECT_TRUE(dialog.isListEnabled(Inks));
    });
    EXPECT_EQ(chosen.ColorMode, 2);
}

TEST_F(PrintForm, AFileHasPaperAndDirectionButNoCopies) {
    const Printer chosen = accepted(office(), [](DialogDriver& dialog) {
        dialog.setNumber("Copies", 4);
        EXPECT_TRUE(dialog.choose(printToPdfName));
        EXPECT_FALSE(dialog.isNumberEnabled("Copies"));
        EXPECT_FALSE(dialog.isListEnabled(Trays));
        EXPECT_FALSE(dialog.isListEnabled(Inks));
        EXPECT_TRUE(dialog.choose("A4"));
        dialog.turnOn("Landscape");
    });
    EXPECT_EQ(chosen.DeviceName, printToPdfName);
    EXPECT_EQ(chosen.PaperSize, 9);
    EXPECT_EQ(chosen.Orientation, 2);
    EXPECT_EQ(chosen.Copies, 1);
    EXPECT_EQ(chosen.ColorMode, 2);
}

TEST_F(PrintForm, APrinterThatIsGoneMakesRoomForTheDefaultOne) {
    const Printer chosen = accepted(printerCalled("Gone"), [](DialogDriver& dialog) {
        EXPECT_EQ(dialog.chosen(Printers), "Office");
        EXPECT_EQ(dialog.listRows(Trays), (Log{"Automatic", "Upper", "Lower"}));
    });
    EXPECT_EQ(chosen.DeviceName, "Office");
}

TEST_F(PrintForm, ClosingItChangesNothing) {
    test::ShownDialog seen;
    test::endNextDialog(seen);
    EXPECT_FALSE(setUpOnScreen(office()));
    EXPECT_EQ(seen.title, "Printer Setup");
}

} // namespace
} // namespace window_test
