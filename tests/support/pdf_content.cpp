#include "support/pdf_content.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>
#include <system_error>

namespace zev::test {
namespace {

/// What a packed stream holds; an empty text if it isn't packed.
std::string inflated(std::string_view packed) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) throw std::runtime_error("zlib");
    // The library's interface takes no constant bytes.
    std::string input(packed);
    stream.next_in = reinterpret_cast<Bytef*>(input.data());
    stream.avail_in = static_cast<uInt>(input.size());
    std::string content;
    std::array<char, 1 << 16> block{};
    int state = Z_OK;
    while (state == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef*>(block.data());
        stream.avail_out = static_cast<uInt>(block.size());
        state = inflate(&stream, Z_NO_FLUSH);
        content.append(block.data(), block.size() - stream.avail_out);
    }
    inflateEnd(&stream);
    return content;
}

constexpr std::string_view dateMark = "/CreationDate (";

/// The number that begins here, which loses its characters; none if there is no number.
std::optional<float> takeNumber(std::string_view& text) {
    float number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc()) return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return number;
}

} // namespace

std::string unpackedPdf(std::string_view file) {
    constexpr std::string_view begin = "\nstream\n";
    constexpr std::string_view end = "endstream";
    std::string content;
    std::size_t from = 0;
    for (std::size_t at = file.find(begin); at != std::string_view::npos;
         at = file.find(begin, from)) {
        const std::size_t first = at + begin.size();
        const std::size_t past = file.find(end, first);
        content.append(file.substr(from, first - from));
        const std::string_view stream = file.substr(first, past - first);
        const std::string plain = inflated(stream);
        content.append(plain.empty() ? stream : plain);
        from = std::min(past, file.size());
    }
    return content.append(file.substr(from));
}

int timesInPdf(std::string_view file, std::string_view text) {
    int found = 0;
    for (auto at = file.find(text); at != std::string_view::npos; at = file.find(text, at + 1))
        ++found;
    return found;
}

std::string pdfTitle(std::string_view title) {
    std::string entry = "/Title (\xFE\xFF";
    for (const char character : title) (entry += '\0') += character;
    return entry + ')';
}

std::string dateOfPdf(std::string_view file) {
    const std::size_t at = file.find(dateMark);
    if (at == std::string_view::npos) return {};
    const std::string_view date = file.substr(at + dateMark.size());
    return std::string(date.substr(0, date.find(')')));
}

std::string withoutDateOfPdf(std::string file) {
    const std::string date = dateOfPdf(file);
    if (!date.empty()) file.erase(file.find(dateMark) + dateMark.size(), date.size());
    return file;
}

std::vector<float> numbersAfter(std::string_view content, std::string_view mark, std::size_t from) {
    const std::size_t at = content.find(mark, from);
    std::vector<float> numbers;
    if (at == std::string_view::npos) return numbers;
    content.remove_prefix(at + mark.size());
    while (const auto number = takeNumber(content)) {
        numbers.push_back(*number);
        if (content.starts_with(' ')) content.remove_prefix(1);
    }
    return numbers;
}

std::vector<float> numbersBefore(std::string_view content, std::size_t end, std::size_t count) {
    std::vector<float> numbers;
    content = content.substr(0, end);
    while (numbers.size() < count) {
        const std::size_t first = content.find_last_not_of("-.0123456789") + 1;
        std::string_view word = content.substr(first);
        const auto number = takeNumber(word);
        if (!number) break;
        numbers.insert(numbers.begin(), *number);
        if (first == 0) break;
        content = content.substr(0, first - 1);
    }
    return numbers;
}

#ifndef _WIN32
std::string wordsOfPdf(const std::filesystem::path& file) {
    return outputOf("pdftotext -enc UTF-8 '" + file.string() + "' -");
}

std::string outputOf(const std::string& command) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(popen(command.c_str(), "r"),
                                                                 pclose);
    if (output == nullptr) throw std::runtime_error(command);
    std::string words;
    std::array<char, 4096> block{};
    while (const std::size_t read = std::fread(block.data(), 1, block.size(), output.get()))
        words.append(block.data(), read);
    return words;
}
#endif

} // namespace zev::test
