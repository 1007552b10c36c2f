// Writes a card file.
#pragma once

#include <string>

#include "card/card_file.h"

namespace zev {

/// The whole file, byte for byte, with CR LF line ends. The format can't hold a double quote inside
/// a text, nor a run of ampersands: a superscript two stands for the quote and one ampersand for
/// the run.
[[nodiscard]] std::string writeCard(const CardDocument& document);

} // namespace zev
