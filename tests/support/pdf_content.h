// What stands in a PDF file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace zev::test {

/// The file with its packed streams laid open.
[[nodiscard]] std::string unpackedPdf(std::string_view file);

/// How the file says that it has this title, of ASCII characters.
[[nodiscard]] std::string pdfTitle(std::string_view title);

#ifndef _WIN32
/// Its words as a reader program finds them, in UTF-8, a blank between two words of a line.
[[nodiscard]] std::string wordsOfPdf(const std::filesystem::path& file);

/// What a command of the shell prints.
[[nodiscard]] std::string outputOf(const std::string& command);
#endif

} // namespace zev::test
