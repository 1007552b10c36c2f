#include "app/command_line.h"

#include <system_error>

#include "card/card_names.h"
#include "toolkit/base/file_address.h"
#include "toolkit/base/path_text.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

bool isPath(std::string_view text) {
    return text.find_first_of("\\/") != std::string_view::npos || hasCardExtension(text);
}

} // namespace

std::optional<fs::path> fileNamedBy(std::string_view commandLine) {
    if (!isPath(commandLine)) return std::nullopt;
    const fs::path named = toolkit::fileOfAddress(commandLine)
                               .value_or(std::u8string(commandLine.begin(), commandLine.end()));
    std::error_code ignored;
    fs::path file = fs::absolute(named, ignored);
    if (!fs::is_regular_file(file, ignored)) return std::nullopt;
    return file;
}

std::string cardNameOf(std::string_view commandLine) {
    const std::size_t separator = commandLine.find_last_of("\\/");
    if (separator != std::string_view::npos) commandLine.remove_prefix(separator + 1);
    const std::string_view name = commandLine.substr(0, commandLine.find('.'));
    return toolkit::textFromPath(std::u8string(name.begin(), name.end())).value_or("");
}

} // namespace zev
