#include "card/document.h"

#include "card_form_test.h"
#include "layout/build_fields.h"

namespace zev::test {
namespace {

class Document : public CardFormTest {};

TEST_F(Document, IsWhatTheFieldsShow) {
    start();
    openCard("Jones", {.partner = "\"Jane\",\"8\"",
                       .marks = {"2,1,0"},
                       .texts = {"1,\"5^h & up\",14", "2,\"b\",1"}});
    const CardDocument document = documentOf(form);
    EXPECT_EQ(document.cardName, "Jones");
    EXPECT_EQ(document.partner, (CardPartner{"Jane", "8"}));
    EXPECT_EQ(document.marks, (std::vector<bool>{false, true, false}));
    ASSERT_EQ(document.texts.size(), 3U);
    EXPECT_EQ(document.texts[0], (CardDocument::Text{"5^h && up", 14}));
    EXPECT_EQ(document.texts[1], (CardDocument::Text{"b", 1}));
}

TEST_F(Document, ShownAgainIsTheSame) {
    start();
    openCard("Jones", {.marks = {"2,1,0"}, .texts = {"1,\"5^h & up\",14", "2,\"b\",1"}});
    const CardDocument document = documentOf(form);
    choose("File>New");
    form.CardName = "Jones";
    showDocument(form, document);
    EXPECT_EQ(documentOf(form), document);
    EXPECT_TRUE(form.Highlight[1].Visible);
    EXPECT_EQ(form.SText.UBound(), 1);
}

TEST_F(Document, TypingIsPartOfItOnlyWhereItIsAskedFor) {
    start();
    typeInOpenField(2, "a & b");
    EXPECT_EQ(documentOf(form).texts[1].text, "");
    EXPECT_EQ(documentWithTyping(form).texts[1].text, "a && b");
    EXPECT_TRUE(form.CText.Visible);
}

TEST_F(Document, OfOtherFieldsIsShownAsFarAsTheyAre) {
    start();
    CardDocument document = documentOf(form);
    document.marks = {true, true, true, true, true};
    document.texts = {{"one", 0}};
    form.AText[2].Tag = "stays";
    showDocument(form, document);
    EXPECT_TRUE(form.AMark[3].Visible);
    EXPECT_EQ(form.AText[1].Tag, "one");
    EXPECT_EQ(form.AText[2].Tag, "stays");
}

TEST_F(Document, HasRoomWhereEachFilledFieldIs) {
    start();
    CardDocument document = documentOf(form);
    EXPECT_TRUE(hasRoomFor(form, document));
    document.marks.resize(9);
    document.texts.resize(9);
    EXPECT_TRUE(hasRoomFor(form, document));
    document.marks[2] = true;
    document.texts[2].text = "x";
    EXPECT_TRUE(hasRoomFor(form, document));
    document.marks[3] = true;
    EXPECT_FALSE(hasRoomFor(form, document));
    document.marks[3] = false;
    document.texts[8].text = "x";
    EXPECT_FALSE(hasRoomFor(form, document));
}

} // namespace
} // namespace zev::test
