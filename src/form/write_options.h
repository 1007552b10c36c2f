// Writes the options file.
#pragma once

#include <string>

#include "form/options_file.h"

namespace zev {

/// The whole file, byte for byte, with CR LF line ends.
[[nodiscard]] std::string writeOptions(const OptionsDocument& document);

} // namespace zev
