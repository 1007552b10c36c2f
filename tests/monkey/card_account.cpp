#include "monkey/card_account.h"

#include <algorithm>

namespace zev::test {
namespace {

std::string trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

bool isNumber(std::string_view text) {
    return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string playersLine(const CardPartner& player) {
    std::string line = player.name;
    if (!player.number.empty()) line += (line.empty() ? "#" : " #") + player.number;
    return line;
}

std::string restoredQuotes(std::string text) {
    constexpr char superscriptTwo = '\xB2';
    std::ranges::replace(text, superscriptTwo, '"');
    return text;
}

std::string told(const CardDocument::Text& text) {
    return "'" + text.text + "' with " + std::to_string(text.switches);
}

} // namespace

std::string rawText(std::string_view typed) {
    std::string raw;
    for (std::size_t i = 0; i < typed.size(); ++i) {
        raw += typed[i];
        if (typed[i] != '&') continue;
        raw += '&';
        if (typed.substr(i + 1).starts_with('&')) ++i;
    }
    return raw;
}

std::string typedText(std::string_view raw) {
    std::string typed;
    for (const char character : raw)
        if (character != '&' || !typed.ends_with('&')) typed += character;
    return typed;
}

CardPartner playerFrom(std::string_view answer) {
    const std::string whole = trimmed(answer);
    const auto blank = whole.rfind(' ');
    if (blank == std::string::npos || !isNumber(whole.substr(blank + 1))) return {whole, {}};
    return {trimmed(whole.substr(0, blank)), whole.substr(blank + 1)};
}

CardDocument CardAccount::withTyping() const {
    CardDocument shown = card;
    if (open) shown.texts.at(static_cast<std::size_t>(open->field) - 1).text = rawText(open->typed);
    return shown;
}

bool CardAccount::isTyping() const {
    if (!open) return false;
    // The box shows a run of ampersands as one, which isn't the player's typing.
    const std::string& present = card.texts.at(static_cast<std::size_t>(open->field) - 1).text;
    return rawText(open->typed) != rawText(typedText(present));
}

CardDocument::Text& CardAccount::text(int field) {
    const auto place = static_cast<std::size_t>(field) - 1;
    if (card.texts.size() <= place) card.texts.resize(place + 1);
    return card.texts[place];
}

void CardAccount::toggleMark(int mark) {
    const auto place = static_cast<std::size_t>(mark) - 1;
    if (card.marks.size() <= place) card.marks.resize(place + 1);
    card.marks[place] = !card.marks[place];
    star = true;
}

void CardAccount::toggle(int field, int flag) {
    text(field).switches ^= flag;
    star = true;
}

void CardAccount::setAll(int flag, bool on) {
    for (CardDocument::Text& field : card.texts)
        field.switches = on ? field.switches | flag : field.switches & ~flag;
}

void CardAccount::openText(int field) {
    commit();
    const CardDocument::Text& present = text(field);
    open = OpenField{.field = field,
                     .typed = typedText(present.text),
                     .opening = present.text,
                     .openingSwitches = present.switches};
}

void CardAccount::commit() {
    if (!open) return;
    const std::string raw = rawText(open->typed);
    if (raw != open->opening) star = true;
    text(open->field).text = raw;
    open.reset();
}

/// An undo leaves the highlight as it is.
void CardAccount::undo(bool boldCard) {
    open->typed = typedText(open->opening);
    int& switches = text(open->field).switches;
    switches = (switches & text_switch::highlight) |
               (open->openingSwitches & ~text_switch::highlight) |
               (boldCard ? text_switch::bold : 0);
}

void CardAccount::pasteWhole(const std::string& typed) {
    open->typed = typed;
    text(open->field).text = rawText(typed);
    star = true;
}

void CardAccount::clear(bool boldCard) {
    open.reset();
    star = false;
    card.cardName.clear();
    card.partner = {};
    card.marks.assign(card.marks.size(), false);
    card.texts.assign(card.texts.size(), {{}, boldCard ? text_switch::bold : 0});
}

std::string CardAccount::namesLine(const std::string& present, const std::string& mine,
                                   bool isForced) const {
    std::string partner = playersLine(card.partner);
    std::string line = isForced || present.empty() ? mine : present;
    if (mine.empty() && partner.empty()) return line.empty() ? card.cardName : line;
    if (!mine.empty() && !partner.empty() && isForced) return mine + " && " + partner;
    if (mine.empty() && (line.empty() || isForced)) return partner;
    return line;
}

void CardAccount::composeNames(int namesField, const CardPartner& mine, bool isForced) {
    if (namesField <= 0) return;
    CardDocument::Text& line = text(namesField);
    const std::string composed = rawText(namesLine(line.text, playersLine(mine), isForced));
    if (composed != line.text) star = true;
    line.text = composed;
    line.switches |= text_switch::bold;
}

void CardAccount::load(const CardDocument& stored, bool boldCard) {
    const std::string name = card.cardName;
    clear(boldCard);
    card.cardName = name;
    card.partner = stored.partner;
    for (std::size_t i = 0; i < std::min(card.marks.size(), stored.marks.size()); ++i)
        card.marks[i] = stored.marks[i];
    for (std::size_t i = 0; i < std::min(card.texts.size(), stored.texts.size()); ++i) {
        card.texts[i] = stored.texts[i];
        if (boldCard) card.texts[i].switches |= text_switch::bold;
    }
}

CardDocument asStored(CardDocument card) {
    card.partner = {restoredQuotes(card.partner.name), restoredQuotes(card.partner.number)};
    for (CardDocument::Text& text : card.texts)
        text.text = rawText(restoredQuotes(typedText(text.text)));
    return card;
}

CardDocument fittedTo(CardDocument card, int marks, int texts) {
    card.marks.resize(static_cast<std::size_t>(marks));
    card.texts.resize(static_cast<std::size_t>(texts));
    return card;
}

std::string difference(const CardDocument& expected, const CardDocument& found) {
    if (expected.cardName != found.cardName)
        return "name '" + expected.cardName + "' is '" + found.cardName + "'";
    if (expected.partner != found.partner)
        return "partner '" + expected.partner.name + "' is '" + found.partner.name + "'";
    const std::size_t marks = std::max(expected.marks.size(), found.marks.size());
    for (std::size_t i = 0; i < marks; ++i) {
        const bool wanted = i < expected.marks.size() && expected.marks[i];
        const bool set = i < found.marks.size() && found.marks[i];
        if (wanted != set)
            return "mark " + std::to_string(i + 1) + (set ? " is set" : " isn't set");
    }
    const std::size_t texts = std::min(expected.texts.size(), found.texts.size());
    for (std::size_t i = 0; i < texts; ++i)
        if (expected.texts[i] != found.texts[i])
            return "text " + std::to_string(i + 1) + " " + told(expected.texts[i]) + " is " +
                   told(found.texts[i]);
    for (const auto* longer : {&expected.texts, &found.texts})
        for (std::size_t i = texts; i < longer->size(); ++i)
            if (!(*longer)[i].text.empty())
                return "text " + std::to_string(i + 1) + " beyond the last: " + told((*longer)[i]);
    return {};
}

} // namespace zev::test
