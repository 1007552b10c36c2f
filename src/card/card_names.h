// Names: of cards, of the player and the partner.
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// The name without one leading path separator and a trailing ".zev".
[[nodiscard]] std::string cleanedCardName(std::string_view name);

/// Whether the name of a file ends in ".zev", in any case.
[[nodiscard]] bool hasCardExtension(std::string_view name);

/// Whether one of / \ : * ? < > or the double quote stands in the name.
[[nodiscard]] bool hasForbiddenCharacter(std::string_view name);

/// Whether this is the name of the temporary card of a rebuild, which no player has made.
[[nodiscard]] bool isTemporaryCard(std::string_view name);

/// A name that a card can have, as near as may be to that of the file, given without its folder: no
/// ".zev", "_" for each character that no card's name can hold, cut where it would be too long.
[[nodiscard]] std::string cardNameFor(std::string_view fileName);

/// The card's name as it is offered where others have it: "NAME 2", "NAME 3" and so on, shorter
/// where it would be too long.
[[nodiscard]] std::string numberedCardName(std::string_view name, int number);

struct PlayerId {
    std::string name;
    std::string number;
    friend bool operator==(const PlayerId&, const PlayerId&) = default;
};

/// An answer such as "Joe Smith 12345": the last word is the number if it is numeric and not the
/// only one.
[[nodiscard]] PlayerId splitPlayerId(std::string_view answer);

/// "name #number", either part alone, or empty.
[[nodiscard]] std::string playerLine(const PlayerId& player);

/// What the text of the names line is made from.
struct NamesLine {
    std::string caption; ///< what stands there now
    std::string mine;
    std::string partner;
    std::string cardName;
};
enum class NamesUpdate { FillEmpty, Replace };
[[nodiscard]] std::string composedNames(const NamesLine& line, NamesUpdate update);

} // namespace zev
