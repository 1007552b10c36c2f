#include "toolkit/print/pdf_form.h"

#include <gtest/gtest.h>

#include "toolkit/sample_pdf.h"

namespace toolkit::test {
namespace {

TEST(PdfForm, APageWithoutWhatItNeedsIsNone) {
    for (const auto& [text, other] :
         {std::pair("/Contents 6", "/Contents 9"), std::pair("/Contents ", "/None "),
          std::pair("/Resources ", "/None "), std::pair("/MediaBox ", "/None "),
          std::pair("/F7 7 0 R", "/F7 9 0 R")}) {
        std::string wrongPage = page;
        std::string wrongResources = resources;
        for (std::string* object : {&wrongPage, &wrongResources})
            if (const std::size_t at = object->find(text); at != std::string::npos)
                object->replace(at, std::string_view(text).size(), other);
        const auto file = PdfFile::read(fileOf({{1, about},
                                                {2, catalog},
                                                {3, tree},
                                                {4, wrongPage},
                                                {5, wrongResources},
                                                {6, drawing},
                                                {7, letters}}));
        ASSERT_TRUE(file.has_value());
        EXPECT_FALSE(PdfForm::ofFirstPage(*file)) << other;
    }
}

TEST(PdfForm, APageShowsItBehindAllElse) {
    const auto file = PdfFile::read(usualFile());
    ASSERT_TRUE(file.has_value());
    const auto form = PdfForm::ofFirstPage(*file);
    ASSERT_TRUE(form.has_value());
    PdfRevision revision(*file);
    EXPECT_EQ(heightOfPage(*file, 4), 80.5);
    const ShownForm shown{form->addTo(revision), 0.5, 0.25, 1, 2};
    ASSERT_TRUE(showBehind(*file, revision, 4, {&shown, 1}));
    const std::string made = revision.finish();
    const auto read = PdfFile::read(made);
    ASSERT_TRUE(read.has_value());
    const std::string_view onPage = read->object(read->pages().at(0));
    const auto first = numberAfter(onPage, "/Contents [");
    ASSERT_TRUE(first.has_value());
    const std::string name = "/Form" + std::to_string(shown.form);
    EXPECT_EQ(read->object(*first), "<<\n/Length " + std::to_string(63 + name.size()) +
                                        "\n>>\nstream\nq\n0.500000000 0 0 0.250000000 1.000000000 "
                                        "2.000000000 cm\n" +
                                        name + " Do\nQ\nendstream\n");
    EXPECT_NE(made.find("/BBox [0 0 60.000000 80.500000]"), std::string::npos);
    EXPECT_NE(made.find(drawing.substr(drawing.find("stream"))), std::string::npos);
}

} // namespace
} // namespace toolkit::test
