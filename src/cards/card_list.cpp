#include "cards/card_list.h"

#include <algorithm>
#include <system_error>
#include <utility>
#include <vector>

#include "card/card_file.h"
#include "card/card_names.h"
#include "cards/message_text.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/folder.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view circleText = "links that lead in a circle";
constexpr std::string_view noFileText = "neither a file nor a folder";

std::string describe(const std::error_code& error) {
    if (error == std::errc::too_many_symbolic_link_levels) return std::string(circleText);
    return textOf(error);
}

/// What keeps a thing that is no file from being read as a card.
std::string obstacle(const fs::file_status& status, const std::error_code& error) {
    if (fs::is_directory(status)) return "a folder, where a card should stand";
    if (fs::exists(status)) return std::string(noFileText);
    if (status.type() == fs::file_type::not_found)
        return std::string(toolkit::describe(toolkit::Failure::FileNotFound));
    return describe(error);
}

bool isCardName(std::string_view name) {
    return name.size() >= cardExtension.size() &&
           toolkit::equalWithoutCase(name.substr(name.size() - cardExtension.size()),
                                     cardExtension) &&
           !isTemporaryCard(name);
}

/// By their bytes, so that a run goes the same way on every machine.
std::vector<fs::path> sortedEntries(const fs::path& folder, std::error_code& error) {
    std::vector<fs::path> entries;
    fs::directory_iterator entry(folder, error);
    while (!error && entry != fs::directory_iterator()) {
        entries.push_back(entry->path());
        entry.increment(error);
    }
    std::ranges::sort(entries, {}, &fs::path::native);
    return entries;
}

/// Empty where the folder has no card of this name.
fs::path cardIn(const fs::path& folder, const std::string& name) {
    if (folder.empty()) return {};
    for (const std::string& candidate : {name + std::string(cardExtension), name}) {
        const auto card = toolkit::findFile(folder, candidate);
        std::error_code ignored;
        if (card && fs::is_regular_file(*card, ignored)) return *card;
    }
    return {};
}

} // namespace

CardList::CardList(Settings settings, Take take, Complain complain)
    : settings_(std::move(settings)), take_(std::move(take)), complain_(std::move(complain)) {}

void CardList::add(std::string_view utf8) {
    fs::path path;
    try {
        path = pathOf(utf8);
    } catch (const toolkit::RunTimeError& failure) {
        return complain_(onOneLine(utf8) + ": " + failure.description());
    }
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (fs::is_regular_file(status)) return takeCard(path);
    if (settings_.takesFolders && fs::is_directory(status)) return addFolder(path);
    if (const fs::path card = named(utf8); !card.empty()) return takeCard(card);
    complain(path, obstacle(status, error));
}

void CardList::addFolder(const fs::path& folder) {
    walked_.clear();
    found_ = 0;
    walk(folder);
    if (found_ == 0) complain(folder, "no cards in this folder");
}

void CardList::walk(const fs::path& folder) {
    std::error_code error;
    const fs::path place = fs::canonical(folder, error);
    if (error) return complain(folder, describe(error));
    if (way_.contains(place)) return complain(folder, circleText);
    if (!walked_.insert(place).second) return;
    way_.insert(place);
    const std::vector<fs::path> entries = sortedEntries(folder, error);
    if (error) complain(folder, describe(error));
    for (const fs::path& entry : entries) {
        const fs::file_status status = fs::status(entry, error);
        if (fs::is_directory(status))
            walk(entry);
        else if (!isCardName(utf8Of(entry.filename())))
            continue;
        else if (fs::is_regular_file(status))
            takeCard(entry);
        else
            complain(entry, obstacle(status, error));
    }
    way_.erase(place);
}

void CardList::takeCard(const fs::path& card) {
    ++found_;
    take_(card);
}

void CardList::complain(const fs::path& path, std::string_view what) {
    ++found_;
    complain_(onOneLine(utf8Of(path)) + ": " + std::string(what));
}

fs::path CardList::named(std::string_view utf8) {
    const std::string name = toolkit::ansiFromUtf8(utf8);
    if (name.empty() || name.find_first_of("/\\") != std::string::npos ||
        toolkit::utf8FromAnsi(name) != utf8)
        return {};
    if (!dataFolder_) dataFolder_ = settings_.dataFolder();
    if (fs::path card = cardIn(*dataFolder_, name); !card.empty()) return card;
    if (!settings_.installedFolder) return {};
    if (!installedFolder_) installedFolder_ = settings_.installedFolder();
    return cardIn(*installedFolder_, name);
}

} // namespace zev
