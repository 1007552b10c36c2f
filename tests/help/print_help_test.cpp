#include "help/help_page.h"

#include "output/print_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_controls.h"
#include "toolkit/testing/test_mouse.h"
#include "toolkit/testing/test_note.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

/// The program with its help open.
class PrintHelp : public PrintTest {
  protected:
    void open() {
        start();
        toolkit::test::typeKey(toolkit::key::f1);
        ASSERT_TRUE(form.THelp.Visible);
        form.Trace.clear();
    }
    void press(int row, int button) {
        const auto point = toolkit::test::pointOnRow(form.THelp, row);
        toolkit::test::click(point.x, point.y, button);
    }
    /// Prints by a right click.
    void print(int row = 0) {
        answerFile(file);
        press(row, toolkit::button::right);
    }

    const fs::path file = home / "help.pdf";
};

#ifndef _WIN32
/// What stands on each page, as a reader program finds it.
std::vector<std::string> pagesOf(const fs::path& file) {
    std::vector<std::string> pages;
    std::istringstream words(wordsOfPdf(file));
    for (std::string page; std::getline(words, page, '\f');) pages.push_back(page);
    return pages;
}

/// Blanks in a row count as one, for that is how a reader program takes them.
std::string withoutBlanks(std::string text) {
    std::erase_if(text, [](char character) { return character == ' ' || character == '\n'; });
    return text;
}

TEST_F(PrintHelp, ARightClickPrintsTheWholePageAsText) {
    open();
    print();
    const auto pages = pagesOf(file);
    ASSERT_GE(pages.size(), 3U);
    EXPECT_TRUE(pages[0].starts_with("How To Use the Zevlin (Version " + form.ProgramVersion + ")"))
        << pages[0];
    std::string all;
    for (const auto& page : pages) all += withoutBlanks(page);
    std::size_t from = 0;
    for (const auto& line : form.THelp.List) {
        if (line.starts_with("(To close") || line.starts_with('_')) continue;
        const auto at = all.find(withoutBlanks(line), from);
        ASSERT_NE(at, std::string::npos) << line;
        from = at;
    }
}

TEST_F(PrintHelp, TheCopyHoldsNoLineThatTellsHowToCloseTheWindow) {
    open();
    print();
    EXPECT_EQ(wordsOfPdf(file).find("To close"), std::string::npos);
}

TEST_F(PrintHelp, TheDesignChapterBeginsAPage) {
    open();
    print();
    const auto pages = pagesOf(file);
    const auto chapter = std::ranges::find_if(pages, [](const auto& page) {
        return page.find("CHANGING THE CARD LAYOUT") != std::string::npos;
    });
    ASSERT_NE(chapter, pages.end());
    EXPECT_TRUE(chapter->starts_with("CHANGING THE CARD LAYOUT")) << *chapter;
    ASSERT_NE(chapter, pages.begin());
    EXPECT_NE((chapter - 1)->find("(End of normal instructions)"), std::string::npos);
}

/// The least or the largest value of a coordinate over all words of the file, in points.
template <typename Choose>
float extremeOf(const fs::path& file, const std::string& coordinate, Choose choose) {
    const std::string boxes = outputOf("pdftotext -bbox '" + file.string() + "' -");
    std::optional<float> extreme;
    for (auto word = boxes.find("<word "); word != std::string::npos;
         word = boxes.find("<word ", word + 1)) {
        const float value = numbersAfter(boxes, coordinate + "=\"", word).at(0);
        extreme = extreme ? choose(*extreme, value) : value;
    }
    return extreme.value_or(-1);
}
float least(float one, float other) { return std::min(one, other); }
float largest(float one, float other) { return std::max(one, other); }

TEST_F(PrintHelp, TheTextKeepsHalfAnInchFromThePapersEdges) {
    open();
    for (const float printable : {8.5F, 8.0F, 7.0F}) {
        auto printer = pdfWithPage(printable);
        if (printable > 8.1F) {
            printer.PhysicalOffsetX = printer.PhysicalOffsetY = 0;
            printer.ScaleWidth = printer.Width;
            printer.ScaleHeight = printer.Height;
        }
        form.CurrentPrinter = printer;
        print();
        const PrintedPage page = pageIn(file);
        constexpr float margin = points / 2;
        EXPECT_NEAR(extremeOf(file, "xMin", least), margin, 1);
        EXPECT_NEAR(extremeOf(file, "xMax", largest), page.pageWidth - margin, 2);
        EXPECT_GE(extremeOf(file, "yMin", least), margin - 1);
        EXPECT_LE(extremeOf(file, "yMax", largest), page.pageHeight - margin + 1);
    }
}

TEST_F(PrintHelp, ASmallPageGetsSmallLettersSoThatNoLineRunsOffIt) {
    open();
    form.CurrentPrinter = pdfWithPage(4, 5);
    print();
    EXPECT_EQ(pageIn(file).pageWidth, 4.5F * points);
    // What lies beyond a page isn't found.
    const std::string words = wordsOfPdf(file);
    for (const char* end : {"They toggle and are on the right-click popup menu.",
                            "the program will discard unsaved design changes."})
        EXPECT_NE(words.find(end), std::string::npos) << end;
}
#endif

TEST_F(PrintHelp, AnyLineCanBeClickedAndNothingElseHappens) {
    open();
    print(7);
    EXPECT_TRUE(fs::exists(file));
    EXPECT_TRUE(form.THelp.Visible);
    EXPECT_EQ(form.THelp.ListIndex, 1);
    EXPECT_EQ(form.ActiveControl, &form.THelp);
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(traced("Thelp_MouseDown"));
}

TEST_F(PrintHelp, ARightClickOnALinkPrintsAndOpensNothing) {
    open();
    form.THelp.ListIndex = form.WebsiteLine;
    window->update();
    print(form.WebsiteLine);
    EXPECT_TRUE(fs::exists(file));
    EXPECT_TRUE(launched.empty());
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(PrintHelp, ANoteTellsTheFileAndGoesWithTheNextOne) {
    open();
    print();
    EXPECT_EQ(toolkit::test::shownNote().text, "Written: help.pdf");
    print();
    EXPECT_EQ(toolkit::test::shownNote().text, "Written: help.pdf");
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(PrintHelp, AnotherButtonPrintsNothing) {
    open();
    press(3, toolkit::button::left);
    press(4, toolkit::button::middle);
    EXPECT_TRUE(fileQuestions.empty());
    EXPECT_EQ(count("Thelp_MouseDown"), 2);
}

TEST_F(PrintHelp, TheFileIsOfferedBesideTheCards) {
    open();
    print();
    ASSERT_EQ(fileQuestions.size(), 1U);
    EXPECT_EQ(fileQuestions[0].preset, dataFolder / "How To Use the Zevlin.pdf");
}

TEST_F(PrintHelp, IfThePlayerCancelsNothingIsPrintedAndAllIsWell) {
    open();
    answerFile({});
    press(0, toolkit::button::right);
    EXPECT_FALSE(fs::exists(file));
    EXPECT_FALSE(form.PrinterDC.isOpen());
    EXPECT_TRUE(form.THelp.Visible);
    print();
    EXPECT_TRUE(fs::exists(file));
}

TEST_F(PrintHelp, AFailureOfThePrinterIsOnlyTraced) {
    open();
    announceError("Error in THelp_MouseDown: #482");
    form.CurrentPrinter.hdc = 0;
    press(0, toolkit::button::right);
    EXPECT_TRUE(traced("Error in THelp_MouseDown: #482, Printer error"));
    EXPECT_TRUE(boxes.empty());
    EXPECT_TRUE(form.THelp.Visible);
}

TEST_F(PrintHelp, AFileThatCannotBeWrittenIsOnlyTraced) {
    open();
    announceError("Error in THelp_MouseDown: #");
    const fs::path away = home / "away";
    fs::create_directory(away);
    answerFile(away);
    press(0, toolkit::button::right);
    EXPECT_FALSE(form.PrinterDC.isOpen());
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
