#include "layout/version.h"

#include "toolkit/base/ansi.h"

namespace zev {

bool isBelow(std::string_view version, std::string_view limit) { return version < limit; }

std::string versionText(int major, int minor, std::string_view revision) {
    std::string text = std::to_string(major) + "." + std::to_string(minor) + ".";
    constexpr std::size_t bracketedLength = 4;
    if (revision.size() != bracketedLength) return text.append(revision);
    return text.append(revision.substr(0, 2)).append("(").append(revision.substr(2)).append(")");
}

std::optional<std::string> comparedVersion(std::string_view layoutContent) {
    constexpr std::string_view announcement = "program version:";
    const std::size_t place = toolkit::lowerCase(layoutContent).find(announcement);
    if (place == std::string::npos) return std::string();
    // A blank stands between the colon and the version.
    const std::size_t start = layoutContent.find(':', place) + 2;
    const std::size_t end = layoutContent.find('\r', start);
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view version = layoutContent.substr(start, end - start);
    const std::size_t firstDot = version.find('.');
    if (firstDot == std::string_view::npos) return std::string(version);
    return std::string(version.substr(0, version.find('.', firstDot + 1)));
}

} // namespace zev
