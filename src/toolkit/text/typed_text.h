// Texts of other programs: what typing, an input method or the clipboard brings, and what goes out.
#pragma once

#include <string>
#include <string_view>

namespace toolkit {

/// The text around the place where another one goes in.
struct TextAround {
    std::string_view before{};
    std::string_view after{};
};

/// A UTF-8 text as it goes in there. The four suit signs become ^c ^d ^h ^s, and so do the letters
/// that an input method makes of "^" and a letter; between two of them, or one and an escape that
/// is there, stands a blank. TABs and line ends in a row become one blank, other control characters
/// are dropped. A letter that the code page lacks becomes its base letter, "?" where it has none.
[[nodiscard]] std::string ansiFromTyped(std::string_view utf8, const TextAround& around = {});

/// The text in UTF-8 as other programs get it: with the signs of the suits for the escapes, and
/// blanks for no-break spaces.
[[nodiscard]] std::string utf8ForOthers(std::string_view text);

} // namespace toolkit
