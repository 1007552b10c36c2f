#include "card/rescue_file.h"

#include <utility>

#include "card/write_card.h"

namespace zev {
namespace {

constexpr std::string_view rescueBanner =
    "' Changes to a card that were not saved.  Zevlin offers them at its next start.\r\n";
constexpr std::string_view nameKey = "' Card: ";
constexpr std::string_view fileKey = "' File: ";
constexpr std::string_view headLineEnd = "\r\n";

std::string headLine(std::string_view key, std::string_view value) {
    return std::string(key).append(value).append(headLineEnd);
}

/// The value after the key, which begins a line of the head.
std::string_view valueIn(std::string_view content, std::string_view key) {
    if (!content.starts_with(rescueBanner)) return {};
    const std::size_t place = content.find(key);
    if (place == std::string_view::npos) return {};
    content.remove_prefix(place + key.size());
    return content.substr(0, content.find(headLineEnd));
}

} // namespace

std::string writeRescue(const RescuedCard& card) {
    return std::string(rescueBanner) + headLine(nameKey, card.name) +
           headLine(fileKey, fileStateText(card.file)) + writeCard(card.document);
}

RescuedCard readRescue(std::string content) {
    RescuedCard card;
    card.name = valueIn(content, nameKey);
    card.file = fileStateFrom(valueIn(content, fileKey));
    card.document = readCard(std::move(content));
    return card;
}

} // namespace zev
