#include "output/image_name.h"

#include "toolkit/base/ansi.h"

namespace zev {

std::string offeredImageName(std::string_view cardName, std::string_view extension) {
    const std::string_view name = cardName.substr(0, cardName.find('.'));
    return std::string(name.empty() ? "Card Image" : name).append(extension);
}

std::optional<std::string> imageFileName(std::string_view answer, std::string_view extension) {
    std::string_view path = toolkit::trim(answer);
    // Dots in the names of folders don't count.
    const std::size_t separator = path.find_last_of("/\\");
    const std::size_t start = separator == std::string_view::npos ? 0 : separator + 1;
    std::string_view name = path.substr(start);
    const std::size_t dot = name.find('.');
    if (dot != std::string_view::npos) {
        if (toolkit::lowerCase(name).find(extension) != std::string::npos) return std::string(path);
        name = toolkit::trim(name.substr(0, dot));
    }
    if (name.empty()) return std::nullopt;
    return std::string(path.substr(0, start)).append(name).append(extension);
}

} // namespace zev
