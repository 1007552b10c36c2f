#include "events/accessible_fields.h"

#include <algorithm>
#include <set>

#include "app/layouts.h"
#include "support/form_test.h"
#include "toolkit/base/key.h"
#include "toolkit/testing/test_keys.h"

namespace zev::test {
namespace {

using toolkit::FieldId;

FieldId box(int number) { return {FieldId::Kind::CheckBox, number}; }
FieldId area(int number) { return {FieldId::Kind::Text, number}; }

class AccessibleFields : public FormTest {
  protected:
    void startCard() {
        start();
        card = accessibleCard(form);
    }

    toolkit::AccessibleCard card;
};

TEST_F(AccessibleFields, EachFieldStandsInItsSectionOnce) {
    startCard();
    std::set<std::string> names;
    std::size_t fields = 0;
    for (const auto& section : card.sections()) {
        for (const auto& field : section.fields) {
            EXPECT_TRUE(field.name.starts_with(section.name + ", ")) << field.name;
            names.insert(field.name);
            ++fields;
        }
    }
    EXPECT_EQ(fields, static_cast<std::size_t>(form.AMark.UBound() + form.AText.UBound()));
    EXPECT_EQ(names.size(), fields);
    EXPECT_EQ(card.fieldCount(), static_cast<int>(fields));
}

TEST_F(AccessibleFields, StandInTheOrderOfTheWalk) {
    startCard();
    const auto sections = card.sections();
    EXPECT_EQ(sections.front().name, "Names");
    EXPECT_EQ(sections.at(1).name, "General approach");
    EXPECT_EQ(sections.at(1).fields.front().id, area(2));
    EXPECT_EQ(sections.back().name, "Leads versus notrump");
}

TEST_F(AccessibleFields, WhatAPlayerHasAddedStandsInASectionOfItsOwn) {
    startCard();
    form.AMark.Load(form.AMark.UBound() + 1);
    form.AMark[form.AMark.UBound()].Width = 300;
    const auto last = card.sections().back();
    EXPECT_EQ(last.name, "Other fields");
    ASSERT_EQ(last.fields.size(), 1U);
    EXPECT_EQ(last.fields[0].name, "Check box 272");
}

TEST_F(AccessibleFields, ActivatingACheckBoxTurnsItOver) {
    startCard();
    card.activate(box(12));
    EXPECT_TRUE(card.isSet(box(12)));
    EXPECT_TRUE(form.AMark[12].Visible);
    EXPECT_TRUE(form.CardModified);
    EXPECT_EQ(card.focused(), box(12));
    card.activate(box(12));
    EXPECT_FALSE(card.isSet(box(12)));
}

TEST_F(AccessibleFields, ActivatingATextOpensIt) {
    startCard();
    card.activate(area(2));
    EXPECT_TRUE(form.CText.Visible);
    EXPECT_EQ(card.focused(), area(2));
    toolkit::test::typeText("abc");
    card.activate(box(1));
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_EQ(card.text(area(2)), "abc");
    EXPECT_EQ(card.focused(), box(1));
}

TEST_F(AccessibleFields, ATextIsSaidAndReplacedWithItsSuits) {
    startCard();
    card.replace(area(2), 0, 0, "4\u2665up");
    EXPECT_EQ(form.AText[2].Tag, "4^hup");
    EXPECT_EQ(card.text(area(2)), "4 hearts up");
    EXPECT_FALSE(form.CText.Visible);
    EXPECT_TRUE(form.CardModified);
    card.replace(area(2), 0, 1, "5 & 4");
    EXPECT_EQ(form.AText[2].Tag, "5 && 4^hup");
    EXPECT_EQ(card.text(area(2)), "5 & 4 hearts up");
}

TEST_F(AccessibleFields, WhatStaysOfATextKeepsItsSuits) {
    startCard();
    card.replace(area(2), 0, 0, "5\u2665");
    card.replace(area(2), 0, 8, "5 hearts up");
    EXPECT_EQ(form.AText[2].Tag, "5^h up");
    card.replace(area(2), 0, 11, "4 hearts up");
    EXPECT_EQ(form.AText[2].Tag, "4^h up");
    card.replace(area(2), 8, 8, "\u2660");
    EXPECT_EQ(form.AText[2].Tag, "4^h ^s up");
}

TEST_F(AccessibleFields, ACircleOfHolesInTheWalkEnds) {
    startCard();
    form.TabTable.set(1, 2);
    form.TabTable.set(2, 2);
    form.AText[1].Width = form.AText[2].Width = 0;
    EXPECT_FALSE(card.sections().empty());
}

TEST_F(AccessibleFields, DesignModeShowsMarksThatArentSet) {
    startCard();
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.AMark[1].Visible);
    EXPECT_FALSE(card.isSet(box(1)));
    EXPECT_FALSE(card.isWithinReach(box(1)));
}

TEST_F(AccessibleFields, ReplacingATextLeavesTheOneThatIsOpenCommitted) {
    startCard();
    card.activate(area(2));
    toolkit::test::typeText("open");
    card.replace(area(3), 0, 0, "other");
    EXPECT_EQ(form.AText[2].Tag, "open");
    EXPECT_EQ(form.AText[3].Tag, "other");
}

TEST_F(AccessibleFields, WhatLiesOverTheCardKeepsThemFromChanging) {
    startCard();
    toolkit::test::typeKey(toolkit::key::f1);
    ASSERT_TRUE(form.THelp.Visible);
    card.activate(box(1));
    card.replace(area(2), 0, 0, "text");
    EXPECT_FALSE(form.AMark[1].Visible);
    EXPECT_EQ(form.AText[2].Tag, "");
    toolkit::test::typeKey(toolkit::key::escape, 0, "\x1b");
    toolkit::test::typeKey('D', toolkit::shift::shift | toolkit::shift::ctrl);
    ASSERT_TRUE(form.MShowShapes.Checked);
    card.replace(area(2), 0, 0, "text");
    EXPECT_EQ(form.AText[2].Tag, "");
}

TEST_F(AccessibleFields, AFieldThatIsGoneIsPassedOver) {
    startCard();
    EXPECT_EQ(card.label(box(0)), nullptr);
    EXPECT_EQ(card.label(box(9999)), nullptr);
    card.activate(box(9999));
    card.replace(area(9999), 0, 0, "text");
    EXPECT_FALSE(form.CardModified);
}

TEST_F(AccessibleFields, TheWalkGoesOnFromAMarkThatWasTurnedOver) {
    startCard();
    card.activate(box(1));
    toolkit::test::typeKey(toolkit::key::tab);
    EXPECT_EQ(card.focused(), box(2));
}

} // namespace
} // namespace zev::test
