// Jobs on a real disk without room, at each of their stages: what is told, and what stays.
#include <map>

#include "card/save.h"
#include "form/options.h"
#include "output/export_card.h"
#include "output/print_card.h"
#include "output/print_test.h"
#include "support/small_disk.h"
#include "toolkit/base/write_file.h"
#include "toolkit/picture/bitmap_file.h"

namespace zev::test {
namespace {

namespace fs = std::filesystem;

constexpr int diskKilobytes = 16 * 1024;

/// A way to get the card into a file, with what is told where that fails.
struct Way {
    const char* name;
    void (*job)(Zevlin&);
    const char* file;
    const char* message; ///< empty: the trace alone tells
};

constexpr const char* imageMessage = "Could not save card image. Your computer may be missing the "
                                     "required Microsoft component GDIPLUS.DLL";

class SmallDisk : public PrintTest, public testing::WithParamInterface<Way> {
  protected:
    SmallDisk() : before_(filesIn(dataFolder)), disk(dataFolder, diskKilobytes) {}

    void SetUp() override {
        if (!disk.isThere()) GTEST_SKIP() << "no disk can be made here: " << disk.refusal();
        for (const auto& [name, content] : before_) toolkit::writeFile(dataFile(name), content);
        for (const char* error :
             {"Error in IniWrite 61, Disk full", "Error in MSave_Click ", "Error in MSaveShapes ",
              "Error in PrintPictureBox at step ", "Error in SaveImageToDisk: #61, Disk full"})
            announceError(error);
        startWithContent();
        IniWrite(form);
        layout_ = dataFileContent("Definitions.Ini");
    }

    static std::map<std::string, std::string> filesIn(const fs::path& folder) {
        std::map<std::string, std::string> files;
        for (const auto& entry : fs::directory_iterator(folder))
            files[entry.path().filename().string()] = toolkit::readFile(entry.path());
        return files;
    }
    void runJob() {
        if (GetParam().file == std::string_view("card.pdf"))
            answerFile(dataFile("card.pdf"));
        else
            answerInput(GetParam().file);
        GetParam().job(form);
    }
    void expectToldAndUnharmed() {
        const std::string_view message = GetParam().message;
        // Leaves out the box that tells what else the folder couldn't take.
        std::erase_if(boxes, [](const ShownBox& box) {
            return box.text.starts_with("Zevlin could not use its folder");
        });
        ASSERT_EQ(boxes.size(), message.empty() ? 0U : 1U);
        if (message.empty())
            ASSERT_TRUE(traced("Error in SaveImageToDisk: #61, Disk full"));
        else
            ASSERT_EQ(boxes[0].text, message);
        EXPECT_FALSE(fs::exists(dataFile(GetParam().file)));
        EXPECT_NE(settings().find("Zoom=5 "), std::string::npos) << settings();
        EXPECT_NE(dataFileContent("ZEV.Ini").find("Peak Memory usage"), std::string::npos);
        EXPECT_EQ(dataFileContent("Definitions.Ini"), layout_);
        for (const auto& entry : fs::directory_iterator(dataFolder))
            EXPECT_NE(entry.path().extension(), ".part");
        expectUnharmed();
    }
    void expectNextOneWorks() {
        disk.giveRoom();
        boxes.clear();
        runJob();
        EXPECT_TRUE(boxes.empty());
        const fs::path file = dataFile(GetParam().file);
        ASSERT_TRUE(fs::exists(file));
        if (file.extension() == ".pdf")
            EXPECT_FLOAT_EQ(pageIn(file).width, 8.1F * points);
        else
            EXPECT_EQ(toolkit::loadBitmap(file).width(), 1198);
        expectUnharmed();
    }

  private:
    std::map<std::string, std::string> before_;
    std::string layout_;

  protected:
    test_system::SmallDisk disk;
};

// Options, layout and temporary card find no room either.
TEST_P(SmallDisk, FullFromTheStart) {
    disk.fill();
    runJob();
    expectToldAndUnharmed();
    expectNextOneWorks();
}

TEST_P(SmallDisk, FullFromTheQuestionForTheNameOn) {
    whileAsking = [&] { disk.fill(); };
    runJob();
    whileAsking = {};
    expectToldAndUnharmed();
    expectNextOneWorks();
}

TEST_P(SmallDisk, FullInTheMiddleOfTheFile) {
    constexpr std::uintmax_t room = 8 * 1024;
    whileAsking = [&] { disk.fill(room); };
    runJob();
    whileAsking = {};
    expectToldAndUnharmed();
    expectNextOneWorks();
}

INSTANTIATE_TEST_SUITE_P(
    Ways, SmallDisk,
    testing::Values(Way{"Bmp", mPrintToDisk_Click, "card.bmp", ""},
                    Way{"Gif", mPrintToDiskGIF_Click, "card.gif", imageMessage},
                    Way{"Png", mPrintToDiskPNG_Click, "card.png", imageMessage},
                    Way{"Jpg", mPrintToDiskJPG_Click, "card.jpg", imageMessage},
                    Way{"Pdf", MPrint_Click, "card.pdf", "Disk full Printer Error #61"}),
    [](const auto& tested) { return std::string(tested.param.name); });

} // namespace
} // namespace zev::test
