// PDF files of the library, taken apart and put together.
#include "toolkit/print/pdf_file.h"

#include <gtest/gtest.h>

#include "toolkit/sample_pdf.h"

namespace toolkit::test {
namespace {

TEST(PdfFile, TellsItsObjects) {
    const auto file = PdfFile::read(usualFile());
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->head(), "%PDF-1.4\n");
    EXPECT_EQ(file->info(), 1);
    EXPECT_EQ(file->root(), 2);
    EXPECT_EQ(file->size(), 8);
    EXPECT_EQ(file->object(1), about);
    EXPECT_EQ(file->object(6), drawing);
    EXPECT_EQ(file->object(3), tree);
    EXPECT_EQ(file->pages(), std::vector<int>{4});
    for (const int number : {-1, 0, 8, 1000000}) EXPECT_TRUE(file->object(number).empty());
}

TEST(PdfFile, AFileThatEndsTooSoonIsNone) {
    const std::string file = usualFile();
    for (std::size_t size = 0; size < file.find("%%EOF") - 2; ++size) {
        const auto cut = PdfFile::read(file.substr(0, size));
        EXPECT_TRUE(!cut || cut->object(1) == about) << size;
    }
    EXPECT_FALSE(PdfFile::read(file.substr(0, file.find("trailer"))));
}

TEST(PdfFile, ATableThatIsWrongIsNoFile) {
    const std::string file = usualFile();
    for (const auto& [text, other] :
         {std::pair("xref\n0 8", "xref\n0 9999999"), std::pair("xref\n0 8", "xref\n1 8"),
          std::pair("startxref\n", "startxref\n9"), std::pair("/Root 2", "/Root 9"),
          std::pair("/Info", "/Inf")}) {
        std::string wrong = file;
        wrong.replace(wrong.rfind(text), std::string_view(text).size(), other);
        EXPECT_FALSE(PdfFile::read(wrong)) << other;
    }
}

TEST(PdfFile, ReferencesAreReadOutsideOfStreams) {
    EXPECT_EQ(referencesIn("[12 0 R 3 0 R]"), (std::vector{12, 3}));
    EXPECT_EQ(referencesIn(drawing), std::vector<int>());
    EXPECT_EQ(referencesIn("/X 0 R"), std::vector<int>());
    EXPECT_EQ(renumbered("[12 0 R 3 0 R]\nstream\n3 0 R", {{12, 4}, {3, 555}}),
              "[4 0 R 555 0 R]\nstream\n3 0 R");
}

TEST(PdfRevision, TheOrderOfTheFileDoesntMatter) {
    const std::string otherLetters = "<<\n/FontName /QFAAAA+Letters\n>>\n";
    const std::string otherPage = "<<\n/Type /Page\n/Parent 3 0 R\n/Contents 7 0 R\n"
                                  "/Resources 6 0 R\n/MediaBox [0 0 60.000000 80.500000]\n>>\n";
    const std::string otherResources = "<<\n/Font <<\n/F7 5 0 R\n>>\n>>\n";
    const auto one = PdfFile::read(usualFile());
    const auto other = PdfFile::read(fileOf({{3, tree},
                                             {6, otherResources},
                                             {5, otherLetters},
                                             {4, otherPage},
                                             {7, drawing},
                                             {2, catalog},
                                             {1, about}}));
    ASSERT_TRUE(one && other);
    EXPECT_EQ(PdfRevision(*one).finish(), PdfRevision(*other).finish());
}

TEST(PdfRevision, HoldsWhatIsAddedAndReplaced) {
    const auto file = PdfFile::read(usualFile());
    ASSERT_TRUE(file.has_value());
    PdfRevision revision(*file);
    EXPECT_EQ(revision.next(), 8);
    EXPECT_EQ(revision.add("new\n"), 8);
    EXPECT_EQ(revision.add("nobody's\n"), 9);
    revision.replace(5, "<<\n/New 8 0 R\n>>\n");
    const auto read = PdfFile::read(revision.finish());
    ASSERT_TRUE(read.has_value());
    const auto resource = numberAfter(read->object(read->pages().at(0)), "/Resources ");
    ASSERT_TRUE(resource.has_value());
    const auto added = numberAfter(read->object(*resource), "/New ");
    ASSERT_TRUE(added.has_value());
    EXPECT_EQ(read->object(*added), "new\n");
    EXPECT_EQ(read->size(), 8); // without the font and what nobody refers to
}

} // namespace
} // namespace toolkit::test
