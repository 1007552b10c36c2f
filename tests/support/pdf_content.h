// What stands in a PDF file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zev::test {

/// The file with its packed streams laid open.
[[nodiscard]] std::string unpackedPdf(std::string_view file);

/// How often a text stands in the file.
[[nodiscard]] int timesInPdf(std::string_view file, std::string_view text);
[[nodiscard]] inline bool isInPdf(std::string_view file, std::string_view text) {
    return file.find(text) != std::string_view::npos;
}

/// How the file says that it has this title, of ASCII characters.
[[nodiscard]] std::string pdfTitle(std::string_view title);

/// When the file says that it was made, as it stands there; an empty text if it says nothing.
[[nodiscard]] std::string dateOfPdf(std::string_view file);

/// The file without that.
[[nodiscard]] std::string withoutDateOfPdf(std::string file);

/// The numbers that follow the first place, at `from` or behind it, where `mark` stands.
[[nodiscard]] std::vector<float> numbersAfter(std::string_view content, std::string_view mark,
                                              std::size_t from = 0);

/// Up to `count` numbers, blanks between them, that end in front of the place `end`.
[[nodiscard]] std::vector<float> numbersBefore(std::string_view content, std::size_t end,
                                               std::size_t count);

#ifndef _WIN32
/// Its words as a reader program finds them, in UTF-8, a blank between two words of a line.
[[nodiscard]] std::string wordsOfPdf(const std::filesystem::path& file);

/// What a command of the shell prints.
[[nodiscard]] std::string outputOf(const std::string& command);
#endif

} // namespace zev::test
