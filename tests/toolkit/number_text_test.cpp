#include "toolkit/base/number_text.h"

#include <clocale>
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include "toolkit/failure_of.h"

namespace toolkit {
namespace {

using test::failureOf;

constexpr double infinite = std::numeric_limits<double>::infinity();
constexpr double largest = std::numeric_limits<double>::max();

TEST(NumberText, WholeNumbersAreBare) {
    EXPECT_EQ(numberText(120), "120");
    EXPECT_EQ(numberText(-7), "-7");
    EXPECT_EQ(numberText(120.0F), "120");
    EXPECT_EQ(numberText(-0.0F), "0");
}

TEST(NumberText, FractionsHaveTheFewestDigitsThatReadBack) {
    EXPECT_EQ(numberText(7.5F), "7.5");
    EXPECT_EQ(numberText(-0.25F), "-0.25");
    EXPECT_EQ(numberText(0.1F), "0.1");
    EXPECT_EQ(numberText(1.0F / 3), "0.33333334");
}

TEST(NumberText, LargeAndSmallNumbersHaveNoExponent) {
    EXPECT_EQ(numberText(1e10F), "10000000000");
    EXPECT_EQ(numberText(1e-5F), "0.00001");
    EXPECT_EQ(numberText(std::numeric_limits<float>::max()).size(), 39U);
}

TEST(NumberText, PrintedNumbersHaveASignPositionAndATrailingBlank) {
    EXPECT_EQ(printedNumber(120), " 120 ");
    EXPECT_EQ(printedNumber(-1.5), "-1.5 ");
    EXPECT_EQ(printedNumber(0), " 0 ");
}

TEST(NumberText, PrintedFloatsKeepTheDigitsOfAFloat) {
    EXPECT_EQ(printedNumber(7.35F), " 7.35 ");
    EXPECT_EQ(printedNumber(7.35), " 7.35 ");
    EXPECT_EQ(printedNumber(123456789), " 123456789 ");
}

TEST(NumberText, FixedTextPadsTheWholePartAndRoundsTheRest) {
    EXPECT_EQ(fixedText(5.5, 5, 2), "00005.50");
    EXPECT_EQ(fixedText(86399.996, 5, 2), "86400.00");
    EXPECT_EQ(fixedText(11, 1, 2), "11.00");
    EXPECT_EQ(fixedText(0.5, 0, 2), "0.50");
    EXPECT_EQ(fixedText(1234567.25, 3, 1), "1234567.2");
    EXPECT_EQ(fixedText(7, 4, 0), "0007");
}

TEST(NumberText, FixedTextHasASignOnlyForWhatIsWritten) {
    EXPECT_EQ(fixedText(-5.5, 3, 1), "-005.5");
    EXPECT_EQ(fixedText(-0.001, 1, 2), "0.00");
}

TEST(NumberText, GroupsAreThreeDigits) {
    EXPECT_EQ(groupedText(0), "0");
    EXPECT_EQ(groupedText(999), "999");
    EXPECT_EQ(groupedText(1000), "1,000");
    EXPECT_EQ(groupedText(1234567), "1,234,567");
    EXPECT_EQ(groupedText(123456), "123,456");
}

TEST(NumberText, LeadingNumberReadsWhatATextBeginsWith) {
    EXPECT_EQ(leadingNumber("12abc"), 12);
    EXPECT_EQ(leadingNumber("  -3.5 x"), -3.5);
    EXPECT_EQ(leadingNumber("+4"), 4);
    EXPECT_EQ(leadingNumber(".5"), 0.5);
    EXPECT_EQ(leadingNumber("5."), 5);
    EXPECT_EQ(leadingNumber("1e3"), 1000);
    EXPECT_EQ(leadingNumber("1,5"), 1);
}

TEST(NumberText, LeadingNumberIsZeroWhereThereIsNone) {
    for (const char* text : {"", "   ", "abc", "-", "+", ".", "+-5", "-+5", "inf", "nan", "--1"})
        EXPECT_EQ(leadingNumber(text), 0) << text;
}

TEST(NumberText, NumbersBeyondTheRangeSaturate) {
    EXPECT_EQ(leadingNumber("1e999"), largest);
    EXPECT_EQ(leadingNumber("-1e999"), -largest);
    EXPECT_EQ(leadingNumber("1e-999"), 0);
    EXPECT_EQ(leadingNumber("1e99999999999999999999"), largest);
    EXPECT_EQ(leadingNumber("1e-99999999999999999999"), 0);
    EXPECT_EQ(leadingNumber(std::string(400, '9')), largest);
    EXPECT_EQ(leadingNumber("1" + std::string(400, '0') + "e-5"), largest);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1e5"), 0);
}

TEST(NumberText, WholeNumberTakesTheWholeTextOrNothing) {
    EXPECT_EQ(wholeNumber(" 12 "), 12);
    EXPECT_EQ(wholeNumber("+1.5"), 1.5);
    EXPECT_EQ(wholeNumber("1e999"), largest);
    for (const char* text : {"", " ", "12x", "0x10", "1 2", "1,5", "inf", "nan", "+", "1e"})
        EXPECT_EQ(wholeNumber(text), std::nullopt) << text;
}

TEST(NumberText, TheLocaleChangesNothing) {
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* name : {"de_DE.UTF-8", "de_DE", "C.UTF-8"})
        if (std::setlocale(LC_ALL, name) != nullptr) break;
    EXPECT_EQ(numberText(7.5F), "7.5");
    EXPECT_EQ(leadingNumber("7.5"), 7.5);
    EXPECT_EQ(fixedText(1.5, 1, 2), "1.50");
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Rounding, HalvesGoToTheEvenNeighbour) {
    EXPECT_EQ(roundToInteger(0.5), 0);
    EXPECT_EQ(roundToInteger(1.5), 2);
    EXPECT_EQ(roundToInteger(2.5), 2);
    EXPECT_EQ(roundToInteger(-0.5), 0);
    EXPECT_EQ(roundToInteger(-1.5), -2);
    EXPECT_EQ(roundToInteger(2.500001), 3);
}

TEST(Rounding, IntegersSaturate) {
    EXPECT_EQ(roundToInteger(1e20), std::numeric_limits<int>::max());
    EXPECT_EQ(roundToInteger(-infinite), std::numeric_limits<int>::min());
    EXPECT_EQ(roundToInteger(std::nan("")), 0);
}

TEST(Rounding, SixteenBitsRoundHalvesToEven) {
    EXPECT_EQ(toInteger16(2.5), 2);
    EXPECT_EQ(toInteger16(-3.5), -4);
    EXPECT_EQ(toInteger16(32767.4), 32767);
    EXPECT_EQ(toInteger16(-32768.5), -32768);
}

TEST(Rounding, SixteenBitsOverflowBothWays) {
    for (const double value : {32767.5, 32768.0, -32769.0, 1e300, -1e300, infinite, std::nan("")})
        EXPECT_EQ(failureOf([&] { (void)toInteger16(value); }), 6) << value;
}

TEST(Rounding, ThirtyTwoBitsRoundHalvesToEven) {
    EXPECT_EQ(toInteger32(2.5), 2);
    EXPECT_EQ(toInteger32(40000.5), 40000);
    EXPECT_EQ(toInteger32(2147483647.4), 2147483647);
    EXPECT_EQ(toInteger32(-2147483648.5), std::numeric_limits<std::int32_t>::min());
}

TEST(Rounding, ThirtyTwoBitsOverflowBothWays) {
    for (const double value : {2147483647.5, -2147483649.0, 1e300, -infinite, std::nan("")})
        EXPECT_EQ(failureOf([&] { (void)toInteger32(value); }), 6) << value;
}

} // namespace
} // namespace toolkit
