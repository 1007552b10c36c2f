// The layouts that were installed with the card as it was before 2.1.0.
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// The version, as comparedVersion gives it, whose layouts were made for that card.
constexpr std::string_view formerCardVersion = "2.0";

/// Whether a layout file has the fields, and the tab sequence, of one that was installed then, be
/// it as installed or written again by the program.
[[nodiscard]] bool isUntouchedFormerLayout(const std::string& content);

} // namespace zev
