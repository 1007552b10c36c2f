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

/// The card's place, of whose picture the page says how large it is in dots.
void placePicture(const std::string& content, PrintedPage& page) {
    // The page's own matrix, from dots to points, then the card's, from its pixels to dots.
    std::size_t from = 0;
    const auto dots = nextMatrix(content, from);
    const auto card = nextMatrix(content, from);
    if (!dots || !card) return;
    const float dot = dots->across;
    page.width = card->across * static_cast<float>(page.pixelsAcross) * dot;
    page.height = card->down * static_cast<float>(page.pixelsDown) * dot;
    page.left = card->left * dot;
    page.foot = page.pageHeight - card->top * dot - page.height;
}

/// The card's place, whose artwork is shown at a size for its pixels.
void placeArtwork(const std::string& content, PrintedPage& page) {
    const std::size_t shown = content.find(" cm\n/Form");
    const std::vector<float> box = numbersAfter(content, "/BBox [");
    if (shown == std::string::npos || box.size() != 4) return;
    const std::vector<float> place = numbersBefore(content, shown, 6);
    page.width = place.at(0) * static_cast<float>(cardWidth);
    page.height = place.at(3) * static_cast<float>(cardHeight);
    page.left = place.at(4);
    page.foot = place.at(5) + place.at(3) * box[3] - page.height;
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
    if (page.pictures > 0)
        placePicture(content, page);
    else
        placeArtwork(content, page);
    return page;
}

} // namespace zev::test
