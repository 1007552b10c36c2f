#include "cards/field_json.h"

#include "cards/message_text.h"
#include "toolkit/base/number_text.h"

namespace zev {

std::string fieldIdJson(const CardField& field) {
    const bool isMark = field.kind == CardField::Kind::Mark;
    return "\"name\": " + jsonText(field.name) + ", \"kind\": \"" + (isMark ? "mark" : "text") +
           "\", \"number\": " + toolkit::numberText(field.number);
}

std::string fieldValueJson(const CardField& field) {
    std::string value = "\"value\": ";
    if (field.kind == CardField::Kind::Mark)
        value += field.value.empty() ? "false" : "true";
    else
        value += jsonText(field.value);
    if (field.isHighlighted) value += ", \"highlighted\": true";
    return value;
}

} // namespace zev
