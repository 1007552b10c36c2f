#include "cards/page_plan.h"

#include <algorithm>
#include <functional>
#include <system_error>

#include "card/card_names.h"
#include "cards/message_text.h"
#include "toolkit/base/ansi.h"

namespace zev {
namespace {

namespace fs = std::filesystem;

std::string endingOf(const CommandOptions& options) {
    if (options.command == Command::Image) return "." + options.imageType;
    return options.owner == CardOwner::Partner ? " - partner.pdf" : ".pdf";
}

/// By which names that are one file's compare equal.
std::string keyOf(const fs::path& name) {
#ifdef _WIN32
    return toolkit::lowerCase(utf8Of(name));
#else
    return utf8Of(name);
#endif
}

std::size_t hashOf(const fs::path& name) { return std::hash<std::string>()(keyOf(name)); }

fs::path folderOf(const CommandOptions& options) { return pathOf(options.outputFolder); }

bool isNewer(const fs::path& file, const fs::path& than) {
    std::error_code error;
    const auto time = fs::last_write_time(file, error);
    if (error) return false;
    const auto other = fs::last_write_time(than, error);
    return !error && time >= other;
}

} // namespace

fs::path outputName(const CommandOptions& options, const fs::path& card) {
    const fs::path name = card.filename();
    fs::path output = hasCardExtension(utf8Of(name)) ? name.stem() : name;
    return output += endingOf(options);
}

void PagePlan::add(const fs::path& card) { cards_.push_back(card.native()); }

fs::path PagePlan::output(std::size_t index) const {
    if (!options_.together.empty()) return pathOf(options_.together);
    return folderOf(options_) / outputName(options_, cards_[index]);
}

std::vector<std::string> PagePlan::clashes() const {
    std::vector<std::string> found;
    if (!options_.together.empty()) return found;
    const std::vector<NamedFile> files = sortedFiles();
    const auto tell = [this](std::size_t index) { return onOneLine(utf8Of(cards_[index])); };
    for (const auto& [first, second] : pairsOf(files))
        found.push_back(onOneLine(utf8Of(output(second))) + ": would be made of " + tell(first) +
                        " and of " + tell(second));
    for (std::size_t i = 0; i < cards_.size(); ++i) {
        const fs::path name = fs::path(cards_[i]).filename();
        std::error_code ignored;
        if (std::ranges::binary_search(files, hashOf(name), {}, &NamedFile::hash) &&
            fs::equivalent(folderOf(options_) / name, cards_[i], ignored))
            found.push_back(tell(i) + ": would be written over");
    }
    return found;
}

std::vector<PagePlan::NamedFile> PagePlan::sortedFiles() const {
    std::vector<NamedFile> files;
    files.reserve(cards_.size());
    for (std::size_t i = 0; i < cards_.size(); ++i)
        files.push_back({hashOf(outputName(options_, cards_[i])), i});
    std::ranges::sort(files);
    return files;
}

/// Each card with the next one of the same file, in the order of the cards.
std::vector<std::pair<std::size_t, std::size_t>>
PagePlan::pairsOf(const std::vector<NamedFile>& files) const {
    std::vector<std::pair<std::size_t, std::size_t>> pairs;
    const auto nameOf = [&](const NamedFile& file) {
        return keyOf(outputName(options_, cards_[file.index]));
    };
    for (std::size_t i = 1; i < files.size(); ++i)
        if (files[i - 1].hash == files[i].hash && nameOf(files[i - 1]) == nameOf(files[i]))
            pairs.emplace_back(files[i - 1].index, files[i].index);
    std::ranges::sort(pairs);
    return pairs;
}

bool PagePlan::isUpToDate(std::size_t index) const {
    const fs::path file = output(index);
    return isNewer(file, cards_[index]) &&
           (options_.layout.empty() || isNewer(file, pathOf(options_.layout)));
}

void PagePlan::dropUpToDate() {
    std::vector<bool> isGood(cards_.size());
    for (std::size_t i = 0; i < cards_.size(); ++i) isGood[i] = isUpToDate(i);
    if (!options_.together.empty() && !std::ranges::all_of(isGood, std::identity())) return;
    std::size_t kept = 0;
    for (std::size_t i = 0; i < cards_.size(); ++i)
        if (!isGood[i]) cards_[kept++].swap(cards_[i]);
    cards_.resize(kept);
}

} // namespace zev
