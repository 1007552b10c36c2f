#include "layout/skip_comment.h"

#include "toolkit/base/ansi.h"

namespace zev {
namespace {

constexpr std::string_view announcement = "Program version:";
/// No version is longer; a long line of records that holds the words must not be copied each time.
constexpr std::size_t longestVersion = 256;

bool isComment(std::string_view line) {
    return line.starts_with('\'') || line.find_first_not_of(' ') == std::string_view::npos;
}

std::string_view versionIn(std::string_view text) {
    return toolkit::trim(text.substr(0, longestVersion));
}

} // namespace

bool skipComments(toolkit::TextInput& input, std::string& versionSeen) {
    while (!input.atEnd()) {
        const std::size_t start = input.position();
        const std::size_t announced = input.find(announcement);
        const std::string_view line = input.readLine();
        if (announced < start + line.size())
            versionSeen = versionIn(line.substr(announced - start + announcement.size()));
        if (isComment(line)) continue;
        input.seek(start);
        break;
    }
    return input.atEnd();
}

} // namespace zev
