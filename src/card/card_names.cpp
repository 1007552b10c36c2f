#include "card/card_names.h"

#include "card/card_file.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/file_names.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

bool isFileName(const std::string& name) {
    return toolkit::isPossibleFileName(name + std::string(cardExtension));
}

/// Whether a card's name can hold the character.
bool canHold(char character) {
    const std::string name{'x', character};
    return !hasForbiddenCharacter(name) && isFileName(name);
}

/// As much of the name as a file can have with this behind it; no blank before its end.
std::string cutToFit(std::string_view name, const std::string& ending) {
    while (!name.empty() && !isFileName(std::string(name) + ending)) name.remove_suffix(1);
    return std::string(toolkit::trim(name)) + ending;
}

} // namespace

std::string cleanedCardName(std::string_view name) {
    if (name.starts_with('\\') || name.starts_with('/')) name.remove_prefix(1);
    if (hasCardExtension(name)) name.remove_suffix(cardExtension.size());
    return std::string(name);
}

bool hasCardExtension(std::string_view name) {
    return name.size() >= cardExtension.size() &&
           toolkit::equalWithoutCase(name.substr(name.size() - cardExtension.size()),
                                     cardExtension);
}

bool hasForbiddenCharacter(std::string_view name) {
    return name.find_first_of("/\\:*?<>\"") != std::string_view::npos;
}

std::string cardNameFor(std::string_view fileName) {
    while (hasCardExtension(fileName)) fileName.remove_suffix(cardExtension.size());
    std::string name(fileName);
    for (char& character : name)
        if (!canHold(character)) character = '_';
    name = cutToFit(toolkit::trim(name), {});
    return name.empty() || isTemporaryCard(name) ? "Card" : name;
}

std::string numberedCardName(std::string_view name, int number) {
    return cutToFit(name, " " + toolkit::numberText(number));
}

bool isTemporaryCard(std::string_view name) {
    return toolkit::equalWithoutCase(cleanedCardName(name), temporaryCardName);
}

PlayerId splitPlayerId(std::string_view answer) {
    const std::string_view whole = toolkit::trim(answer);
    const std::size_t blank = whole.rfind(' ');
    if (blank == std::string_view::npos) return {std::string(whole), {}};
    const std::string_view left = toolkit::trim(whole.substr(0, blank));
    const std::string_view right = whole.substr(blank + 1);
    if (toolkit::wholeNumber(right)) return {std::string(left), std::string(right)};
    return {std::string(left) + " " + std::string(right), {}};
}

std::string playerLine(const PlayerId& player) {
    std::string line;
    if (!player.name.empty()) line = player.name + " ";
    if (!player.number.empty()) line += "#" + player.number;
    return std::string(toolkit::trim(line));
}

std::string composedNames(const NamesLine& line, NamesUpdate update) {
    const bool replaces = update == NamesUpdate::Replace;
    std::string caption = replaces || line.caption.empty() ? line.mine : line.caption;
    if (line.mine.empty() && line.partner.empty()) return caption.empty() ? line.cardName : caption;
    if (!line.mine.empty() && !line.partner.empty() && replaces)
        return line.mine + " && " + line.partner;
    const bool wantsPartner = line.mine.empty() && !line.partner.empty();
    if (wantsPartner && (caption.empty() || replaces)) return line.partner;
    return caption;
}

} // namespace zev
