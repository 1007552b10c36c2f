#include "support/pdf_content.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <memory>
#include <stdexcept>

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
        content += inflated(file.substr(first, past - first));
        from = std::min(past, file.size());
    }
    return content.append(file.substr(from));
}

std::string pdfTitle(std::string_view title) {
    std::string entry = "/Title (\xFE\xFF";
    for (const char character : title) (entry += '\0') += character;
    return entry + ')';
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
