#include "toolkit/print/pdf_page.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "toolkit/base/ansi.h"
#include "toolkit/base/number_text.h"
#include "toolkit/picture/color_table.h"
#include "toolkit/print/deflate.h"
#include "toolkit/print/pixel_runs.h"

namespace toolkit {
namespace {

std::string hexText(std::uint32_t pixel) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (int shift = 20; shift >= 0; shift -= 4)
        text += digits[pixel >> static_cast<unsigned>(shift) & 0xFU];
    return text;
}

struct ImageData {
    std::string colorSpace;
    std::string filter;
    std::string bytes;
};

ImageData indexedData(const IndexedPicture& picture) {
    std::string table;
    for (const std::uint32_t color : picture.palette) table += hexText(color);
    const auto write = [&](int row, std::vector<std::uint8_t>& bytes) {
        const auto start = picture.indices.begin() + std::ptrdiff_t{row} * picture.width;
        bytes.assign(start, start + picture.width);
    };
    return {"[/Indexed /DeviceRGB " + numberText(static_cast<int>(picture.palette.size()) - 1) +
                " <" + table + ">]",
            "/FlateDecode", zlibStream({picture.height, write})};
}

ImageData trueColorData(const Bitmap& picture) {
    const auto write = [&](int row, std::vector<std::uint8_t>& bytes) {
        appendPixelRuns({picture.row(row), static_cast<std::size_t>(picture.width())}, bytes);
        if (row == picture.height() - 1) bytes.push_back(endOfPixelRuns);
    };
    return {"/DeviceRGB", "[/FlateDecode /RunLengthDecode]", zlibStream({picture.height(), write})};
}

ImageData imageData(const Bitmap& picture) {
    const auto indexed = exactlyIndexed(picture);
    return indexed ? indexedData(*indexed) : trueColorData(picture);
}

std::string points(double length) { return fixedText(length, 1, 4); }

/// A text as the format wants it: what could end it or isn't plain goes by its number.
std::string textString(std::string_view text) {
    std::string result = "(";
    for (const char character : text) {
        const unsigned value = code(character);
        const bool isPlain = value >= ' ' && value < 0x7F && character != '(' && character != ')' &&
                             character != '\\';
        if (isPlain) {
            result += character;
            continue;
        }
        result += '\\';
        for (const unsigned shift : {6U, 3U, 0U})
            result += static_cast<char>('0' + (value >> shift & 7U));
    }
    return result + ")";
}

class File {
  public:
    void addObject(std::string_view content) {
        places_.push_back(bytes_.size());
        bytes_ += numberText(static_cast<int>(places_.size())) + " 0 obj\n";
        bytes_.append(content).append("\nendobj\n");
    }
    void addStream(const std::string& entries, std::string_view content) {
        std::string object = "<< " + entries + "/Length " +
                             numberText(static_cast<int>(content.size())) + " >>\nstream\n";
        addObject(object.append(content).append("\nendstream"));
    }
    /// With the catalogue as the first object and the description of the file as the last.
    [[nodiscard]] std::string finished() {
        const std::string count = numberText(static_cast<int>(places_.size()) + 1);
        const std::string table = numberText(static_cast<int>(bytes_.size()));
        bytes_ += "xref\n0 " + count + "\n0000000000 65535 f \n";
        for (const std::size_t place : places_)
            bytes_ += fixedText(static_cast<double>(place), 10, 0) + " 00000 n \n";
        bytes_ += "trailer\n<< /Size " + count + " /Root 1 0 R /Info " +
                  numberText(static_cast<int>(places_.size())) + " 0 R >>\nstartxref\n" + table +
                  "\n%%EOF\n";
        return std::move(bytes_);
    }

  private:
    std::string bytes_ = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<std::size_t> places_;
};

void addImage(File& file, const Bitmap& picture) {
    const ImageData data = imageData(picture);
    file.addStream("/Type /XObject /Subtype /Image /Width " + numberText(picture.width()) +
                       " /Height " + numberText(picture.height()) +
                       " /BitsPerComponent 8 /Interpolate true /ColorSpace " + data.colorSpace +
                       " /Filter " + data.filter + " ",
                   data.bytes);
}

/// The format counts from the page's foot.
std::string drawing(const PdfPage& page) {
    const double foot = page.height - page.pictureTop - page.pictureHeight;
    return "q " + points(page.pictureWidth) + " 0 0 " + points(page.pictureHeight) + " " +
           points(page.pictureLeft) + " " + points(foot) + " cm /Card Do Q";
}

} // namespace

std::string pdfFile(const PdfPage& page, const Bitmap& picture) {
    File file;
    file.addObject("<< /Type /Catalog /Pages 2 0 R >>");
    file.addObject("<< /Type /Pages /Kids [3 0 R] /Count 1 >>");
    file.addObject("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + points(page.width) + " " +
                   points(page.height) +
                   "] /Contents 4 0 R /Resources << /XObject << /Card 5 0 R >> >> >>");
    file.addStream({}, drawing(page));
    addImage(file, picture);
    file.addObject("<< /Title " + textString(page.title) + " /Producer (Zevlin) >>");
    return file.finished();
}

} // namespace toolkit
