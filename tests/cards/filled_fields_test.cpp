#include "cards/filled_fields.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace zev {
namespace {

CardDocument cardOf(std::size_t marks, std::size_t texts) {
    CardDocument card;
    card.marks.resize(marks);
    card.texts.resize(texts);
    return card;
}

std::vector<std::string> namesOf(const std::vector<CardField>& fields) {
    std::vector<std::string> names;
    std::ranges::transform(fields, std::back_inserter(names), &CardField::name);
    return names;
}

TEST(FilledFields, StandSectionBySectionMarksBeforeTexts) {
    const auto names = namesOf(fieldsOf(cardOf(12, 4)));
    ASSERT_EQ(names.size(), 16U);
    EXPECT_EQ(names[0], "Names, both partners");
    EXPECT_EQ(names[1], "General approach, two over one game forcing");
    EXPECT_EQ(names[10], "General approach, other forcing opening");
    EXPECT_EQ(names[11], "General approach, description");
    EXPECT_EQ(names[13], "Notrump opening bids, 5-card major common");
    EXPECT_EQ(names[15], "Notrump opening bids, 1 notrump, lowest points");
}

TEST(FilledFields, WhatAPlayerHasAddedComesLast) {
    const auto names = namesOf(fieldsOf(cardOf(272, 98)));
    ASSERT_EQ(names.size(), 370U);
    EXPECT_EQ(names[368], "Check box 272");
    EXPECT_EQ(names[369], "Text area 98");
}

TEST(FilledFields, AreThoseWithSomethingInThem) {
    CardDocument card = cardOf(2, 4);
    card.marks[1] = true;
    card.texts[0].text = " \xA0 ";
    card.texts[1] = {"", 8};
    card.texts[3].text = "15";
    const auto fields = filledFieldsOf(card);
    EXPECT_EQ(
        namesOf(fields),
        (std::vector<std::string>{
            "General approach, two over one game forcing except when suit rebid",
            "General approach, description", "Notrump opening bids, 1 notrump, lowest points"}));
    EXPECT_EQ(fields[0].value, "yes");
    EXPECT_TRUE(fields[1].isHighlighted);
    EXPECT_EQ(fields[2].value, "15");
}

TEST(FilledFields, TextsReadAsOnTheCard) {
    CardDocument card = cardOf(1, 1);
    card.texts[0].text = " 1^c\xA0^D^h^S ^x && \xE9 ";
    EXPECT_EQ(filledFieldsOf(card).at(0).value, "1\u2663 \u2666\u2665\u2660 ^x & \u00E9");
}

TEST(FilledFields, AFieldThatOneCardLacksIsEmptyInIt) {
    CardDocument longer = cardOf(2, 3);
    longer.marks[1] = true;
    longer.texts[2].text = "a";
    const auto differences = differencesOf(cardOf(1, 1), longer);
    ASSERT_EQ(differences.size(), 2U);
    EXPECT_EQ(differences[0].left.value, "");
    EXPECT_EQ(differences[0].right.value, "yes");
    EXPECT_EQ(differences[1].left.name, differences[1].right.name);
    EXPECT_EQ(differences[1].right.value, "a");
}

} // namespace
} // namespace zev
