#include "support/printed_page.h"

#include <optional>
#include <string>
#include <vector>

#include "support/pdf_content.h"
#include "toolkit/base/files.h"

namespace zev::test {
namespace {

struct Matrix {
    float across = 0;
    float down = 0;
    float left = 0;
    float top = 0;
};

/// The next matrix that neither turns nor slants; `from` moves behind it.
std::optional<Matrix> nextMatrix(const std::string& content, std::size_t& from) {
    const std::string_view setsMatrix = " cm\n";
    for (auto at = content.find(setsMatrix, from); at != std::string::npos;
         at = content.find(setsMatrix, from)) {
        from = at + setsMatrix.size();
        const std::vector<float> numbers = numbersBefore(content, at, 6);
        if (numbers.size() == 6 && numbers[1] == 0 && numbers[2] == 0)
            return Matrix{numbers[0], numbers[3], numbers[4], numbers[5]};
    }
    return std::nullopt;
}

void readPictures(const std::string& content, PrintedPage& page) {
    const std::string_view picture = "/Subtype /Image";
    for (auto at = content.find(picture); at != std::string::npos;
         at = content.find(picture, at + 1)) {
        page.pixelsAcross = static_cast<int>(numbersAfter(content, "/Width ", at).at(0));
        page.pixelsDown = static_cast<int>(numbersAfter(content, "/Height ", at).at(0));
        ++page.pictures;
    }
}

} // namespace

PrintedPage pageIn(const std::filesystem::path& file) {
    const std::string content = unpackedPdf(toolkit::readFile(file));
    PrintedPage page;
    if (const auto box = numbersAfter(content, "MediaBox ["); box.size() == 4) {
        page.pageWidth = box[2];
        page.pageHeight = box[3];
    }
    readPictures(content, page);
    // The page's own matrix, from dots to points, then the card's, from its pixels to dots.
    std::size_t from = 0;
    const auto dots = nextMatrix(content, from);
    const auto card = nextMatrix(content, from);
    if (!dots || !card) return page;
    const float dot = dots->across;
    const float across = static_cast<float>(page.pictures > 0 ? page.pixelsAcross : cardWidth);
    const float down = static_cast<float>(page.pictures > 0 ? page.pixelsDown : cardHeight);
    page.width = card->across * across * dot;
    page.height = card->down * down * dot;
    page.left = card->left * dot;
    page.foot = page.pageHeight - card->top * dot - page.height;
    return page;
}

} // namespace zev::test
