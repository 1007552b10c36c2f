#include "card/card_names.h"

#include <gtest/gtest.h>

namespace zev {
namespace {

TEST(CleanedCardName, LosesOneLeadingSeparatorAndTheExtension) {
    EXPECT_EQ(cleanedCardName("\\Joe.zev"), "Joe");
    EXPECT_EQ(cleanedCardName("/Joe"), "Joe");
    EXPECT_EQ(cleanedCardName("\\\\Joe"), "\\Joe");
    EXPECT_EQ(cleanedCardName("Joe.ZEV"), "Joe");
    EXPECT_EQ(cleanedCardName("Joe.zev.zev"), "Joe.zev");
}

TEST(CleanedCardName, KeepsEverythingElse) {
    EXPECT_EQ(cleanedCardName("Joe.zev "), "Joe.zev ");
    EXPECT_EQ(cleanedCardName("zev"), "zev");
    EXPECT_EQ(cleanedCardName(".zev"), "");
    EXPECT_EQ(cleanedCardName(""), "");
}

TEST(ForbiddenCharacter, IsOneOfEight) {
    for (const char character : std::string_view("/\\:*?<>\""))
        EXPECT_TRUE(hasForbiddenCharacter(std::string("a") + character + "b")) << character;
}

TEST(ForbiddenCharacter, IsNoOther) {
    EXPECT_FALSE(hasForbiddenCharacter("Joe & Jane | 2"));
    EXPECT_FALSE(hasForbiddenCharacter("$$Tempcard 'x' (1).\xE9"));
    EXPECT_FALSE(hasForbiddenCharacter(""));
}

TEST(CardNameForAFile, IsItsNameWithoutTheExtension) {
    EXPECT_EQ(cardNameFor("Jones.zev"), "Jones");
    EXPECT_EQ(cardNameFor("Jones.ZEV.zev"), "Jones");
    EXPECT_EQ(cardNameFor("Jones & Smith 1.5.zev"), "Jones & Smith 1.5");
    EXPECT_EQ(cardNameFor("card from mail"), "card from mail");
}

TEST(CardNameForAFile, IsOneThatACardCanHave) {
    EXPECT_EQ(cardNameFor(" Jones .zev"), "Jones");
    EXPECT_EQ(cardNameFor("2\\/1: ?*<x>\"y\".zev"), "2__1_ ___x__y_");
    EXPECT_EQ(cardNameFor("a\nb\x7F.zev"), "a_b_");
    for (const char* name : {"", ".zev", "  .zev", "$$Tempcard.zev", "$$TEMPCARD"})
        EXPECT_EQ(cardNameFor(name), "Card") << name;
}

TEST(CardNameForAFile, IsNoLongerThanAFilesNameMayBe) {
    EXPECT_EQ(cardNameFor(std::string(300, 'x')), std::string(251, 'x'));
    // Two bytes each in a file's name.
    EXPECT_EQ(cardNameFor(std::string(200, '\xE9')), std::string(125, '\xE9'));
}

TEST(NumberedCardName, EndsWithTheNumber) {
    EXPECT_EQ(numberedCardName("Jones", 2), "Jones 2");
    EXPECT_EQ(numberedCardName("Jones", 13), "Jones 13");
    EXPECT_EQ(numberedCardName(std::string(251, 'x'), 2), std::string(249, 'x') + " 2");
}

TEST(CardExtension, IsToldInAnyCase) {
    for (const char* name : {".zev", "a.zev", "a.ZEV", "a.b.Zev"})
        EXPECT_TRUE(hasCardExtension(name)) << name;
    for (const char* name : {"", "zev", "a.zev ", "a.zev.txt", "a.ze"})
        EXPECT_FALSE(hasCardExtension(name)) << name;
}

TEST(TemporaryCard, IsToldByItsNameInAnyCase) {
    for (const char* name : {"$$Tempcard", "$$TEMPCARD", "$$tempcard.zev", "/$$Tempcard"})
        EXPECT_TRUE(isTemporaryCard(name)) << name;
    for (const char* name : {"", "Tempcard", "$$Tempcard 2", "$Tempcard"})
        EXPECT_FALSE(isTemporaryCard(name)) << name;
}

TEST(SplitPlayerId, TakesALastWordThatIsANumber) {
    EXPECT_EQ(splitPlayerId("Joe 12345"), (PlayerId{"Joe", "12345"}));
    EXPECT_EQ(splitPlayerId("  Joe Smith   12345 "), (PlayerId{"Joe Smith", "12345"}));
}

TEST(SplitPlayerId, HasNoNumberWithoutANumericLastWord) {
    EXPECT_EQ(splitPlayerId("Joe Smith"), (PlayerId{"Joe Smith", ""}));
    EXPECT_EQ(splitPlayerId("Joe  Smith"), (PlayerId{"Joe Smith", ""}));
    EXPECT_EQ(splitPlayerId("Joe R12345"), (PlayerId{"Joe R12345", ""}));
    EXPECT_EQ(splitPlayerId("Joe Nan"), (PlayerId{"Joe Nan", ""}));
    EXPECT_EQ(splitPlayerId("Joe inf"), (PlayerId{"Joe inf", ""}));
}

TEST(SplitPlayerId, TakesASingleWordForTheName) {
    EXPECT_EQ(splitPlayerId("12345"), (PlayerId{"12345", ""}));
    EXPECT_EQ(splitPlayerId("Joe"), (PlayerId{"Joe", ""}));
    EXPECT_EQ(splitPlayerId("  "), (PlayerId{"", ""}));
}

TEST(PlayerLine, JoinsNameAndNumber) {
    EXPECT_EQ(playerLine({"Joe", "123"}), "Joe #123");
    EXPECT_EQ(playerLine({"Joe", ""}), "Joe");
    EXPECT_EQ(playerLine({"", "123"}), "#123");
    EXPECT_EQ(playerLine({"", ""}), "");
}

constexpr auto fill = NamesUpdate::FillEmpty;
constexpr auto replace = NamesUpdate::Replace;

TEST(ComposedNames, KeepWhatStandsThereUnlessReplaced) {
    EXPECT_EQ(composedNames({"typed", "Joe", "Jane", "card"}, fill), "typed");
    EXPECT_EQ(composedNames({"typed", "", "", "card"}, fill), "typed");
    EXPECT_EQ(composedNames({"typed", "", "Jane", "card"}, fill), "typed");
}

TEST(ComposedNames, FillAnEmptyLineWithMineAlone) {
    EXPECT_EQ(composedNames({"", "Joe", "Jane", "card"}, fill), "Joe");
    EXPECT_EQ(composedNames({"", "Joe", "", "card"}, fill), "Joe");
}

TEST(ComposedNames, FillAnEmptyLineWithThePartnerWhereIHaveNone) {
    EXPECT_EQ(composedNames({"", "", "Jane", "card"}, fill), "Jane");
}

TEST(ComposedNames, FillAnEmptyLineWithTheCardWithoutNames) {
    EXPECT_EQ(composedNames({"", "", "", "card"}, fill), "card");
    EXPECT_EQ(composedNames({"typed", "", "", "card"}, replace), "card");
}

TEST(ComposedNames, ReplaceByBothWithADoubledAmpersand) {
    EXPECT_EQ(composedNames({"typed", "Joe", "Jane", "card"}, replace), "Joe && Jane");
}

TEST(ComposedNames, ReplaceByTheOneThatIsThere) {
    EXPECT_EQ(composedNames({"typed", "Joe", "", "card"}, replace), "Joe");
    EXPECT_EQ(composedNames({"typed", "", "Jane", "card"}, replace), "Jane");
}

} // namespace
} // namespace zev
