#include "toolkit/print/pdf_writing.h"

#include <QtGui/QPainter>
#include <gtest/gtest.h>

#include "support/pdf_content.h"

namespace toolkit::test {
namespace {

using zev::test::isInPdf;

TEST(PdfWriting, PaintsInDotsOnPagesInPoints) {
    PdfWriting writing(144);
    writing.newPage(60, 80).fillRect(QRectF(10, 20, 30, 40), Qt::red);
    writing.newPage(90, 70).fillRect(QRectF(1, 2, 3, 4), Qt::red);
    const std::string file = zev::test::unpackedPdf(writing.finish());
    EXPECT_TRUE(isInPdf(file, "/MediaBox [0 0 60.000000 80.000000]"));
    EXPECT_TRUE(isInPdf(file, "/MediaBox [0 0 90.000000 70.000000]"));
    EXPECT_TRUE(isInPdf(file, "0.500000000 0 0 -0.500000000 0 80 cm"));
    EXPECT_TRUE(isInPdf(file, "10 20 30 40 re"));
    EXPECT_TRUE(isInPdf(file, "1 2 3 4 re"));
}

TEST(PdfWriting, AFileWithoutAPageThatWasAskedForHasOne) {
    PdfWriting writing(72);
    writing.describe("Jones");
    const std::string file = writing.finish();
    EXPECT_TRUE(isInPdf(file, zev::test::pdfTitle("Jones")));
    EXPECT_TRUE(isInPdf(file, "/Count 1\n"));
}

} // namespace
} // namespace toolkit::test
