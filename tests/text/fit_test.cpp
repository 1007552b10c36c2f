#include "text/fit.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace zev {
namespace {

/// A font whose characters are as wide as its size, half as wide in "Narrow", wider when bold.
float measured(const toolkit::FontSpec& font, std::string_view text) {
    const float character =
        font.Size * (font.Name == "Narrow" ? 0.5F : 1.0F) * (font.Bold ? 1.25F : 1.0F);
    return character * static_cast<float>(text.size());
}

FitRequest requestFor(std::string_view text, float width) {
    FitRequest request;
    request.regular = {.Name = "Regular", .Size = 11, .Bold = false, .Italic = true};
    request.narrowFontName = "Narrow";
    request.smallSize = 11;
    request.width = width;
    request.text = text;
    return request;
}

toolkit::FontSpec fit(const FitRequest& request) { return fittedFont(request, measured); }

TEST(Fit, KeepsTheRegularFontWhereTheTextFits) {
    const toolkit::FontSpec font = fit(requestFor("123456789", 200));
    EXPECT_EQ(font.Name, "Regular");
    EXPECT_EQ(font.Size, 11);
    EXPECT_TRUE(font.Italic);
}

TEST(Fit, NeedsRoomForOneMoreBlankAndTakesEqualForFitting) {
    EXPECT_EQ(fit(requestFor("123456789", 110)).Name, "Regular");
    EXPECT_EQ(fit(requestFor("123456789", 109.9F)).Name, "Narrow");
}

TEST(Fit, KeepsTheRegularFontForAnEmptyText) {
    EXPECT_EQ(fit(requestFor("", 11)).Name, "Regular");
    EXPECT_EQ(fit(requestFor("", 10)).Name, "Narrow");
}

TEST(Fit, TriesTheNarrowFontAtFullSizeFirst) {
    const toolkit::FontSpec font = fit(requestFor("123456789", 55));
    EXPECT_EQ(font.Name, "Narrow");
    EXPECT_EQ(font.Size, 11);
    EXPECT_TRUE(font.Italic);
}

TEST(Fit, FallsByHalfPoints) {
    EXPECT_EQ(fit(requestFor("123456789", 54.9F)).Size, 10.5F);
    EXPECT_EQ(fit(requestFor("123456789", 40)).Size, 8);
    EXPECT_EQ(fit(requestFor("123456789", 39.9F)).Size, 7.5F);
}

TEST(Fit, EndsAtTheFirstSizeNotAboveHalf) {
    EXPECT_EQ(fit(requestFor("123456789", 1)).Size, 5.5F);
    FitRequest odd = requestFor("123456789", 1);
    odd.regular.Size = odd.smallSize = 9.5F;
    EXPECT_EQ(fit(odd).Size, 4.5F);
}

TEST(Fit, LetsALargeFieldFallToTheFloorOfOrdinaryOnes) {
    FitRequest large = requestFor("123456789", 1);
    large.regular.Size = 18;
    EXPECT_EQ(fit(large).Size, 5.5F);
    large.width = 70;
    EXPECT_EQ(fit(large).Size, 14);
}

TEST(Fit, TakesBoldIntoAccount) {
    FitRequest request = requestFor("123456789", 120);
    EXPECT_EQ(fit(request).Name, "Regular");
    request.regular.Bold = true;
    EXPECT_EQ(fit(request).Name, "Narrow");
    EXPECT_TRUE(fit(request).Bold);
}

TEST(Fit, OnlyShrinksWhereTheNarrowFontIsTheRegularOne) {
    FitRequest request = requestFor("123456789", 80);
    request.narrowFontName = "Regular";
    const toolkit::FontSpec font = fit(request);
    EXPECT_EQ(font.Name, "Regular");
    EXPECT_EQ(font.Size, 8);
}

TEST(Fit, GrowsBackWhenTheTextGetsShorter) {
    EXPECT_EQ(fit(requestFor("1234567890123456", 60)).Size, 7);
    EXPECT_EQ(fit(requestFor("1234", 60)).Name, "Regular");
}

TEST(Fit, MeasuresTheTextAsItStands) {
    std::vector<std::string> texts;
    FitRequest request = requestFor("a&&b^h", 1000);
    static_cast<void>(fittedFont(request, [&](const toolkit::FontSpec&, std::string_view text) {
        texts.emplace_back(text);
        return 0.0F;
    }));
    EXPECT_EQ(texts, std::vector<std::string>{"a&&b^h "});
}

TEST(Fit, EndsWhereSizesNoLongerFall) {
    FitRequest request = requestFor("x", 1);
    request.regular.Size = std::numeric_limits<float>::max();
    EXPECT_EQ(fit(request).Size, std::numeric_limits<float>::max());
    request.regular.Size = std::numeric_limits<float>::infinity();
    EXPECT_EQ(fit(request).Name, "Narrow");
}

float tenEach(std::string_view text) { return 10.0F * static_cast<float>(text.size()); }

TEST(CaretAt, IsTheFirstLengthThatReachesTheClick) {
    EXPECT_EQ(caretAt("abcd", 0, 0, tenEach), 0);
    EXPECT_EQ(caretAt("abcd", 1, 0, tenEach), 1);
    EXPECT_EQ(caretAt("abcd", 10, 0, tenEach), 1);
    EXPECT_EQ(caretAt("abcd", 10.5F, 0, tenEach), 2);
    EXPECT_EQ(caretAt("abcd", 40, 0, tenEach), 4);
}

TEST(CaretAt, IsZeroLeftOfACentredText) { EXPECT_EQ(caretAt("abcd", 20, 30, tenEach), 0); }

TEST(CaretAt, CountsTheOffset) { EXPECT_EQ(caretAt("abcd", 45, 30, tenEach), 2); }

TEST(CaretAt, IsPastTheEndRightOfTheText) {
    EXPECT_EQ(caretAt("abcd", 40.5F, 0, tenEach), 5);
    EXPECT_EQ(caretAt("abcd", 500, 30, tenEach), 5);
}

} // namespace
} // namespace zev
