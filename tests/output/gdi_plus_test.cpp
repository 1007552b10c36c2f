#include "output/gdi_plus.h"

#include <gtest/gtest.h>

#include "support/system.h"
#include "toolkit/base/files.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

class GdiPlus : public testing::Test {
  protected:
    GdiPlus() { folder = test_system::newFolder("zevlin-images-"); }
    ~GdiPlus() override { fs::remove_all(folder); }
    GdiPlus(const GdiPlus&) = delete;
    GdiPlus& operator=(const GdiPlus&) = delete;

    static toolkit::Bitmap picture() {
        toolkit::Bitmap bitmap(40, 30, toolkit::white);
        bitmap.fill(3, 4, 20, 10, toolkit::rgb(195, 17, 25));
        return bitmap;
    }
    fs::path folder;
    std::vector<std::pair<std::string, int>> events;
    const cGdiPlus codecs{
        [this](std::string_view text, int status) { events.emplace_back(text, status); }};
};

TEST_F(GdiPlus, WritesWhatItReadsBack) {
    for (const char* name : {"a.gif", "a.png", "a.bmp", "a.PNG", "a.b.dib"}) {
        ASSERT_TRUE(codecs.PictureBoxToFile(picture(), folder / name, 80)) << name;
        const auto read = codecs.FilenameToIPicture(folder / name);
        ASSERT_TRUE(read) << name;
        EXPECT_EQ(read->width(), 40);
        EXPECT_EQ(read->pixel(5, 5), toolkit::rgb(195, 17, 25)) << name;
        EXPECT_EQ(read->pixel(30, 20), toolkit::white) << name;
    }
    EXPECT_TRUE(events.empty());
}

TEST_F(GdiPlus, OnlyJpegTakesTheQuality) {
    for (const char* name : {"low.jpg", "low.png", "low.gif"})
        ASSERT_TRUE(codecs.PictureBoxToFile(picture(), folder / name, 5));
    for (const char* name : {"high.jpg", "high.png", "high.gif"})
        ASSERT_TRUE(codecs.PictureBoxToFile(picture(), folder / name, 95));
    EXPECT_LT(toolkit::fileLength(folder / "low.jpg"), toolkit::fileLength(folder / "high.jpg"));
    EXPECT_EQ(toolkit::readFile(folder / "low.png"), toolkit::readFile(folder / "high.png"));
    EXPECT_EQ(toolkit::readFile(folder / "low.gif"), toolkit::readFile(folder / "high.gif"));
}

TEST_F(GdiPlus, AnUnknownExtensionIsFalseWithoutAnEvent) {
    EXPECT_FALSE(codecs.PictureBoxToFile(picture(), folder / "my.gift", 80));
    EXPECT_FALSE(codecs.PictureBoxToFile(picture(), folder / "bare", 80));
    EXPECT_TRUE(fs::is_empty(folder));
    EXPECT_TRUE(events.empty());
}

TEST_F(GdiPlus, AFailureRaisesTheEventWithItsStatus) {
    fs::create_directory(folder / "taken.png");
    EXPECT_FALSE(codecs.PictureBoxToFile(picture(), folder / "taken.png", 80));
    EXPECT_FALSE(codecs.PictureBoxToFile(picture(), folder / "none" / "a.png", 80));
    EXPECT_FALSE(codecs.PictureBoxToFile(picture(), "/dev/full/../full.png/x.png", 80));
    EXPECT_FALSE(codecs.FilenameToIPicture(folder / "none.png"));
    ASSERT_EQ(events.size(), 4U);
    EXPECT_EQ(events[0], std::pair(std::string("Access Denied"), 12));
    EXPECT_EQ(events[1], std::pair(std::string("File Not Found"), 10));
    EXPECT_EQ(events[3], std::pair(std::string("File Not Found"), 10));
}

TEST_F(GdiPlus, WithoutEncodersTheStartFails) {
    int status = 0;
    const cGdiPlus none([&](std::string_view, int raised) { status = raised; }, {});
    EXPECT_EQ(status, 1);
    EXPECT_FALSE(none.PictureBoxToFile(picture(), folder / "a.png", 80));
}

TEST_F(GdiPlus, APatternThatIsThereAlreadyIsPassedOver) {
    auto encoders = toolkit::imageEncoders();
    encoders.front().FilenameExtension = " *.GIF ;*.new";
    const cGdiPlus both({}, encoders);
    ASSERT_TRUE(both.PictureBoxToFile(picture(), folder / "a.gif", 80));
    EXPECT_TRUE(toolkit::readFile(folder / "a.gif").starts_with("GIF"));
    ASSERT_TRUE(both.PictureBoxToFile(picture(), folder / "a.new", 80));
    EXPECT_TRUE(toolkit::readFile(folder / "a.new").starts_with("BM"));
}

TEST_F(GdiPlus, EachStatusHasItsText) {
    const std::vector<std::string_view> texts = {"Generic Error",
                                                 "Invalid Parameter",
                                                 "Out Of Memory",
                                                 "Object Busy",
                                                 "Insufficient Buffer",
                                                 "Not Implemented",
                                                 "Win32 Error",
                                                 "Wrong State",
                                                 "Aborted",
                                                 "File Not Found",
                                                 "Value Overflow",
                                                 "Access Denied",
                                                 "Unknown Image Format",
                                                 "FontFamily Not Found",
                                                 "FontStyle Not Found",
                                                 "Not TrueType Font",
                                                 "Unsupported Gdiplus Version",
                                                 "Gdiplus Not Initialized",
                                                 "Property Not Found",
                                                 "Property Not Supported"};
    for (std::size_t i = 0; i < texts.size(); ++i)
        EXPECT_EQ(cGdiPlus::GdiErrorString(static_cast<int>(i) + 1), texts[i]);
    for (const int status : {-1, 0, 21})
        EXPECT_EQ(cGdiPlus::GdiErrorString(status), "Unknown GDI+ Error");
}

} // namespace
} // namespace zev
