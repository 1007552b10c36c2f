#include "app/command_line.h"

#include "toolkit/base/path_text.h"

namespace zev {

std::string cardNameOf(std::string_view commandLine) {
    const std::size_t separator = commandLine.find_last_of("\\/");
    if (separator != std::string_view::npos) commandLine.remove_prefix(separator + 1);
    const std::string_view name = commandLine.substr(0, commandLine.find('.'));
    return toolkit::textFromPath(std::u8string(name.begin(), name.end())).value_or("");
}

} // namespace zev
