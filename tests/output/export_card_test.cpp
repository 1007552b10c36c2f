#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

#include "events/tab_walk.h"
#include "form/write_options.h"
#include "output/export_card.h"
#include "output/print_test.h"
#include "toolkit/picture/bitmap.h"
#include "toolkit/picture/bitmap_file.h"
#include "toolkit/picture/image_codecs.h"
#include "toolkit/print/printers.h"
#include "toolkit/testing/test_clipboard.h"
#include "toolkit/testing/test_window.h"
#include "toolkit/window/screen.h"
#include "view/halve_picture.h"

namespace zev::test {
namespace {

class ExportCard : public PrintTest {
  protected:
    static constexpr const char* png = "File>Export Partner Image to file as..>PNG";
    static constexpr const char* gif = "File>Export Image to file as...>GIF";
    static constexpr const char* bmp = "File>Export Image to file as...>BMP";

    toolkit::Bitmap exported(std::string_view item, const std::string& name) {
        answerInput(name);
        EXPECT_TRUE(toolkit::test::chooseMenu(item));
        EXPECT_TRUE(std::filesystem::exists(dataFile(name))) << name;
        return toolkit::loadBitmap(dataFile(name));
    }
    /// Whether a text field on the exported image has ink anywhere in its middle.
    [[nodiscard]] bool hasInk(const toolkit::Bitmap& image, const toolkit::Label& label,
                              toolkit::Color color) const {
        const auto px = [this](float twips) {
            return static_cast<int>(twips / static_cast<float>(form.TwipsPerPixel) /
                                    form.CardScale);
        };
        for (int y = px(label.Top); y < px(label.Top + label.Height); ++y)
            for (int x = px(label.Left); x < px(label.Left + label.Width); ++x)
                if (image.pixel(x, y) == color) return true;
        return false;
    }
};

TEST_F(ExportCard, TheImageIs1198PixelsWideByBothMethods) {
    startWithContent();
    const auto primary = exported(bmp, "primary.bmp");
    EXPECT_EQ(primary.width(), 1198);
    EXPECT_EQ(primary.height(), 1252);
    form.mPrintAlt.Checked = true;
    form.PrintMethod = alternatePrintMethod;
    const auto alternate = exported(bmp, "alternate.bmp");
    EXPECT_EQ(alternate.width(), 1198);
    EXPECT_EQ(alternate.height(), 1259);
}

TEST_F(ExportCard, AllFormatsShowTheMarkAndTheText) {
    startWithContent();
    for (const auto& [item, name] :
         {std::pair(bmp, "a.bmp"), std::pair(png, "a.png"), std::pair(gif, "a.gif")}) {
        const auto image = exported(item, name);
        EXPECT_TRUE(hasInk(image, form.AMark[1], toolkit::black)) << name;
        EXPECT_FALSE(hasInk(image, form.AMark[2], form.ColorRed)) << name;
    }
}

TEST_F(ExportCard, TheImageIsTheScreenAtFullSizeHalved) {
    writeOptions("Zoom=11\r\n");
    toolkit::overrideScreen({.width = 48000, .height = 48000});
    startWithContent();
    clickMark(3);
    const auto screen = halved(toolkit::test::grabCard());
    const auto image = exported(bmp, "a.bmp");
    ASSERT_EQ(image.width(), screen.width());
    ASSERT_GE(image.height(), screen.height());
    for (int y = 0; y < screen.height(); ++y)
        for (int x = 0; x < screen.width(); ++x)
            ASSERT_EQ(image.pixel(x, y), screen.pixel(x, y)) << x << ", " << y;
}

/// How far a channel of a pixel is at most from what it is in the other picture.
int largestShift(const toolkit::Bitmap& picture, const toolkit::Bitmap& other) {
    int largest = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) {
            const auto left = picture.pixel(x, y).value();
            const auto right = other.pixel(x, y).value();
            largest = std::max({largest, std::abs(toolkit::redOf(left) - toolkit::redOf(right)),
                                std::abs(toolkit::greenOf(left) - toolkit::greenOf(right)),
                                std::abs(toolkit::blueOf(left) - toolkit::blueOf(right))});
        }
    return largest;
}

TEST_F(ExportCard, PngKeepsEachColourAndGifShiftsNoneVisibly) {
    startWithContent();
    clickMark(3);
    const auto exact = exported(bmp, "a.bmp");
    for (const auto& [item, name, shift] :
         {std::tuple(png, "a.png", 0), std::tuple(gif, "a.gif", 8)}) {
        const auto image = exported(item, name);
        ASSERT_EQ(image.width(), exact.width());
        ASSERT_EQ(image.height(), exact.height());
        EXPECT_LE(largestShift(exact, image), shift) << name;
    }
}

TEST_F(ExportCard, ForcedBlackMakesTheImageBlackAndAPrintersDepthDoesNot) {
    toolkit::Printer printer = pdfWithPage(8.1F);
    printer.ColorMode = 1;
    toolkit::overridePrinters({printer});
    startWithContent();
    clickMark(3);
    EXPECT_TRUE(hasInk(exported(bmp, "colour.bmp"), form.AMark[3], form.ColorBlue));
    form.MMono.Checked = true;
    const auto black = exported(bmp, "black.bmp");
    EXPECT_FALSE(hasInk(black, form.AMark[3], form.ColorBlue));
    EXPECT_TRUE(hasInk(black, form.AMark[3], toolkit::black));
}

TEST_F(ExportCard, ThePartnersImageCarriesThePartnersLineAndTheScreenDoesNot) {
    startWithContent();
    form.PartnerName = "Pat";
    std::string line;
    whileAsking = [&] { line = form.AText[2].Caption; };
    answerInput("partner.png");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Export Image to file as...>PNG"));
    EXPECT_EQ(line, "Pat");
    EXPECT_EQ(form.AText[2].Caption, "");
}

TEST_F(ExportCard, ACancelledNameStillRunsTheWholePipelineAndTheScreenReturns) {
    startWithContent();
    const auto before = toolkit::test::grabCard();
    form.Trace.clear();
    answerInput("");
    EXPECT_TRUE(toolkit::test::chooseMenu(png));
    EXPECT_EQ(count("RebuildScreenImage"), 2);
    const auto after = toolkit::test::grabCard();
    ASSERT_EQ(after.width(), before.width());
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            ASSERT_EQ(before.pixel(x, y), after.pixel(x, y)) << x << ", " << y;
    EXPECT_FALSE(form.mPrintToDiskPNG.Checked);
    EXPECT_TRUE(form.CardModified);
}

TEST_F(ExportCard, TheHiddenJpegPathIsComplete) {
    startWithContent();
    form.TraceOn = true; // a job traces more lines than the ring holds
    answerInput("a");
    mPrintToDiskJPG_Click(form);
    EXPECT_EQ(toolkit::loadBitmap(dataFile("a.jpg")).width(), 1198);
    answerInput("b");
    mPrintToDiskPartnerJPG_Click(form);
    EXPECT_TRUE(std::filesystem::exists(dataFile("b.jpg")));
    EXPECT_TRUE(traced("MPrintPartner_Click"));
}

/// What the encoder makes of a picture at a quality.
std::string jpegOf(const toolkit::Bitmap& picture, int quality, const std::filesystem::path& file) {
    const auto encoders = toolkit::imageEncoders();
    const auto jpeg = std::ranges::find_if(encoders, [](const toolkit::ImageEncoder& encoder) {
        return encoder.FilenameExtension.find("*.JPG") != std::string::npos;
    });
    toolkit::saveImage(picture, file, jpeg->id, quality);
    return toolkit::readFile(file);
}

TEST_F(ExportCard, AJpegIsOfQualityEighty) {
    startWithContent();
    const auto exact = exported(bmp, "a.bmp");
    answerInput("a");
    mPrintToDiskJPG_Click(form);
    const std::string jpeg = dataFileContent("a.jpg");
    EXPECT_EQ(jpeg, jpegOf(exact, 80, home / "80.jpg"));
    for (const int other : {79, 81})
        EXPECT_NE(jpeg, jpegOf(exact, other, home / "other.jpg")) << other;
}

TEST_F(ExportCard, ACopyAsksNothingAndFillsTheClipboard) {
    startWithContent();
    form.TraceOn = true; // a job traces more lines than the ring holds
    const auto exact = exported(bmp, "a.bmp");
    EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
    EXPECT_TRUE(traced("mPrintToClipboard_Click"));
    const auto copy = toolkit::test::clipboardPicture();
    ASSERT_EQ(copy.width(), 1198);
    ASSERT_EQ(copy.height(), exact.height());
    for (int y = 0; y < exact.height(); ++y)
        for (int x = 0; x < exact.width(); ++x) ASSERT_EQ(copy.pixel(x, y), exact.pixel(x, y));
    EXPECT_FALSE(form.mPrintToClipboard.Checked);
}

TEST_F(ExportCard, TheFrameAroundTheMarkOfTheWalkIsOnTheScreenOnly) {
    startWithContent();
    toolkit::setCursorPosition({700, 700});
    toolkit::overrideScreen({.width = 24000, .height = 24000, .pointerStays = true});
    const auto isFramed = [] {
        const auto screen = toolkit::test::grabCard();
        for (int y = 0; y < screen.height(); ++y)
            for (int x = 0; x < screen.width(); ++x)
                if (screen.pixel(x, y) == toolkit::rgb(0, 90, 200)) return true;
        return false;
    };
    struct Results {
        std::string page;
        std::string image;
        std::string copy;
    };
    const auto runJobs = [&](bool framed) {
        const auto rest = [&] {
            if (framed) TabToMark(form, 1002);
            window->update();
            EXPECT_EQ(isFramed(), framed);
        };
        rest();
        print();
        rest();
        exported(bmp, "a.bmp");
        rest();
        EXPECT_TRUE(toolkit::test::chooseMenu("File>Copy to Clipboard"));
        toolkit::savePicture(toolkit::test::clipboardPicture(), home / "copy.bmp");
        // The page tells when it was made.
        return Results{withoutDateOfPdf(toolkit::readFile(home / "page.pdf")),
                       dataFileContent("a.bmp"), toolkit::readFile(home / "copy.bmp")};
    };
    const Results plain = runJobs(false);
    const Results framed = runJobs(true);
    EXPECT_EQ(framed.page, plain.page);
    EXPECT_EQ(framed.image, plain.image);
    EXPECT_EQ(framed.copy, plain.copy);
}

TEST_F(ExportCard, AnExportLeavesThePrinterAlone) {
    startWithContent();
    exported(bmp, "a.bmp");
    EXPECT_TRUE(fileQuestions.empty());
    EXPECT_EQ(form.PDisk.Picture, nullptr);
    EXPECT_EQ(form.PDisk.Width, 500);
    EXPECT_EQ(form.PDisk.Height, 500);
}

} // namespace
} // namespace zev::test
