#include "layout/field_names.h"

#include <set>

#include "app/layouts.h"
#include "support/form_test.h"

namespace zev::test {
namespace {

class FieldNames : public FormTest {};

TEST_F(FieldNames, EachFieldOfTheInstalledCardHasOneOfItsOwn) {
    start();
    std::set<std::string> names;
    for (int i = 1; i <= form.AMark.UBound(); ++i) names.insert(nameOfMark(i));
    for (int i = 1; i <= form.AText.UBound(); ++i) names.insert(nameOfText(i));
    EXPECT_EQ(names.size(), static_cast<std::size_t>(form.AMark.UBound() + form.AText.UBound()));
    for (const std::string& name : names) EXPECT_FALSE(name.starts_with("Check box ")) << name;
    for (const std::string& name : names) EXPECT_FALSE(name.starts_with("Text area ")) << name;
    EXPECT_EQ(nameOfText(form.NamesField), "Names, both partners");
}

TEST(FieldNamesOfTheCard, SayWhatIsPrintedThere) {
    EXPECT_EQ(nameOfMark(12), "Notrump opening bids, 2 clubs Stayman");
    EXPECT_EQ(nameOfMark(187), "Leads versus suits, ace of A K x");
    EXPECT_EQ(nameOfText(4), "Notrump opening bids, 1 notrump, lowest points");
}

TEST(FieldNamesOfTheCard, WhatAPlayerHasAddedIsToldByKindAndNumber) {
    EXPECT_EQ(nameOfMark(273), "Check box 273");
    EXPECT_EQ(nameOfText(98), "Text area 98");
    EXPECT_EQ(nameOfMark(0), "Check box 0");
}

} // namespace
} // namespace zev::test
