#include "cards/filled_fields.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string_view>
#include <tuple>
#include <utility>

#include "layout/field_names.h"
#include "text/escapes.h"
#include "toolkit/base/ansi.h"
#include "toolkit/text/typed_text.h"

namespace zev {
namespace {

std::string readValue(std::string raw) {
    AmpRem(raw);
    std::ranges::replace(raw, toolkit::noBreakSpace, ' ');
    return toolkit::utf8ForOthers(toolkit::trim(raw));
}

CardField fieldOf(int number, bool isSet) {
    return {.kind = CardField::Kind::Mark,
            .number = number,
            .name = nameOfMark(number),
            .value = isSet ? "yes" : "",
            .isHighlighted = false};
}

CardField fieldOf(int number, const CardDocument::Text& text) {
    return {.kind = CardField::Kind::Text,
            .number = number,
            .name = nameOfText(number),
            .value = readValue(text.text),
            .isHighlighted = (text.switches & text_switch::highlight) != 0};
}

std::string_view sectionOf(const CardField& field) {
    const std::string_view name = field.name;
    const std::size_t comma = name.find(", ");
    return comma == std::string_view::npos ? std::string_view{} : name.substr(0, comma);
}

/// Every section has a text but a few at the end, so the texts tell the order. What a player has
/// added has no section and comes last.
std::vector<std::string> sectionsOf(const std::vector<CardField>& fields) {
    std::vector<std::string> sections;
    const auto addThose = [&](CardField::Kind kind) {
        for (const CardField& field : fields) {
            const std::string_view section = sectionOf(field);
            if (field.kind == kind && !section.empty() &&
                std::ranges::find(sections, section) == sections.end())
                sections.emplace_back(section);
        }
    };
    addThose(CardField::Kind::Text);
    addThose(CardField::Kind::Mark);
    return sections;
}

void sortBySection(std::vector<CardField>& fields) {
    const std::vector<std::string> sections = sectionsOf(fields);
    std::ranges::sort(fields, {}, [&](const CardField& field) {
        const auto section = std::ranges::find(sections, sectionOf(field)) - sections.begin();
        return std::tuple(section, field.kind, field.number);
    });
}

bool readsTheSame(const CardField& left, const CardField& right) {
    return left.value == right.value && left.isHighlighted == right.isHighlighted;
}

} // namespace

std::vector<CardField> fieldsOf(const CardDocument& card) {
    std::vector<CardField> fields;
    fields.reserve(card.marks.size() + card.texts.size());
    int number = 0;
    for (const bool isSet : card.marks) fields.push_back(fieldOf(++number, isSet));
    number = 0;
    for (const CardDocument::Text& text : card.texts) fields.push_back(fieldOf(++number, text));
    sortBySection(fields);
    return fields;
}

std::vector<CardField> filledFieldsOf(const CardDocument& card) {
    std::vector<CardField> fields = fieldsOf(card);
    std::erase_if(fields, [](const CardField& field) { return !field.isFilledIn(); });
    return fields;
}

std::vector<FieldDifference> differencesOf(CardDocument left, CardDocument right) {
    // With as many fields in both, they stand in the same order.
    left.marks.resize(std::max(left.marks.size(), right.marks.size()));
    right.marks.resize(left.marks.size());
    left.texts.resize(std::max(left.texts.size(), right.texts.size()));
    right.texts.resize(left.texts.size());
    std::vector<CardField> ofLeft = fieldsOf(left);
    std::vector<CardField> ofRight = fieldsOf(right);
    std::vector<FieldDifference> differences;
    for (std::size_t i = 0; i < ofLeft.size(); ++i) {
        if (readsTheSame(ofLeft[i], ofRight[i])) continue;
        differences.push_back({std::move(ofLeft[i]), std::move(ofRight[i])});
    }
    return differences;
}

} // namespace zev
