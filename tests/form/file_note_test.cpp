#include "form/file_note.h"

#include "output/export_card.h"
#include "output/print_card.h"
#include "output/print_test.h"
#include "toolkit/base/key.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_drop.h"
#include "toolkit/testing/test_note.h"
#include "toolkit/testing/test_window.h"

namespace zev::test {
namespace {

class FileNote : public PrintTest {
  protected:
    static constexpr const char* png = "File>Export Partner Image to file as..>PNG";

    void exportAs(const std::string& name) {
        answerInput(name);
        EXPECT_TRUE(toolkit::test::chooseMenu(png));
    }
    static std::string text() { return toolkit::test::shownNote().text; }
};

TEST_F(FileNote, TellsThePageThatWasPrintedToAFile) {
    startWithContent();
    EXPECT_EQ(text(), "");
    print();
    EXPECT_EQ(text(), "Written: page.pdf");
    EXPECT_EQ(toolkit::test::shownNote().link, "Show in folder");
    EXPECT_EQ(toolkit::test::shownNote().toolTip, (home / "page.pdf").string());
    expectUnharmed();
}

TEST_F(FileNote, TellsThePageOfTheAlternatePrintMethod) {
    startWithContent();
    EXPECT_TRUE(toolkit::test::chooseMenu("Options>Use alternate print method"));
    print();
    EXPECT_EQ(text(), "Written: page.pdf");
}

TEST_F(FileNote, TellsAnExportedImageOfEachFormat) {
    startWithContent();
    exportAs("My image");
    EXPECT_EQ(text(), "Written: My image.png");
    for (const char* format : {"GIF", "BMP"}) {
        answerInput("Other");
        EXPECT_TRUE(
            toolkit::test::chooseMenu(std::string("File>Export Image to file as...>") + format));
        EXPECT_TRUE(text().starts_with("Written: Other.")) << text();
    }
}

TEST_F(FileNote, TellsBothFilesOfTwoCards) {
    startWithContent();
    answerFile(home / "mine.pdf");
    answerFile(home / "partner's.pdf");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print two cards"));
    EXPECT_EQ(text(), "Written: mine.pdf, partner's.pdf");
}

TEST_F(FileNote, IsntThereWhereNothingWasWritten) {
    startWithContent();
    answerFile({});
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Print card"));
    EXPECT_EQ(text(), "");
    exportAs("");
    EXPECT_EQ(text(), "");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_EQ(text(), "");
}

TEST_F(FileNote, IsntThereWhereTheFileFailed) {
    startWithContent();
    std::filesystem::create_directory(dataFile("taken.bmp"));
    announceError("Error in SaveImageToDisk: #75");
    answerInput("taken");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Export Image to file as...>BMP"));
    EXPECT_EQ(text(), "");
    std::filesystem::create_directory(dataFile("taken.png"));
    exportAs("taken");
    EXPECT_EQ(text(), "");
}

TEST_F(FileNote, ItsLinkShowsTheFileInItsFolder) {
    startWithContent();
    exportAs("My image");
    toolkit::test::clickNoteLink();
    ASSERT_EQ(launched.size(), 1U);
    EXPECT_TRUE(launched[0].ends_with("/Documents/ZEV/My image.png") ||
                launched[0].ends_with("/Documents/ZEV/My%20image.png"))
        << launched[0];
    EXPECT_EQ(text(), "");
}

TEST_F(FileNote, GoesAfterSomeSeconds) {
    startWithContent();
    exportAs("image");
    toolkit::test::elapseAlarms();
    EXPECT_EQ(text(), "");
}

TEST_F(FileNote, GoesAtTheNextCommand) {
    startWithContent();
    const auto goesBy = [this](const std::function<void()>& command) {
        exportAs("image");
        EXPECT_NE(text(), "");
        command();
        return text().empty();
    };
    EXPECT_TRUE(goesBy([] { toolkit::test::chooseMenu("Options>Boldface"); }));
    EXPECT_TRUE(goesBy([] { toolkit::test::typeKey(toolkit::key::plus, toolkit::shift::ctrl); }));
    EXPECT_TRUE(goesBy([] { toolkit::test::typeKey('Z', toolkit::shift::ctrl); }));
    EXPECT_TRUE(
        goesBy([] { toolkit::test::typeKey('Z', toolkit::shift::ctrl | toolkit::shift::shift); }));
    EXPECT_TRUE(goesBy([] { toolkit::test::typeKey(toolkit::key::f1); }));
    toolkit::test::typeKey(toolkit::key::escape);
    answer(toolkit::Answer::Cancel);
    writeCard("Jones", "");
    EXPECT_TRUE(goesBy([this] { toolkit::test::drop({.files = {dataFile("Jones.zev")}}); }));
}

TEST_F(FileNote, StaysWhileThePlayerGoesOnWithTheCard) {
    startWithContent();
    exportAs("image");
    clickMark(2);
    EXPECT_TRUE(form.AMark[2].Visible);
    clickText(1);
    toolkit::test::typeText("typed");
    toolkit::test::typeKey(toolkit::key::escape);
    EXPECT_NE(text(), "");
    EXPECT_TRUE(form.AText[1].Tag.find("typed") != std::string::npos);
}

#ifndef _WIN32
TEST_F(FileNote, IsOnNoImagePageOrClipboard) {
    startWithContent();
    const auto pictureOf = [this](const std::string& name) {
        answerInput(name);
        mPrintToDiskPNG_Click(form);
        return toolkit::loadBitmap(dataFile(name));
    };
    const auto before = pictureOf("a.png");
    ASSERT_NE(text(), "");
    // The jobs themselves, without the command that takes the note away first.
    const auto after = pictureOf("b.png");
    ASSERT_EQ(after.height(), before.height());
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x) ASSERT_EQ(after.pixel(x, y), before.pixel(x, y));
    mPrintToClipboard_Click(form);
    const auto copy = toolkit::test::clipboardPicture();
    ASSERT_EQ(copy.height(), before.height());
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x) ASSERT_EQ(copy.pixel(x, y), before.pixel(x, y));
    answerFile(home / "page.pdf");
    MPrint_Click(form);
    EXPECT_EQ(wordsOfPdf(home / "page.pdf").find("Written"), std::string::npos);
}
#endif

} // namespace
} // namespace zev::test
