#include "view/artwork_file.h"

#include <array>
#include <charconv>
#include <cmath>
#include <type_traits>
#include <utility>

#include "toolkit/base/error.h"

namespace zev {
namespace {

constexpr std::string_view regularFace = "regular";
constexpr std::string_view boldFace = "bold";
constexpr std::string_view suitsFace = "suits";

std::string lengthText(double length) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), length).ptr;
    return {digits.data(), end};
}

std::string colorText(toolkit::Color color) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const int channel :
         {toolkit::redOf(color), toolkit::greenOf(color), toolkit::blueOf(color)}) {
        text += digits[static_cast<std::size_t>(channel / 16)];
        text += digits[static_cast<std::size_t>(channel % 16)];
    }
    return text;
}

std::string_view faceOf(const toolkit::Words& words) {
    if (words.fontName == artworkSuitFont) return suitsFace;
    return words.bold ? boldFace : regularFace;
}

std::string lineOf(const toolkit::FilledRectangle& box) {
    return "box " + colorText(box.color) + ' ' + lengthText(box.left) + ' ' + lengthText(box.top) +
           ' ' + lengthText(box.width) + ' ' + lengthText(box.height);
}

std::string lineOf(const toolkit::Words& words) {
    return "words " + colorText(words.color) + ' ' + std::string(faceOf(words)) + ' ' +
           lengthText(words.em) + ' ' + lengthText(words.left) + ' ' + lengthText(words.baseline) +
           ' ' + lengthText(words.width) + ' ' + words.text;
}

/// Takes a line apart, word by word.
class LineReader {
  public:
    explicit LineReader(std::string_view line) : rest_(line) {}

    std::string_view word() {
        const std::size_t end = rest_.find(' ');
        const std::string_view word = rest_.substr(0, end);
        rest_ = end == std::string_view::npos ? std::string_view() : rest_.substr(end + 1);
        return word;
    }
    std::string_view rest() { return std::exchange(rest_, {}); }
    double length() { return value<double>(word()); }
    int wholeLength() { return value<int>(word()); }
    toolkit::Color color() {
        const std::string_view digits = word();
        constexpr std::size_t digitCount = 6;
        constexpr int hexadecimal = 16;
        if (digits.size() != digitCount) refuse();
        const auto channel = [&](std::size_t at) {
            return value<int>(digits.substr(at, 2), hexadecimal);
        };
        return toolkit::rgb(channel(0), channel(2), channel(4));
    }

    [[noreturn]] static void refuse() {
        throw toolkit::RunTimeError(toolkit::Failure::InvalidPicture);
    }

  private:
    template <typename Number, typename... Base>
    static Number value(std::string_view text, Base... base) {
        Number number{};
        const char* end = text.data() + text.size();
        const auto [past, error] = std::from_chars(text.data(), end, number, base...);
        if (error != std::errc() || past != end) refuse();
        if constexpr (std::is_floating_point_v<Number>)
            if (!std::isfinite(number)) refuse();
        return number;
    }

    std::string_view rest_;
};

toolkit::FilledRectangle readBox(LineReader& line) {
    toolkit::FilledRectangle box;
    box.color = line.color();
    for (double* length : {&box.left, &box.top, &box.width, &box.height}) *length = line.length();
    return box;
}

toolkit::Words readWords(LineReader& line) {
    toolkit::Words words;
    words.color = line.color();
    const std::string_view face = line.word();
    if (face != regularFace && face != boldFace && face != suitsFace) LineReader::refuse();
    words.fontName = face == suitsFace ? artworkSuitFont : artworkFont;
    words.bold = face == boldFace;
    for (double* length : {&words.em, &words.left, &words.baseline, &words.width})
        *length = line.length();
    words.text = line.rest();
    return words;
}

void readLine(std::string_view text, toolkit::Drawing& artwork) {
    LineReader line(text);
    const std::string_view kind = line.word();
    if (kind == "artwork") {
        artwork.width = line.wholeLength();
        artwork.height = line.wholeLength();
    } else if (kind == "box") {
        artwork.items.emplace_back(readBox(line));
    } else if (kind == "words") {
        artwork.items.emplace_back(readWords(line));
    } else {
        LineReader::refuse();
    }
}

} // namespace

std::string writeArtwork(const toolkit::Drawing& artwork) {
    std::string file =
        "artwork " + std::to_string(artwork.width) + ' ' + std::to_string(artwork.height) + '\n';
    for (const toolkit::DrawnItem& item : artwork.items)
        file += std::visit([](const auto& drawn) { return lineOf(drawn); }, item) + '\n';
    return file;
}

toolkit::Drawing readArtwork(std::string_view file) {
    toolkit::Drawing artwork;
    while (!file.empty()) {
        const std::size_t end = file.find('\n');
        readLine(file.substr(0, end), artwork);
        file = end == std::string_view::npos ? std::string_view() : file.substr(end + 1);
    }
    if (artwork.width <= 0 || artwork.height <= 0) LineReader::refuse();
    return artwork;
}

} // namespace zev
