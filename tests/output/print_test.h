// The real form with jobs: a page file for "Print to PDF", and what it holds.
#pragma once

#include <filesystem>
#include <string>

#include "app/layouts.h"
#include "support/form_test.h"
#include "support/pdf_content.h"
#include "support/printed_page.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/print/printer.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {

constexpr float points = 72; ///< per inch

class PrintTest : public FormTest {
  protected:
    PrintTest() {
        writeLayout(fewFields());
        // Otherwise the time stamp could change between two looks at the card.
        toolkit::overrideClock(1795000000);
    }

    /// A card with a mark and a text, changed and unsaved.
    void startWithContent() {
        start();
        clickMark(1);
        clickText(1);
        toolkit::test::typeText("a ^h & more");
        toolkit::test::typeKey(27);
    }
    /// A laser printer whose printable page is `width` inches wide.
    static toolkit::Printer laser(float width, float height = 10.5F) {
        toolkit::Printer printer;
        printer.DeviceName = "Laser";
        printer.hdc = 7;
        printer.PixelsPerInchX = printer.PixelsPerInchY = 600;
        constexpr float margin = 0.25F;
        printer.Papers = {{.code = 1,
                           .name = "Test",
                           .keyword = "test",
                           .width = width + 2 * margin,
                           .height = height + 2 * margin,
                           .sideMargin = margin,
                           .endMargin = margin}};
        toolkit::layOutPage(printer, 1, toolkit::Orientation::Portrait);
        return printer;
    }
    /// As "Print to PDF", but with this printable page.
    static toolkit::Printer pdfWithPage(float width, float height = 10.5F) {
        toolkit::Printer printer = laser(width, height);
        printer.DeviceName = std::string(toolkit::printToPdfName);
        return printer;
    }
    /// Prints by the menu into a file and says what is in it.
    PrintedPage print(std::string_view item = "File>Print card") {
        const auto file = home / "page.pdf";
        answerFile(file);
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        EXPECT_TRUE(std::filesystem::exists(file));
        return std::filesystem::exists(file) ? pageIn(file) : PrintedPage{};
    }
    [[nodiscard]] int count(std::string_view line) const {
        int found = 0;
        for (const auto& text : traceLines()) found += text == line ? 1 : 0;
        return found;
    }
    /// After a job that failed: the card is as startWithContent has left it.
    void expectUnharmed() const {
        EXPECT_FALSE(form.Printing);
        EXPECT_TRUE(form.P1.Visible);
        EXPECT_FALSE(form.P2.Visible);
        EXPECT_TRUE(form.MenusEnabled);
        EXPECT_EQ(form.MousePointer, toolkit::MousePointer::Default);
        EXPECT_TRUE(form.AMark[1].Visible);
        EXPECT_FALSE(form.AMark[2].Visible);
        EXPECT_EQ(form.AText[1].Tag, "a ^h && more");
        EXPECT_TRUE(form.CardModified);
        EXPECT_EQ(form.CardName, "");
        EXPECT_EQ(form.P1.Width, 1198 * 15);
        EXPECT_EQ(form.ZoomLevel, 5);
        EXPECT_FALSE(std::filesystem::exists(dataFile("$$TempDef.Ini")));
        EXPECT_FALSE(std::filesystem::exists(dataFile("$$Tempcard.zev")));
    }
    /// The part of the options file that a player sets.
    [[nodiscard]] std::string settings() const {
        const std::string content = dataFileContent("ZEV.Ini");
        return content.substr(0, content.find("' Environment"));
    }
};

} // namespace zev::test
