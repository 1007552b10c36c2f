#include "cards/diff_cards.h"

#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "cards/field_json.h"
#include "cards/filled_fields.h"
#include "cards/message_text.h"

namespace zev {
namespace {

struct ReadCard {
    std::filesystem::path file;
    CardDocument card;
};

std::string sideText(const CardField& field) {
    std::string text = field.value.empty() ? "-" : onOneLine(field.value);
    if (field.isHighlighted) text += " (highlighted)";
    return text;
}

void tellLines(std::ostream& out, const std::vector<ReadCard>& cards,
               const std::vector<FieldDifference>& differences) {
    if (differences.empty()) return;
    out << "< " << onOneLine(utf8Of(cards.front().file)) << "\n> "
        << onOneLine(utf8Of(cards.back().file)) << '\n';
    for (const auto& [left, right] : differences)
        out << '\n' << left.name << "\n< " << sideText(left) << "\n> " << sideText(right) << '\n';
}

void tellJson(std::ostream& out, const std::vector<ReadCard>& cards,
              const std::vector<FieldDifference>& differences) {
    out << "{\n  \"left\": " << jsonText(utf8Of(cards.front().file))
        << ",\n  \"right\": " << jsonText(utf8Of(cards.back().file)) << ",\n  \"differences\": [";
    const char* separator = "\n    ";
    for (const auto& [left, right] : differences) {
        out << separator << '{' << fieldIdJson(left) << ", \"left\": {" << fieldValueJson(left)
            << "}, \"right\": {" << fieldValueJson(right) << "}}";
        separator = ",\n    ";
    }
    out << (differences.empty() ? "]\n}\n" : "\n  ]\n}\n");
}

} // namespace

int diffCards(const CommandOptions& options, const Surroundings& surroundings) {
    std::vector<ReadCard> cards;
    const auto keep = [&](const std::filesystem::path& file, const CardReading& reading) {
        if (reading.isWhole)
            cards.push_back({file, reading.card});
        else
            tellFaults(surroundings.err, file, reading);
    };
    const bool areRead = forEachCard(options, surroundings, FoldersAsked::Refused, keep);
    if (!areRead || cards.size() != 2) return exit_status::trouble;
    const auto differences = differencesOf(cards.front().card, cards.back().card);
    if (options.json)
        tellJson(surroundings.out, cards, differences);
    else
        tellLines(surroundings.out, cards, differences);
    return differences.empty() ? exit_status::success : exit_status::someFailed;
}

} // namespace zev
