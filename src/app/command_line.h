// The card that a command line names.
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// Of a command line in UTF-8 the text behind the last "\" or "/", cut at its first "."; quotes
/// aren't treated. Empty where the code page can't hold it, since no card can have that name.
[[nodiscard]] std::string cardNameOf(std::string_view commandLine);

} // namespace zev
