// Suit escapes ("^h") and doubled ampersands in the texts of the card.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zev {

/// Suits in the order of their keys F5 to F8.
constexpr std::string_view suitLetters = "cdhs";

/// What stands in a shown text in the place of an escape.
constexpr std::string_view blankedEscape = "\xA0\xA0\xA0";

/// Doubles each "&" that isn't followed by another one.
void AmpAdd(std::string& text);
/// Makes every run of ampersands a single one.
void AmpRem(std::string& text);

/// A text with its escapes blanked. A "^" right behind an escape is passed over and stays.
struct BlankedText {
    std::string caption; ///< three characters of code 160 for each escape
    /// As long as the caption, with "^", the letter in lower case and one character of code 160 for
    /// each escape. One character shorter where a "^" without a letter ends the text.
    std::string scanBuffer;
};
[[nodiscard]] BlankedText blankEscapes(std::string_view raw);

/// A suit to lay over the text: `position` is the one-based place of its "^" in the scan buffer,
/// and so of its blanks in the caption; `suit` 1 to 4.
struct SuitPlace {
    int position = 0;
    int suit = 0;
};
/// A "^" with anything but one of the four small letters behind it gives no place.
[[nodiscard]] std::vector<SuitPlace> suitPlaces(std::string_view scanBuffer);

} // namespace zev
