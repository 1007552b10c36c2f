// The wording of the help page.
#pragma once

#include <string_view>

namespace zev {

/// Texts of several lines, each line ended by a line feed. Of the placeholders, {folder}
/// stands for the data folder and {support} for the support address.
struct HelpSections {
    std::string_view usingCards;     ///< for every player
    std::string_view changingLayout; ///< for those who change the card itself
    std::string_view reporting;      ///< what to send when something goes wrong
};

[[nodiscard]] HelpSections helpSections();

} // namespace zev
