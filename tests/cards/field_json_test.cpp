#include "cards/field_json.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(FieldJson, TellsNameKindAndNumber) {
    EXPECT_EQ(
        fieldIdJson({.kind = CardField::Kind::Mark, .number = 12, .name = "a, b", .value = ""}),
        "\"name\": \"a, b\", \"kind\": \"mark\", \"number\": 12");
    EXPECT_EQ(fieldIdJson({.kind = CardField::Kind::Text, .number = 1, .name = "c", .value = ""}),
              "\"name\": \"c\", \"kind\": \"text\", \"number\": 1");
}

TEST(FieldJson, AMarkIsTrueOrFalseAndATextAString) {
    CardField field{.kind = CardField::Kind::Mark, .number = 1, .name = "a", .value = "yes"};
    EXPECT_EQ(fieldValueJson(field), "\"value\": true");
    field.value.clear();
    EXPECT_EQ(fieldValueJson(field), "\"value\": false");
    field.kind = CardField::Kind::Text;
    field.value = "1\"";
    field.isHighlighted = true;
    EXPECT_EQ(fieldValueJson(field), "\"value\": \"1\\\"\", \"highlighted\": true");
}

} // namespace
} // namespace zev
