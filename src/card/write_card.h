// Writes a card file.
#pragma once

#include <string>

#include "card/card_file.h"

namespace zev {

/// The whole file, byte for byte, with CR LF line ends. The format has no double quote inside a
/// text and no runs of ampersands: they come back as load.h tells.
[[nodiscard]] std::string writeCard(const CardDocument& document);

} // namespace zev
