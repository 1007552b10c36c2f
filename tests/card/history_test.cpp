#include "card/history.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

CardDocument cardWith(std::vector<bool> marks) {
    CardDocument card;
    card.marks = std::move(marks);
    card.texts.resize(1);
    return card;
}

CardDocument cardSaying(std::string text) {
    CardDocument card = cardWith({false});
    card.texts[0].text = std::move(text);
    return card;
}

TEST(CardHistory, ACardThatIsTheSameIsNoStep) {
    CardHistory history;
    history.begin(cardWith({false}), true);
    history.note(cardWith({false}));
    EXPECT_EQ(history.toUndo(), nullptr);
    EXPECT_TRUE(history.isSaved());
}

TEST(CardHistory, GoesBackAndForward) {
    CardHistory history;
    history.begin(cardSaying("a"), true);
    history.note(cardSaying("b"));
    history.note(cardSaying("c"));
    EXPECT_EQ(history.undo().texts.at(0).after.text, "b");
    EXPECT_EQ(history.card(), cardSaying("b"));
    EXPECT_EQ(history.undo().texts.at(0).after.text, "a");
    EXPECT_EQ(history.toUndo(), nullptr);
    EXPECT_EQ(history.redo().texts.at(0).after.text, "b");
    EXPECT_EQ(history.redo().texts.at(0).after.text, "c");
    EXPECT_EQ(history.toRedo(), nullptr);
    EXPECT_EQ(history.card(), cardSaying("c"));
}

TEST(CardHistory, ANewStepForgetsWhatWasTakenBack) {
    CardHistory history;
    history.begin(cardSaying("a"), true);
    history.note(cardSaying("b"));
    static_cast<void>(history.undo());
    history.note(cardSaying("c"));
    EXPECT_EQ(history.toRedo(), nullptr);
    EXPECT_EQ(history.undo().texts.at(0).after.text, "a");
    EXPECT_TRUE(history.isSaved());
}

TEST(CardHistory, KnowsWhereTheCardWasSaved) {
    CardHistory history;
    history.begin(cardSaying("a"), false);
    EXPECT_FALSE(history.isSaved());
    history.note(cardSaying("b"));
    history.markSaved();
    history.note(cardSaying("c"));
    EXPECT_FALSE(history.isSaved());
    static_cast<void>(history.undo());
    EXPECT_TRUE(history.isSaved());
    static_cast<void>(history.undo());
    EXPECT_FALSE(history.isSaved());
    // The way to the saved card is given up.
    history.note(cardSaying("d"));
    EXPECT_FALSE(history.isSaved());
}

TEST(CardHistory, KeepsAThousandSteps) {
    CardHistory history;
    history.begin(cardSaying("0"), true);
    for (int i = 1; i <= 1001; ++i) history.note(cardSaying(std::to_string(i)));
    std::size_t steps = 0;
    for (; history.toUndo() != nullptr; ++steps) static_cast<void>(history.undo());
    EXPECT_EQ(steps, CardHistory::mostSteps);
    EXPECT_EQ(history.card(), cardSaying("1"));
    // The saved card is a step further back.
    EXPECT_FALSE(history.isSaved());
}

TEST(CardHistory, ASavedStepKeepsItsPlaceWhenOlderOnesGo) {
    CardHistory history;
    history.begin(cardSaying("0"), true);
    history.note(cardSaying("saved"));
    history.markSaved();
    for (int i = 1; i <= 1000; ++i) history.note(cardSaying(std::to_string(i)));
    while (history.toUndo() != nullptr) static_cast<void>(history.undo());
    EXPECT_EQ(history.card(), cardSaying("saved"));
    EXPECT_TRUE(history.isSaved());
}

TEST(CardHistory, FieldsThatOnlyOneCardHasArePassedOver) {
    CardHistory history;
    history.begin(cardWith({false, false}), true);
    history.note(cardWith({true}));
    const CardStep step = history.undo();
    ASSERT_EQ(step.marks.size(), 1U);
    EXPECT_EQ(step.marks[0].number, 1);
    EXPECT_FALSE(step.marks[0].isSet);
}

TEST(CardHistory, ThePartnerIsPartOfAStep) {
    CardHistory history;
    history.begin(cardWith({false}), true);
    CardDocument card = cardWith({false});
    card.partner = {.name = "Jane", .number = "1"};
    history.note(card);
    const CardStep step = history.undo();
    ASSERT_TRUE(step.partner);
    EXPECT_EQ(step.partner->after, CardPartner{});
    EXPECT_EQ(history.redo().partner->after.name, "Jane");
}

} // namespace
} // namespace zev
