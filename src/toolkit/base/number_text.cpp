#include "toolkit/base/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "toolkit/base/ansi.h"
#include "toolkit/base/error.h"

namespace toolkit {
namespace {

constexpr bool isDigit(char character) { return character >= '0' && character <= '9'; }

// Room for the largest and the smallest double written without an exponent.
using NumberBuffer = std::array<char, 1100>;

template <typename Number, typename... Format>
std::string toText(Number value, Format... format) {
    NumberBuffer buffer;
    const auto end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format...).ptr;
    return {buffer.data(), end};
}

template <typename Number>
std::string shortest(Number value) {
    return value == 0 ? "0" : toText(value, std::chars_format::fixed);
}

// The power of ten behind the "e", kept within bounds that no mantissa of a text can make up for.
std::int64_t exponentOf(std::string_view exponent) {
    constexpr std::int64_t limit = 1'000'000'000'000;
    if (exponent.starts_with('+')) exponent.remove_prefix(1);
    std::int64_t value = 0;
    const auto error =
        std::from_chars(exponent.data(), exponent.data() + exponent.size(), value).ec;
    if (error == std::errc::result_out_of_range) return exponent.starts_with('-') ? -limit : limit;
    return std::clamp(value, -limit, limit);
}

// Whether a number beyond the range of double is so by its size rather than by its smallness.
bool isTooLarge(std::string_view digits) {
    const std::size_t exponentAt = std::min(digits.find_first_of("eE"), digits.size());
    const std::string_view mantissa = digits.substr(0, exponentAt);
    const auto point = static_cast<std::int64_t>(std::min(mantissa.find('.'), mantissa.size()));
    const auto first = static_cast<std::int64_t>(mantissa.find_first_of("123456789"));
    const std::int64_t exponent =
        exponentAt < digits.size() ? exponentOf(digits.substr(exponentAt + 1)) : 0;
    return point - first + exponent > 0;
}

struct Scanned {
    double value = 0;
    std::size_t length = 0; ///< 0 where the text begins with no number
};

Scanned scanNumber(std::string_view text) {
    const bool hasSign = !text.empty() && (text.front() == '-' || text.front() == '+');
    const std::string_view digits = text.substr(hasSign ? 1 : 0);
    // The standard's reader would take "inf" and "nan" for numbers, too.
    if (digits.empty() || (!isDigit(digits.front()) && digits.front() != '.')) return {};
    double magnitude = 0;
    const auto [end, error] =
        std::from_chars(digits.data(), digits.data() + digits.size(), magnitude);
    if (error == std::errc::invalid_argument) return {};
    const auto length = static_cast<std::size_t>(end - digits.data());
    if (error == std::errc::result_out_of_range)
        magnitude = isTooLarge(digits.substr(0, length)) ? std::numeric_limits<double>::max() : 0;
    return {text.front() == '-' ? -magnitude : magnitude, length + (hasSign ? 1U : 0U)};
}

/// To the nearest integer, halves to even.
template <typename Integer>
Integer checked(double value) {
    const double rounded = std::nearbyint(value);
    // A value that is no number is within no bounds.
    const bool isWithin = rounded >= std::numeric_limits<Integer>::min() &&
                          rounded <= std::numeric_limits<Integer>::max();
    if (!isWithin) throw RunTimeError(Failure::Overflow);
    return static_cast<Integer>(rounded);
}

} // namespace

std::string numberText(float value) { return shortest(value); }

std::string numberText(int value) { return toText(value); }

std::string printedNumber(double value) {
    // A length that was kept as a float prints with a float's digits: 7.35, not 7.349999904632568.
    const auto narrow = static_cast<float>(value);
    const std::string text = narrow == value ? shortest(narrow) : shortest(value);
    return (text.front() == '-' ? "" : " ") + text + " ";
}

std::string fixedText(double value, int wholeDigits, int decimals) {
    std::string text = toText(std::abs(value), std::chars_format::fixed, decimals);
    const std::size_t whole = std::min(text.find('.'), text.size());
    const auto wanted = static_cast<std::size_t>(std::max(wholeDigits, 0));
    if (whole < wanted) text.insert(0, wanted - whole, '0');
    const bool negative = value < 0 && text.find_first_of("123456789") != std::string::npos;
    return negative ? "-" + text : text;
}

std::string groupedText(std::uint64_t value) {
    std::string text = toText(value);
    for (std::size_t place = text.size(); place > 3; place -= 3) text.insert(place - 3, 1, ',');
    return text;
}

double leadingNumber(std::string_view text) {
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? 0 : scanNumber(text.substr(first)).value;
}

std::optional<double> wholeNumber(std::string_view text) {
    const std::string_view trimmed = trim(text);
    const Scanned scanned = scanNumber(trimmed);
    if (scanned.length == 0 || scanned.length != trimmed.size()) return std::nullopt;
    return scanned.value;
}

int roundToInteger(double value) {
    if (std::isnan(value)) return 0;
    const double rounded = std::nearbyint(value);
    return static_cast<int>(std::clamp<double>(rounded, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

std::int16_t toInteger16(double value) { return checked<std::int16_t>(value); }

std::int32_t toInteger32(double value) { return checked<std::int32_t>(value); }

} // namespace toolkit
