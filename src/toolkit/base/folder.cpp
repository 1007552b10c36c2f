#include "toolkit/base/folder.h"

#include <algorithm>

#include "toolkit/base/ansi.h"
#include "toolkit/base/path_text.h"

namespace toolkit {
namespace {

namespace fs = std::filesystem;

// An empty folder name stands for the current one, as it does at the head of a path.
fs::path openable(const fs::path& folder) { return folder.empty() ? fs::path(".") : folder; }

std::vector<fs::path> entriesOf(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code error;
    for (fs::directory_iterator entry(openable(folder), error);
         !error && entry != fs::directory_iterator(); entry.increment(error))
        entries.push_back(entry->path());
    // Whatever order the platform hands them out in, equal names are told apart alike in every run.
    std::ranges::sort(entries);
    return entries;
}

bool isRegularFile(const fs::path& path) {
    std::error_code ignored;
    return fs::is_regular_file(path, ignored);
}

} // namespace

std::optional<fs::path> findFile(const fs::path& folder, std::string_view name) {
    if (name.empty()) return std::nullopt;
    std::error_code ignored;
    fs::path exact = folder / pathFromText(name);
    if (fs::exists(exact, ignored)) return exact;
    for (const fs::path& entry : entriesOf(folder)) {
        const auto text = textFromPath(entry);
        if (text && equalWithoutCase(*text, name)) return folder / entry.filename();
    }
    return std::nullopt;
}

fs::path resolveFile(const fs::path& folder, std::string_view name) {
    return findFile(folder, name).value_or(folder / pathFromText(name));
}

std::vector<std::string> listFiles(const fs::path& folder, std::string_view ending) {
    std::vector<std::string> names;
    for (const fs::path& entry : entriesOf(folder)) {
        const auto name = textFromPath(entry);
        if (!name || name->size() < ending.size() || !isRegularFile(entry)) continue;
        const auto tail = std::string_view(*name).substr(name->size() - ending.size());
        if (equalWithoutCase(tail, ending)) names.push_back(*name);
    }
    std::ranges::sort(names, {}, [](const std::string& name) { return lowerCase(name); });
    return names;
}

} // namespace toolkit
