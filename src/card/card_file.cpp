#include "card/card_file.h"

#include <algorithm>
#include <utility>

#include "layout/skip_comment.h"
#include "layout/version.h"
#include "text/escapes.h"
#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"
#include "toolkit/base/number_text.h"

namespace zev {
namespace {

/// Stands before and after the style flags that end a text of the old format.
constexpr std::string_view flagMark = "\\\\";
/// A record with this in place of its bit-switches counts as one of the old format.
constexpr int noSwitches = -1;

void putBackQuotes(std::string& text) { std::ranges::replace(text, toolkit::superscriptTwo, '"'); }

bool contains(std::string_view flags, char flag) {
    return flags.find(flag) != std::string_view::npos;
}

int switchesOf(std::string_view flags) {
    return (contains(flags, 'B') ? text_switch::bold : 0) |
           (contains(flags, 'I') ? text_switch::italic : 0) |
           (contains(flags, 'L') ? text_switch::left : 0);
}

void takeFlags(TextRecord& record) {
    if (!record.text.ends_with(flagMark)) return;
    const std::size_t split = record.text.find(flagMark);
    record.switches = switchesOf(std::string_view(record.text).substr(split));
    record.style = TextRecord::Style::Suffix;
    record.text.resize(split);
}

/// The index of a field number in a list of `count` fields; failure 9 where it has none.
std::size_t placeOf(int number, std::size_t count) {
    if (number < 1 || static_cast<std::size_t>(number) > count)
        throw toolkit::RunTimeError(toolkit::Failure::SubscriptOutOfRange);
    return static_cast<std::size_t>(number) - 1;
}

std::size_t readListSize(CardReader& card) {
    return static_cast<std::size_t>(std::max(0, card.readCount()));
}

void readMarks(CardReader& card, CardDocument& document) {
    document.marks.resize(readListSize(card));
    for (std::size_t i = 0; i < document.marks.size(); ++i) {
        const MarkRecord record = card.readMark();
        document.marks[placeOf(record.number, document.marks.size())] = record.set;
    }
}

void readTexts(CardReader& card, CardDocument& document) {
    document.texts.resize(readListSize(card));
    for (std::size_t i = 0; i < document.texts.size(); ++i) {
        TextRecord record = card.readText();
        AmpRem(record.text);
        AmpAdd(record.text);
        document.texts[placeOf(record.number, document.texts.size())] = {std::move(record.text),
                                                                         record.switches};
    }
}

} // namespace

CardReader::CardReader(std::string content, const std::string& versionSeen, Skip skip)
    : input_(std::move(content)), versionSeen_(versionSeen), skip_(std::move(skip)) {}

std::string CardReader::readPartnerName() {
    skip_(input_);
    return readPartnerNumber();
}

std::string CardReader::readPartnerNumber() {
    std::string text = input_.readText();
    putBackQuotes(text);
    return text;
}

int CardReader::readCount() {
    skip_(input_);
    return input_.readInteger();
}

MarkRecord CardReader::readMark() {
    skip_(input_);
    MarkRecord record;
    record.number = input_.readInteger();
    record.set = truthValue(input_.readText());
    if (hasSwitches()) static_cast<void>(input_.readInteger());
    return record;
}

TextRecord CardReader::readText() {
    skip_(input_);
    TextRecord record;
    record.number = input_.readInteger();
    record.text = input_.readText();
    const int switches = hasSwitches() ? input_.readInteger() : noSwitches;
    if (switches == noSwitches) {
        takeFlags(record);
    } else {
        record.switches = switches;
        record.style = TextRecord::Style::Switches;
    }
    putBackQuotes(record.text);
    return record;
}

bool CardReader::hasSwitches() const { return !isBelow(versionSeen_, switchesVersion); }

CardDocument readCard(std::string content) {
    CardDocument document;
    // The version of the head tells the format; a text of the card may say "Program version:", too.
    std::string version;
    const auto takeFirst = [&version](toolkit::TextInput& input) {
        std::string seen;
        const bool ended = skipComments(input, seen);
        if (version.empty()) version = seen;
        return ended;
    };
    CardReader card(std::move(content), version, takeFirst);
    document.partner.name = card.readPartnerName();
    document.partner.number = card.readPartnerNumber();
    document.programVersion = version;
    readMarks(card, document);
    readTexts(card, document);
    return document;
}

bool isCard(std::string content) {
    std::string version;
    CardReader card(std::move(content), version,
                    [&version](toolkit::TextInput& input) { return skipComments(input, version); });
    try {
        static_cast<void>(card.readPartnerName());
        static_cast<void>(card.readPartnerNumber());
        const int marks = card.readCount();
        for (int i = 1; i <= marks; ++i)
            if (card.readMark().number < 0) return false;
        const int texts = card.readCount();
        for (int i = 1; i <= texts; ++i)
            if (card.readText().number < 0) return false;
        return marks > 0 && texts > 0;
    } catch (const toolkit::RunTimeError&) {
        return false;
    }
}

bool truthValue(std::string_view state) {
    if (toolkit::equalWithoutCase(state, "true")) return true;
    if (toolkit::equalWithoutCase(state, "false")) return false;
    const auto number = toolkit::wholeNumber(state);
    if (!number) throw toolkit::RunTimeError(toolkit::Failure::TypeMismatch);
    return *number != 0;
}

} // namespace zev
