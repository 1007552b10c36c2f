#include "card/file_state.h"

#include <sstream>

#include "toolkit/base/error.h"
#include "toolkit/base/files.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

std::int64_t timeOf(const fs::path& file) {
    std::error_code ignored;
    return static_cast<std::int64_t>(fs::last_write_time(file, ignored).time_since_epoch().count());
}

} // namespace

FileState fileState(const fs::path& file, std::string_view content) {
    return {.exists = true,
            .size = content.size(),
            .time = timeOf(file),
            .content = contentHash(content)};
}

bool isChanged(const fs::path& file, const FileState& before) {
    std::error_code error;
    const bool exists = fs::exists(file, error);
    // If the file can't be examined, the save will fail and say why.
    if (error) return false;
    if (exists != before.exists) return true;
    if (!exists) return false;
    try {
        return contentHash(toolkit::readFile(file)) != before.content;
    } catch (const toolkit::RunTimeError&) {
        return fs::file_size(file, error) != before.size || timeOf(file) != before.time;
    }
}

std::string fileStateText(const FileState& state) {
    if (!state.exists) return "0";
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << "1 " << state.size << ' ' << state.time << ' ' << state.content;
    return text.str();
}

FileState fileStateFrom(std::string_view text) {
    std::istringstream values{std::string(text)};
    values.imbue(std::locale::classic());
    int exists = 0;
    FileState state;
    if (!(values >> exists >> state.size >> state.time >> state.content) || exists != 1) return {};
    state.exists = true;
    return state;
}

} // namespace zev
