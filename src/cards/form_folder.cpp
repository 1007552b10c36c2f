#include "cards/form_folder.h"

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

#include "cards/message_text.h"
#include "form/options_file.h"
#include "layout/layout_file.h"
#include "toolkit/base/error.h"
#include "toolkit/base/files.h"
#include "toolkit/base/folder.h"
#include "toolkit/base/number_text.h"
#include "toolkit/base/write_file.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

constexpr const char* pictureName = "Convention card.gif";
/// The step of the zoom ladder at which the card has its full size.
constexpr const char* fullSize = "Zoom=11\r\n";

/// Copies what it holds, so the copy can be written to.
void copyTo(const fs::path& source, const fs::path& target) {
    std::string what = onOneLine(utf8Of(source));
    try {
        const std::string content = toolkit::readFile(source);
        what = onOneLine(utf8Of(target));
        toolkit::writeTemporaryFile(target, content);
    } catch (const toolkit::RunTimeError& failure) {
        throw Trouble{what + ": " + failure.description()};
    }
}

bool copyIfThere(const fs::path& folder, const char* name, const fs::path& target) {
    const auto file = folder.empty() ? std::nullopt : toolkit::findFile(folder, name);
    std::error_code ignored;
    if (!file || !fs::is_regular_file(*file, ignored)) return false;
    copyTo(*file, target);
    return true;
}

void writeOptions(const fs::path& file) {
    try {
        std::error_code ignored;
        const std::string players = fs::exists(file, ignored) ? toolkit::readFile(file) : "";
        toolkit::writeTemporaryFile(file, formOptions(players));
    } catch (const toolkit::RunTimeError& failure) {
        throw Trouble{onOneLine(utf8Of(file)) + ": " + failure.description()};
    }
}

/// Whether the form is to have it otherwise than the player.
bool isReplaced(std::string_view line) {
    constexpr auto keys = std::to_array<std::string_view>(
        {"zoom", "fit", "printalt", "printer", "paperbin", "trace"});
    const auto option = parseOption(line);
    return option && std::ranges::find(keys, option->key) != keys.end();
}

} // namespace

TemporaryFolder::TemporaryFolder(const fs::path& parent) {
    std::random_device random;
    std::error_code error;
    const fs::path place = parent.empty() ? fs::temp_directory_path(error) : parent;
    while (!error) {
        path_ = place / ("zevlin-cards-" + toolkit::numberText(static_cast<int>(random() >> 1U)));
        if (!fs::create_directory(path_, error)) continue;
        fs::permissions(path_, fs::perms::owner_all, error);
        if (!error) return;
    }
    throw Trouble{onOneLine(utf8Of(place)) + ": " + textOf(error)};
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

std::string formOptions(std::string_view players) {
    std::string options;
    while (!players.empty()) {
        const std::size_t end = std::min(players.find('\n'), players.size() - 1) + 1;
        const std::string_view line = players.substr(0, end);
        if (!isReplaced(line)) options.append(line);
        players.remove_prefix(end);
    }
    if (!options.empty() && !options.ends_with('\n')) options += "\r\n";
    return options + fullSize;
}

void fillFormFolder(const fs::path& folder, const CommandOptions& options,
                    const Surroundings& surroundings) {
    const fs::path players = surroundings.dataFolder();
    copyIfThere(players, optionsFileName, folder / optionsFileName);
    writeOptions(folder / optionsFileName);
    copyIfThere(players, pictureName, folder / pictureName);
    if (!options.layout.empty()) return copyTo(pathOf(options.layout), folder / layoutFileName);
    // A job of Zevlin's has its own layout in the place of the player's.
    if (!copyIfThere(players, setAsideName, folder / layoutFileName))
        copyIfThere(players, layoutFileName, folder / layoutFileName);
}

} // namespace zev
