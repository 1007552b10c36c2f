// The card that a command line names.
#pragma once

#include <string>
#include <string_view>

namespace zev {

/// The text after the last "\" or "/" of a command line in UTF-8, cut at its first "."; quotes have
/// no meaning. Empty where Windows-1252 can't hold it, since no card can have that name.
[[nodiscard]] std::string cardNameOf(std::string_view commandLine);

} // namespace zev
