// Numbers as texts, never by the locale.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace toolkit {

/// Whole numbers bare, fractions with the fewest digits that read back the same: 120, 7.5, -0.25.
[[nodiscard]] std::string numberText(float value);
[[nodiscard]] std::string numberText(int value);

/// With the sign position (a blank when not negative) and a trailing blank, as printed lists have.
[[nodiscard]] std::string printedNumber(double value);

/// Fixed decimals, at least `wholeDigits` digits before the point: (5.5, 5, 2) gives 00005.50.
[[nodiscard]] std::string fixedText(double value, int wholeDigits, int decimals);

/// With "," every three digits: 1234567 gives 1,234,567.
[[nodiscard]] std::string groupedText(std::uint64_t value);

/// The number that a text begins with (leading blanks skipped), 0 if it begins with none; beyond
/// the range of double it saturates.
[[nodiscard]] double leadingNumber(std::string_view text);

/// The number that the whole text is (blanks at either end allowed), none if it is none.
[[nodiscard]] std::optional<double> wholeNumber(std::string_view text);

/// To the nearest integer, halves to even, saturated to the bounds of int.
[[nodiscard]] int roundToInteger(double value);

/// To a 16-bit or 32-bit integer, halves to even. Failure 6 beyond its bounds.
[[nodiscard]] std::int16_t toInteger16(double value);
[[nodiscard]] std::int32_t toInteger32(double value);

} // namespace toolkit
