#include "toolkit/print/pdf_page.h"

#include <gtest/gtest.h>

namespace toolkit::test {
namespace {

bool has(const std::string& file, std::string_view text) {
    return file.find(text) != std::string::npos;
}

const PdfPage letter{.width = 612,
                     .height = 792,
                     .pictureLeft = 18,
                     .pictureTop = 36,
                     .pictureWidth = 500,
                     .pictureHeight = 400,
                     .title = "Joe (1)"};

TEST(PdfPage, PlacesThePictureFromTheFootOfThePage) {
    const std::string file = pdfFile(letter, Bitmap(20, 10));
    EXPECT_TRUE(file.starts_with("%PDF-1.4\n"));
    EXPECT_TRUE(file.ends_with("%%EOF\n"));
    EXPECT_TRUE(has(file, "/MediaBox [0 0 612.0000 792.0000]"));
    EXPECT_TRUE(has(file, "q 500.0000 0 0 400.0000 18.0000 356.0000 cm"));
    EXPECT_TRUE(has(file, "/Width 20 /Height 10"));
    EXPECT_TRUE(has(file, "/Title (Joe \\0501\\051)"));
}

TEST(PdfPage, FewColoursAreAPaletteAndManyAreKept) {
    EXPECT_TRUE(
        has(pdfFile(letter, Bitmap(20, 10, rgb(1, 2, 3))), "[/Indexed /DeviceRGB 0 <010203>]"));
    Bitmap many(300, 1);
    for (int x = 0; x < 300; ++x) many.setPixel(x, 0, rgb(x % 256, x / 256, 9));
    EXPECT_TRUE(has(pdfFile(letter, many), "/ColorSpace /DeviceRGB /Filter [/FlateDecode "
                                           "/RunLengthDecode] "));
}

TEST(PdfPage, TheTableOfObjectsTellsWhereTheyBegin) {
    const std::string file = pdfFile(letter, Bitmap(20, 10));
    const auto table = file.find("xref\n0 7\n");
    ASSERT_NE(table, std::string::npos);
    std::size_t row = table + std::string_view("xref\n0 7\n").size() + 20;
    for (int object = 1; object <= 6; ++object, row += 20) {
        const auto place = std::stoul(file.substr(row, 10));
        EXPECT_EQ(file.substr(place, 7), std::to_string(object) + " 0 obj");
    }
    EXPECT_TRUE(has(file, "startxref\n" + std::to_string(table) + "\n"));
}

} // namespace
} // namespace toolkit::test
