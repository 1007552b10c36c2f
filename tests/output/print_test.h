// The real form with jobs: a page file for "Print to PDF", and what it holds.
#pragma once

#include <filesystem>
#include <regex>
#include <string>

#include "app/layouts.h"
#include "support/form_test.h"
#include "support/pdf_content.h"
#include "toolkit/base/clock.h"
#include "toolkit/base/files.h"
#include "toolkit/print/printer.h"
#include "toolkit/testing/test_keys.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {

/// What a page file says of its page and the card on it, in points.
struct PrintedPage {
    float pageWidth = 0;
    float pageHeight = 0;
    float width = 0;
    float height = 0;
    float left = 0;
    float foot = 0; ///< from the page's foot to the card's
    int pictures = 0;
    int pixelsAcross = 0;
    int pixelsDown = 0;
};

/// The card's size at full scale, in pixels.
constexpr int cardWidth = 2396;
constexpr int cardHeight = 2488;

inline PrintedPage pageIn(const std::filesystem::path& file) {
    const std::string content = unpackedPdf(toolkit::readFile(file));
    PrintedPage page;
    std::smatch found;
    const std::string number = R"(([-0-9.]+)\s)";
    if (std::regex_search(content, found,
                          std::regex(R"(MediaBox \[0 0 )" + number + R"(([-0-9.]+)\])"))) {
        page.pageWidth = std::stof(found[1]);
        page.pageHeight = std::stof(found[2]);
    }
    for (auto at = content.find("/Subtype /Image"); at != std::string::npos;
         at = content.find("/Subtype /Image", at + 1)) {
        const std::string image = content.substr(at);
        std::regex_search(image, found, std::regex(R"(/Width (\d+)\s/Height (\d+)\s)"));
        page.pixelsAcross = std::stoi(found[1]);
        page.pixelsDown = std::stoi(found[2]);
        ++page.pictures;
    }
    // The page's own matrix, from dots to points, then the card's, from its pixels to dots.
    const std::string matrix = number + "0 0 " + number + number + number + "cm";
    if (std::regex_search(content, found, std::regex(matrix))) {
        const float dot = std::stof(found[1]);
        const std::string rest = found.suffix();
        std::regex_search(rest, found, std::regex(matrix));
        const float across = static_cast<float>(page.pictures > 0 ? page.pixelsAcross : cardWidth);
        const float down = static_cast<float>(page.pictures > 0 ? page.pixelsDown : cardHeight);
        page.width = std::stof(found[1]) * across * dot;
        page.height = std::stof(found[2]) * down * dot;
        page.left = std::stof(found[3]) * dot;
        page.foot = page.pageHeight - std::stof(found[4]) * dot - page.height;
    }
    return page;
}

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
