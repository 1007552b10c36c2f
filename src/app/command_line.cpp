#include "app/command_line.h"

namespace zev {

std::string cardNameOf(std::string_view commandLine) {
    const std::size_t separator = commandLine.find_last_of("\\/");
    if (separator != std::string_view::npos) commandLine.remove_prefix(separator + 1);
    return std::string(commandLine.substr(0, commandLine.find('.')));
}

} // namespace zev
