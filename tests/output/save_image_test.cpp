#include "output/save_image.h"

#include "output/print_test.h"

namespace zev::test {
namespace {

class SaveImage : public PrintTest {
  protected:
    static constexpr const char* missing =
        "Could not save card image. Your computer may be missing the required Microsoft component "
        "GDIPLUS.DLL";
    void saveAs(const std::string& name, void (*handler)(Zevlin&)) {
        answerInput(name);
        handler(form);
    }
    /// SaveImageToDisk alone, on a small picture.
    void save(const std::string& name) {
        toolkit::PictureBox box;
        box.Picture = std::make_shared<const toolkit::Bitmap>(20, 20, toolkit::white);
        answerInput(name);
        SaveImageToDisk(form, box);
    }
};

TEST_F(SaveImage, AsksForTheNameWithTheCardsOwn) {
    start();
    form.mPrintToDiskGIF.Checked = true;
    save("");
    form.mPrintToDiskGIF.Checked = false;
    form.mPrintToDiskPNG.Checked = true;
    form.CardName = "My.Card";
    save("");
    ASSERT_EQ(inputs.size(), 2U);
    EXPECT_EQ(inputs[0].title, "Print card image to disk");
    EXPECT_EQ(inputs[0].prompt, "Enter name to use for image file");
    EXPECT_EQ(inputs[0].preset, "Card Image.gif");
    EXPECT_EQ(inputs[1].preset, "My.png");
    EXPECT_TRUE(traced("SaveImageToDisk"));
}

TEST_F(SaveImage, TheTypeCantBeChangedByTheName) {
    start();
    form.mPrintToDiskPNG.Checked = true;
    save("test.bmp");
    EXPECT_TRUE(toolkit::readFile(dataFile("test.png")).starts_with("\x89PNG"));
    std::filesystem::remove(dataFile("test.png"));
    save("test");
    EXPECT_TRUE(std::filesystem::exists(dataFile("test.png")));
    EXPECT_FALSE(std::filesystem::exists(dataFile("test.bmp")));
}

TEST_F(SaveImage, EachFlagHasItsFormat) {
    start();
    save("a");
    EXPECT_TRUE(toolkit::readFile(dataFile("a.bmp")).starts_with("BM"));
    form.mPrintToDiskJPG.Checked = true;
    save("a");
    EXPECT_TRUE(toolkit::readFile(dataFile("a.jpg")).starts_with("\xFF\xD8"));
    form.mPrintToDiskGIF.Checked = true;
    save("a");
    EXPECT_TRUE(toolkit::readFile(dataFile("a.gif")).starts_with("GIF8"));
}

TEST_F(SaveImage, AnAnswerWithAPathGoesThere) {
    start();
    form.mPrintToDiskPNG.Checked = true;
    std::filesystem::create_directory(home / "other.folder");
    save((home / "other.folder" / "x").string());
    EXPECT_TRUE(std::filesystem::exists(home / "other.folder" / "x.png"));
    save("../x");
    EXPECT_TRUE(std::filesystem::exists(dataFolder / ".." / "x.png"));
}

TEST_F(SaveImage, DotsAndBlanksAloneWriteNothing) {
    start();
    form.mPrintToDiskPNG.Checked = true;
    for (const char* answer : {"   ", "...", " . . "}) save(answer);
    for (const auto& entry : std::filesystem::directory_iterator(dataFolder))
        EXPECT_NE(entry.path().extension(), ".png");
    EXPECT_TRUE(boxes.empty());
}

TEST_F(SaveImage, WhatCantBeWrittenIsTold) {
    start();
    form.mPrintToDiskPNG.Checked = true;
    save(std::string(300, 'x'));
    save("none/x");
    save("my.png.gift");
    std::filesystem::create_symlink("/dev/full", dataFile("full.png"));
    save("full");
    ASSERT_EQ(boxes.size(), 4U);
    for (const auto& box : boxes) {
        EXPECT_EQ(box.text, missing);
        EXPECT_EQ(box.icon, toolkit::Icon::Exclamation);
    }
}

TEST_F(SaveImage, ABmpThatCantBeWrittenIsTraced) {
    start();
    announceError("Error in SaveImageToDisk: #61, Disk full");
    announceError("Error in SaveImageToDisk: #52, ");
    std::filesystem::create_symlink("/dev/full", dataFile("full.bmp"));
    save("full");
    save(std::string(300, 'x'));
    EXPECT_TRUE(traced("Error in SaveImageToDisk: #61, Disk full"));
    EXPECT_TRUE(boxes.empty());
}

} // namespace
} // namespace zev::test
