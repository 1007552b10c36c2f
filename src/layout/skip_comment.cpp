#include "layout/skip_comment.h"

#include "toolkit/ansi.h"

namespace zev {
namespace {

void noteVersion(std::string_view line, std::string& versionSeen) {
    const std::size_t place = line.find("Program version:");
    if (place == std::string_view::npos) return;
    versionSeen = toolkit::trim(line.substr(line.find(':', place) + 1));
}

bool isComment(std::string_view line) {
    return line.starts_with('\'') || toolkit::trim(line).empty();
}

} // namespace

bool skipComments(toolkit::TextInput& input, std::string& versionSeen) {
    while (!input.atEnd()) {
        const std::size_t start = input.position();
        const std::string_view line = input.readLine();
        noteVersion(line, versionSeen);
        if (isComment(line)) continue;
        input.seek(start);
        break;
    }
    return input.atEnd();
}

} // namespace zev
