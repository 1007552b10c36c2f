// Names of exported images.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zev {

/// The name that is offered: the card's name up to its first ".", or "Card Image", with the
/// extension.
[[nodiscard]] std::string offeredImageName(std::string_view cardName, std::string_view extension);

/// The file that an answer means: the extension is added or replaces another one, and folders stay
/// as they are. None where no name is left.
[[nodiscard]] std::optional<std::string> imageFileName(std::string_view answer,
                                                       std::string_view extension);

} // namespace zev
